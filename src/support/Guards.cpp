// Guards.cpp

#include "support/Guards.h"

#include "numbering/ZelCountryRuleItem.h"
#include "numbering/ZelDialRulesItem.h"
#include "numbering/ZelNumberingConfig.h"
#include "numbering/ZelUnsupportedCountryException.h"

#include "dialable/ZelDialableManager.h"

#include "Poco/Exception.h"

#include <exception>
#include <stdexcept>

namespace numbering {
namespace detail {

void checkSite(ZelDialRulesItem* item)
{
	if (item == nullptr) throw std::invalid_argument("'myZelDialRulesItem' parameter can not be null");
}

void checkArguments(ZelDialRulesItem* item, const std::string& number)
{
	checkSite(item);
	if (number.empty()) throw std::invalid_argument("'strPhoneNumber' parameter can not be null");
}

std::string errorLine(const std::string& operation, const std::string& context)
{
	std::string line = "ZelNumberingRules::" + operation + " exception: ";
	try
	{
		throw;
	}
	catch (const std::exception& exception)
	{
		line += exception.what();
	}
	catch (...)
	{
		line += "...";
	}
	return line + context;
}

std::string describe(ZelDialRulesItem* item)
{
	return item == nullptr ? std::string() : item->ToString();
}

ZelCountryRuleItem* requireCountryRule(ZelNumberingConfig* config, const std::string& countryCode)
{
	ZelCountryRuleItem* rule = config->getCountryRule(countryCode);
	if (rule == nullptr) throw ZelUnsupportedCountryException(countryCode);
	return rule;
}

ZelDialable* requireDialable(const std::string& countryNumber)
{
	ZelDialable* dialable = ZelDialableManager::getInstance()->getDialable(countryNumber);
	if (dialable == nullptr)
		throw Poco::NullPointerException("no dialable maker for country number '" + countryNumber + "'");
	return dialable;
}

} // namespace detail
} // namespace numbering
