// ZelDialable_57.cpp

#include "dialable/ZelDialable_57.h"

#include "support/PropertyFile.h"
#include "support/Text.h"
#include "support/Trace.h"

#include <typeinfo>

namespace numbering {

const std::string ZelDialable_57::MOBILE_PREFIX = "3";
const std::string ZelDialable_57::OP_DEFAULT_KEY = "OP_DEFAULT";
const std::string ZelDialable_57::DEFAULT_OP_PREFIX = "9";

Logger* ZelDialable_57::logger = Logger::getLogger(typeid(ZelDialable_57).name());

ZelDialable_57::ZelDialable_57():
	m_OperatorCode(DEFAULT_OP_PREFIX)
{
	NUMBERING_TRACE(logger, "ZelDialable_57()");
	m_OperatorTree = new ZelAreaCodeTree();
	m_Config = ZelNumberingConfig::getInstance();
	loadOperators();
}

void ZelDialable_57::loadOperators()
{
	// The directory is read now rather than at load time, since a host may choose it after start-up.
	const std::string directory = ZelNumberingConfig::getConfigDirectory();
	try
	{
		const auto plan =
			detail::openPropertyFile(directory + "r7731cnp_57.properties", directory + "r7731cnp_57_default.properties",
				logger, "No specific configuration file for Colombia", "No specific dialing rules configuration file");
		m_OperatorCode = plan->getString(OP_DEFAULT_KEY, m_OperatorCode);
		// The first missing key throws and ends the list, so a gap hides every prefix after it; so does a value
		// without digits, which the tree refuses.
		detail::forEachNumberedValue(
			*plan, "OP_", [this](const std::string& value) { m_OperatorTree->insert(detail::digitsOf(value)); });
	}
	catch (const std::exception& e)
	{
		NUMBERING_TRACE(logger, "ZelDialable_57 : " + std::string(e.what()));
	}
}

std::string ZelDialable_57::extractOperatorPrefix(std::string number)
{
	// AutoPtr's operator-> throws Poco::NullPointerException for a maker without a tree.
	std::string found = m_OperatorTree->extractAreaCode(number);
	if (found.empty()) return found;
	NUMBERING_TRACE(logger, found == number ? "'" + number + "' is an Colombian operator prefix"
											: "'" + number + "' isn't an Colombian operator prefix, but begins with '" +
												  found + "' which is an Colombian operator prefix");
	return found;
}

std::string ZelDialable_57::makeLongDistDialableNumber(
	std::string& areaNatPfx, std::string& dest, ZelCountryRuleItem* rule, ZelDialRulesItem*)
{
	std::string result = areaAndDest(areaNatPfx, dest);
	const bool mobile = result.at(0) == MOBILE_PREFIX[0];
	result.insert(0, mobile ? MOBILE_PREFIX : m_OperatorCode);
	result.insert(0, rule->getLongDistPrefix());
	return result;
}

std::string ZelDialable_57::makeInternationalDialableNumber(
	std::string& countryNumber, std::string& areaNatPfx, std::string& dest, ZelCountryRuleItem* rule)
{
	// Colombian exchanges take the subscriber number here where other countries take the country number; both
	// it and the one appended last are dialled.
	return internationalNumber(m_Config, m_OperatorCode, dest, countryNumber, areaNatPfx, dest, rule);
}

} // namespace numbering
