// AreaCodeTablePlan.cpp

#include "plans/AreaCodeTablePlan.h"

#include "numbering/ZelNumberingConfig.h"

#include "support/PropertyFile.h"
#include "support/Text.h"
#include "support/Trace.h"

#include "Poco/Exception.h"
#include "Poco/Util/PropertyFileConfiguration.h"

#include <exception>

namespace numbering {

AreaCodeTablePlan::AreaCodeTablePlan(Logger* logger,
	const std::string& callingCode,
	const std::string& className,
	const std::string& noCountryFileText,
	const std::string& noDefaultFileText):
	m_Translate(true),
	m_MaxAreaCodeLength(0),
	m_AreaCodeCount(0),
	m_Logger(logger)
{
	NUMBERING_TRACE(m_Logger, className + "()");
	m_AreaCodeTree = new ZelAreaCodeTree;
	try
	{
		const std::string base = ZelNumberingConfig::getConfigDirectory() + "r7731cnp_" + callingCode;
		readTable(*detail::openPropertyFile(
			base + ".properties", base + "_default.properties", m_Logger, noCountryFileText, noCountryFileText));
	}
	catch (const Poco::FileNotFoundException&)
	{
		m_Logger->info(noDefaultFileText);
	}
	catch (const Poco::OpenFileException&)
	{
		m_Logger->info(noDefaultFileText);
	}
	catch (const std::exception& e)
	{
		m_Logger->info(className + " : " + e.what());
	}
	NUMBERING_TRACE(m_Logger, className + " : " + " max length areacode : " + std::to_string(m_MaxAreaCodeLength) +
								  " nb area code : " + std::to_string(m_AreaCodeCount));
}

void AreaCodeTablePlan::readTable(const Poco::Util::AbstractConfiguration& table)
{
	if (table.has("Translate")) m_Translate = table.getString("Translate") == "1";
	try
	{
		detail::forEachNumberedValue(table, "AC_", [this](const std::string& value) {
			const std::string areaCode = detail::digitsOf(value);
			// An entry without any digit is skipped; the entries after it are still read.
			if (areaCode.empty()) return;
			if (static_cast<int>(areaCode.size()) > m_MaxAreaCodeLength)
				m_MaxAreaCodeLength = static_cast<int>(areaCode.size());
			m_AreaCodeTree->insert(areaCode);
			++m_AreaCodeCount;
		});
	}
	catch (const Poco::NotFoundException&)
	{
		// The first missing key ends the table.
	}
}

std::string AreaCodeTablePlan::takeAreaCode(std::string& rest, ZelDialRulesItem* rules)
{
	// AutoPtr's operator-> throws Poco::NullPointerException for a plan without a tree.
	std::string area = m_AreaCodeTree->extractAreaCode(rest);
	if (area.empty())
	{
		NUMBERING_TRACE(m_Logger, "'" + rest + "' doesn't begin with a known area code");
		return rules->getAreaCode();
	}
	NUMBERING_TRACE(m_Logger, area.size() == rest.size() ? "'" + rest + "' is an area code"
														 : "'" + rest + "' isn't an area code, but begins with '" +
															   area + "' which is an area code");
	rest.erase(0, area.size());
	return area;
}

std::string AreaCodeTablePlan::findAreaCode(const std::string& digits)
{
	return m_AreaCodeTree->extractAreaCode(digits);
}

bool AreaCodeTablePlan::translates() const
{
	return m_Translate;
}

std::string::size_type AreaCodeTablePlan::longestAreaCode() const
{
	return static_cast<std::string::size_type>(m_MaxAreaCodeLength);
}

Logger* AreaCodeTablePlan::planLogger() const
{
	return m_Logger;
}

} // namespace numbering
