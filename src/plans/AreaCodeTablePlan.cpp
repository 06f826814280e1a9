// AreaCodeTablePlan.cpp

#include "plans/AreaCodeTablePlan.h"

#include "numbering/ZelNumberingConfig.h"

#include "config/ZelPropertyFile.h"
#include "support/Trace.h"

#include "Poco/Exception.h"
#include "Poco/Util/PropertyFileConfiguration.h"

#include <exception>

namespace numbering {

namespace {

/// Highest index of an "AC_%04d" key.
const int LAST_AREA_CODE_INDEX = 9998;

/// Writes index into the four digits that end key: "AC_0000" becomes "AC_0042" for 42. Thousands of keys are
/// read per table, and rewriting four characters costs a fraction of formatting each key anew.
void setKeyIndex(std::string& key, int index)
{
	const std::string::size_type digits = 4;
	for (std::string::size_type i = key.size(); i-- > key.size() - digits; index /= 10)
		key[i] = static_cast<char>('0' + index % 10);
}

std::string digitsOf(const std::string& value)
{
	std::string digits;
	for (char c : value)
	{
		if (c >= '0' && c <= '9') digits += c;
	}
	return digits;
}

/// The property file at path, or null when it cannot be opened. Other failures are thrown.
Poco::AutoPtr<Poco::Util::PropertyFileConfiguration> openTable(const std::string& path)
{
	try
	{
		return ZelPropertyFile::open(path);
	}
	catch (const Poco::FileNotFoundException&)
	{
	}
	catch (const Poco::OpenFileException&)
	{
	}
	return nullptr;
}

} // namespace

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
	if (Logger::m_Traces) m_Logger->debug(className + "()");
	m_AreaCodeTree = new ZelAreaCodeTree;
	try
	{
		const std::string base = ZelNumberingConfig::getConfigDirectory() + "r7731cnp_" + callingCode;
		Poco::AutoPtr<Poco::Util::PropertyFileConfiguration> table = openTable(base + ".properties");
		if (table.isNull())
		{
			if (!noCountryFileText.empty()) m_Logger->info(noCountryFileText);
			table = openTable(base + "_default.properties");
		}
		if (table.isNull())
			m_Logger->info(noDefaultFileText);
		else
			readTable(*table);
	}
	catch (const std::exception& e)
	{
		m_Logger->info(className + " : " + e.what());
	}
	if (Logger::m_Traces)
	{
		m_Logger->debug(className + " : " + " max length areacode : " + std::to_string(m_MaxAreaCodeLength) +
						" nb area code : " + std::to_string(m_AreaCodeCount));
	}
}

AreaCodeTablePlan::~AreaCodeTablePlan() = default;

void AreaCodeTablePlan::readTable(const Poco::Util::AbstractConfiguration& table)
{
	if (table.has("Translate")) m_Translate = table.getString("Translate") == "1";
	std::string key = "AC_0000";
	for (int index = 0; index <= LAST_AREA_CODE_INDEX; ++index)
	{
		setKeyIndex(key, index);
		std::string value;
		try
		{
			value = table.getString(key);
		}
		catch (const Poco::NotFoundException&)
		{
			// The first missing key ends the table; asking has() first would search every key twice.
			break;
		}
		const std::string areaCode = digitsOf(value);
		// An entry without any digit is skipped; the entries after it are still read.
		if (areaCode.empty()) continue;
		if (static_cast<int>(areaCode.size()) > m_MaxAreaCodeLength)
			m_MaxAreaCodeLength = static_cast<int>(areaCode.size());
		m_AreaCodeTree->insert(areaCode);
		++m_AreaCodeCount;
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
