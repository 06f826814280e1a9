// ZelRulesSupport.cpp

#include "rules/ZelRulesSupport.h"

#include "numbering/ZelUnsupportedCountryException.h"

#include "dialable/ZelDialableManager.h"

#include "Poco/Ascii.h"
#include "Poco/Exception.h"
#include "Poco/String.h"

#include <exception>
#include <stdexcept>

namespace numbering {

namespace {

/// The marker of numbers that the conversions hand back untouched.
const std::string MARKER = "***";

/// Index of the first character from from on that Poco::trim would not remove, or the size of text.
std::string::size_type skipSpaces(const std::string& text, std::string::size_type from)
{
	while (from < text.size() && Poco::Ascii::isSpace(text[from]))
	{
		++from;
	}
	return from;
}

} // namespace

bool ZelRulesSupport::isCanonical(const std::string& number)
{
	return !number.empty() && number[0] == '+';
}

bool ZelRulesSupport::isMarked(const std::string& number)
{
	for (std::string::size_type star = number.find('*'); star != std::string::npos; star = number.find('*', star + 1))
	{
		if (number.compare(star, MARKER.size(), MARKER) == 0)
		{
			return true;
		}
	}
	return false;
}

void ZelRulesSupport::trimNumber(std::string& number)
{
	Poco::trimInPlace(number);
	if (isCanonical(number))
	{
		number.erase(1, skipSpaces(number, 1) - 1);
	}
}

void ZelRulesSupport::checkArguments(ZelDialRulesItem* item, const std::string& number)
{
	if (item == nullptr)
	{
		throw std::invalid_argument("'myZelDialRulesItem' parameter can not be null");
	}
	if (number.empty())
	{
		throw std::invalid_argument("'strPhoneNumber' parameter can not be null");
	}
}

std::string ZelRulesSupport::errorLine(const std::string& operation, const std::string& context)
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

std::string ZelRulesSupport::describe(ZelDialRulesItem* item)
{
	return item == nullptr ? std::string() : item->ToString();
}

ZelCountryRuleItem* ZelRulesSupport::requireCountryRule(ZelNumberingConfig* config, const std::string& countryCode)
{
	ZelCountryRuleItem* rule = config->getCountryRule(countryCode);
	if (rule == nullptr)
	{
		throw ZelUnsupportedCountryException(countryCode);
	}
	return rule;
}

ZelDialable* ZelRulesSupport::requireDialable(const std::string& countryNumber)
{
	ZelDialable* dialable = ZelDialableManager::getInstance()->getDialable(countryNumber);
	if (dialable == nullptr)
	{
		throw Poco::NullPointerException("no dialable maker for country number '" + countryNumber + "'");
	}
	return dialable;
}

} // namespace numbering
