// ZelNumberingRulesFormatting.cpp

#include "numbering/ZelNumberingRules.h"

#include "support/CanonicalNumber.h"
#include "support/Guards.h"
#include "support/Text.h"
#include "support/Trace.h"

#include "Poco/String.h"

namespace numbering {

using detail::CanonicalNumber;

namespace {

const std::string::size_type LAYOUT_CAPACITY = 300;

/// Only a number with both parentheses is laid out; any other is logged and left alone.
bool canLayOut(Logger* logger, const std::string& canonical, const CanonicalNumber& parts)
{
	if (parts.hasBrackets()) return true;
	NUMBERING_TRACE(logger, "Can't apply pattern to number : '" + canonical + "'");
	return false;
}

/// False when the area is only the country's trunk prefix, as in "(0)", or when a known country has no rule.
bool showsArea(ZelNumberingConfig* config, const std::string& country, const std::string& area)
{
	const std::string countryCode = config->getCountryCodeFromNumber(country);
	if (countryCode.empty()) return true;
	ZelCountryRuleItem* rule = config->getCountryRule(countryCode);
	return rule && area != rule->getLongDistPrefix();
}

/// "C" country, "A" area, "a" area unless it is the trunk prefix, "x" one subscriber character (a blank is
/// used up but not printed); other characters are copied. Subscriber characters left over follow at the end.
std::string layOut(
	ZelNumberingConfig* config, const std::string& canonical, const CanonicalNumber& parts, const std::string& pattern)
{
	parts.requireParts();
	const std::string country = parts.country();
	const std::string area = parts.area();
	std::string::size_type rest = parts.restBegin();
	std::string result;
	result.reserve(LAYOUT_CAPACITY);
	for (char letter : pattern)
	{
		switch (letter)
		{
		case 'C':
			result += country;
			break;
		case 'A':
			result += area;
			break;
		case 'a':
			if (!area.empty() && showsArea(config, country, area)) result += area;
			break;
		case 'x':
			if (rest < canonical.size())
			{
				if (canonical[rest] != ' ') result += canonical[rest];
				++rest;
			}
			break;
		default:
			result += letter;
		}
	}
	if (rest < canonical.size()) result.append(canonical, rest, std::string::npos);
	return result;
}

/// Drops prefix from the front of text when text begins with it.
void removePrefix(std::string& text, const std::string& prefix)
{
	if (Poco::startsWith(text, prefix)) text.erase(0, prefix.size());
}

} // namespace

std::string ZelNumberingRules::generateDefaultCanonicalNumber(
	std::string number, std::string countryCode, std::string areaCode)
{
	NUMBERING_TRACE(
		logger, "generateDefaultCanonicalNumber('" + number + "', '" + countryCode + "', '" + areaCode + "')");
	std::string result;
	// The country's one record answers for the code's validity, its prefixes and its number.
	ZelCountryRuleItem* rule = number.empty() || countryCode.empty() ? nullptr : config->getCountryRule(countryCode);
	if (rule != nullptr)
	{
		const std::string trunk = rule->getLongDistPrefix();
		// A country that dials no area code on long-distance calls shows none.
		if (rule->getLongDistRule().find('F') == std::string::npos) areaCode.clear();
		if (!trunk.empty())
		{
			removePrefix(number, trunk);
			if (!areaCode.empty()) removePrefix(areaCode, trunk);
		}
		// Without an area the trunk prefix stands in the parentheses, as in "+44 (0) 20...".
		if (!areaCode.empty())
			removePrefix(number, areaCode);
		else
			areaCode = trunk;
		const std::string country = "+" + rule->getCountryNumber();
		result = areaCode.empty() ? country + " " + number : country + " (" + areaCode + ") " + number;
	}
	NUMBERING_TRACE(logger, "generateDefaultCanonicalNumber result : '" + result + "'");
	return result;
}

std::string ZelNumberingRules::formatCanonicalNumber(std::string canonicalNumber, std::string pattern)
{
	NUMBERING_TRACE(logger, "formatCanonicalNumber('" + canonicalNumber + "', '" + pattern + "')");
	const CanonicalNumber parts = CanonicalNumber::forPattern(canonicalNumber);
	if (!canLayOut(logger, canonicalNumber, parts)) return canonicalNumber;
	try
	{
		if (pattern.empty())
		{
			pattern = config->getDefaultPattern(parts.countryBeforeBrackets());
			if (pattern.empty()) return canonicalNumber;
		}
		return layOut(config, canonicalNumber, parts, pattern);
	}
	catch (...)
	{
		logger->error(detail::errorLine("formatCanonicalNumber",
			" - strCanPhoneNumberFinal: '" + canonicalNumber + "', strPattern: '" + pattern + "'"));
		return canonicalNumber;
	}
}

std::string ZelNumberingRules::formatToGSMCanonicalNumber(std::string canonicalNumber)
{
	NUMBERING_TRACE(logger, "formatToGSMCanonicalNumber('" + canonicalNumber + "'");
	const CanonicalNumber parts = CanonicalNumber::forPattern(canonicalNumber);
	if (!canLayOut(logger, canonicalNumber, parts)) return canonicalNumber;
	// Service codes marked "***" pass through as they are.
	if (detail::isMarked(canonicalNumber)) return canonicalNumber;
	try
	{
		parts.requireParts();
		const std::string country = parts.country();
		std::string area = parts.area();
		ZelNumberingConfig* configuration = ZelNumberingConfig::getInstance();
		ZelCountryRuleItem* rule = configuration->getCountryRule(configuration->getCountryCodeFromNumber(country));
		if (rule && rule->getLongDistPrefix() == area) area.clear();
		return "+" + country + area + canonicalNumber.substr(parts.restBegin());
	}
	catch (...)
	{
		logger->error(
			detail::errorLine("formatToGSMCanonicalNumber", " - strCanPhoneNumber: '" + canonicalNumber + "'"));
		return canonicalNumber;
	}
}

std::string ZelNumberingRules::makeGSMCanonicalNumber(ZelDialRulesItem* item, std::string number, bool withExtPrefix)
{
	const std::string canonical = makeCanonicalNumber(item, number, "", withExtPrefix);
	if (detail::isCanonical(canonical)) return formatToGSMCanonicalNumber(canonical);
	return canonical;
}

} // namespace numbering
