// ZelNumberingRulesFormatting.cpp

#include "numbering/ZelNumberingRules.h"

#include "rules/ZelRulesSupport.h"

#include "Poco/String.h"

namespace numbering {

namespace {

const std::string::size_type COUNTRY_CAPACITY = 5;

const std::string::size_type AREA_CAPACITY = 10;

const std::string::size_type LAYOUT_CAPACITY = 300;

/// A canonical number "+C (A) subscriber" as the layout operations read it.
struct CanonicalParts
{
	std::string country;
	std::string area;
	std::string::size_type subscriber;
};

/// Where the first "(" and the first ")" of a canonical number stand, looked up once for the whole layout.
struct Brackets
{
	explicit Brackets(const std::string& canonical):
		open(canonical.find('(')),
		close(canonical.find(')'))
	{
	}

	std::string::size_type open;
	std::string::size_type close;
};

/// Only a number with both parentheses is laid out; any other is logged and left alone.
bool canLayOut(Logger* logger, const std::string& canonical, const Brackets& brackets)
{
	if (brackets.open != std::string::npos && brackets.close != std::string::npos) return true;
	if (Logger::m_Traces) logger->debug("Can't apply pattern to number : '" + canonical + "'");
	return false;
}

/// The characters from index from up to stop; running off the end raises std::out_of_range.
std::string collectUntil(const std::string& canonical, std::string::size_type from, char stop, std::size_t capacity)
{
	std::string::size_type end = from;
	while (end < canonical.size() && canonical[end] != stop)
		++end;
	// Without stop the scan runs off the end: the same exception, with the same text, as reading there.
	if (end >= canonical.size()) static_cast<void>(canonical.at(end));
	std::string part(canonical.data() + from, end - from);
	if (part.capacity() < capacity) part.reserve(capacity);
	return part;
}

/// The country up to the first blank, the area inside the parentheses, and the subscriber part's start two
/// characters after the first ")"; that start may lie beyond the end.
CanonicalParts readParts(const std::string& canonical, const Brackets& brackets)
{
	return CanonicalParts{collectUntil(canonical, 1, ' ', COUNTRY_CAPACITY),
		collectUntil(canonical, brackets.open + 1, ')', AREA_CAPACITY), brackets.close + 2};
}

/// False when the area is only the country's trunk prefix, as in "(0)", or when a known country has no rule.
bool showsArea(ZelNumberingConfig* config, const CanonicalParts& parts)
{
	const std::string countryCode = config->getCountryCodeFromNumber(parts.country);
	if (countryCode.empty()) return true;
	ZelCountryRuleItem* rule = config->getCountryRule(countryCode);
	return rule && parts.area != rule->getLongDistPrefix();
}

/// "C" country, "A" area, "a" area unless it is the trunk prefix, "x" one subscriber character (a blank is
/// used up but not printed); other characters are copied. Subscriber characters left over follow at the end.
std::string layOut(
	ZelNumberingConfig* config, const std::string& canonical, const Brackets& brackets, const std::string& pattern)
{
	const CanonicalParts parts = readParts(canonical, brackets);
	std::string::size_type rest = parts.subscriber;
	std::string result;
	result.reserve(LAYOUT_CAPACITY);
	for (char letter : pattern)
	{
		switch (letter)
		{
		case 'C':
			result += parts.country;
			break;
		case 'A':
			result += parts.area;
			break;
		case 'a':
			if (!parts.area.empty() && showsArea(config, parts)) result += parts.area;
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
	if (Logger::m_Traces)
	{
		logger->debug("generateDefaultCanonicalNumber('" + number + "', '" + countryCode + "', '" + areaCode + "')");
	}
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
	if (Logger::m_Traces) logger->debug("generateDefaultCanonicalNumber result : '" + result + "'");
	return result;
}

std::string ZelNumberingRules::formatCanonicalNumber(std::string canonicalNumber, std::string pattern)
{
	if (Logger::m_Traces) logger->debug("formatCanonicalNumber('" + canonicalNumber + "', '" + pattern + "')");
	const Brackets brackets(canonicalNumber);
	if (!canLayOut(logger, canonicalNumber, brackets)) return canonicalNumber;
	try
	{
		if (pattern.empty())
		{
			std::string country = canonicalNumber.substr(1, brackets.open - 1);
			Poco::trimInPlace(country);
			pattern = config->getDefaultPattern(std::move(country));
			if (pattern.empty()) return canonicalNumber;
		}
		return layOut(config, canonicalNumber, brackets, pattern);
	}
	catch (...)
	{
		logger->error(ZelRulesSupport::errorLine("formatCanonicalNumber",
			" - strCanPhoneNumberFinal: '" + canonicalNumber + "', strPattern: '" + pattern + "'"));
		return canonicalNumber;
	}
}

std::string ZelNumberingRules::formatToGSMCanonicalNumber(std::string canonicalNumber)
{
	if (Logger::m_Traces) logger->debug("formatToGSMCanonicalNumber('" + canonicalNumber + "'");
	const Brackets brackets(canonicalNumber);
	if (!canLayOut(logger, canonicalNumber, brackets)) return canonicalNumber;
	// Service codes marked "***" pass through as they are.
	if (canonicalNumber.find("***") != std::string::npos) return canonicalNumber;
	try
	{
		CanonicalParts parts = readParts(canonicalNumber, brackets);
		ZelNumberingConfig* configuration = ZelNumberingConfig::getInstance();
		ZelCountryRuleItem* rule =
			configuration->getCountryRule(configuration->getCountryCodeFromNumber(parts.country));
		if (rule && rule->getLongDistPrefix() == parts.area) parts.area.clear();
		return "+" + parts.country + parts.area + canonicalNumber.substr(parts.subscriber);
	}
	catch (...)
	{
		logger->error(ZelRulesSupport::errorLine(
			"formatToGSMCanonicalNumber", " - strCanPhoneNumber: '" + canonicalNumber + "'"));
		return canonicalNumber;
	}
}

std::string ZelNumberingRules::makeGSMCanonicalNumber(ZelDialRulesItem* item, std::string number, bool withExtPrefix)
{
	const std::string canonical = makeCanonicalNumber(item, number, "", withExtPrefix);
	if (!canonical.empty() && canonical[0] == '+') return formatToGSMCanonicalNumber(canonical);
	return canonical;
}

} // namespace numbering
