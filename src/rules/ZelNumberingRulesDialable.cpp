// ZelNumberingRulesDialable.cpp

#include "numbering/ZelNumberingRules.h"

#include "dialable/ZelDialable.h"
#include "support/CanonicalNumber.h"
#include "support/Guards.h"
#include "support/Text.h"
#include "support/Trace.h"

#include "Poco/String.h"

#include <algorithm>

namespace numbering {

namespace {

/// Whether makePhoneNumber only cleans a number: a "+" number never, any other one when it holds a keypad
/// character.
bool containsSpecialCharacter(const std::string& number, Logger* logger)
{
	const bool found = !detail::isCanonical(number) &&
					   number.find_first_of(ZelNumberingRules::TELEPHONENUMBER_SPECIAL_CHARACTER) != std::string::npos;
	NUMBERING_TRACE(logger, std::string("containsSpecialCharacter : ") + (found ? "true" : "false"));
	return found;
}

/// The dialable form of number when it is converted, else its digits and keypad characters: a number without "+"
/// is converted when convertDialled is set and it holds no keypad character.
std::string dialable(
	ZelNumberingRules& rules, Logger* logger, ZelDialRulesItem* item, const std::string& number, bool convertDialled)
{
	const bool clean = convertDialled ? containsSpecialCharacter(number, logger) : !detail::isCanonical(number);
	if (clean) return rules.checkPhoneNumber(number);
	std::string canonical = rules.makeCanonicalNumber(item, number, "", false);
	return canonical.empty() ? std::string() : rules.makeDialableNumber(item, std::move(canonical));
}

/// The rest of addExternalPrefix and makePhoneNumber once the number is checked: the dialable form of number
/// with the site's external prefix where it is wanted. number is left as the error line must quote it.
std::string dialWithExternalPrefix(
	ZelNumberingRules& rules, Logger* logger, ZelDialRulesItem* item, std::string& number, bool convertDialled)
{
	const std::string extPrefix = item->getExtPrefix();
	bool alreadyPrefixed = false;
	if (!extPrefix.empty())
	{
		alreadyPrefixed = Poco::startsWith(number, extPrefix) || detail::isCanonical(number);
	}
	else
	{
		Poco::trimInPlace(number);
		if (!detail::isCanonical(number)) return rules.checkPhoneNumber(number);
	}
	const std::string digits = dialable(rules, logger, item, number, convertDialled);
	if (digits.empty()) return "";
	// A number that came with the prefix, or in "+" form, is dialled with it even where it is not needed.
	if (rules.isPrefixNeeded(item, digits) || (alreadyPrefixed && !Poco::startsWith(digits, extPrefix)))
		return extPrefix + digits;
	return digits;
}

/// addExternalPrefix (convertDialled false) and makePhoneNumber (true, which also trims number) with their
/// checks: a marked number comes back as it is, and any failure gives its error line and "".
std::string dialGuarded(ZelNumberingRules& rules,
	Logger* logger,
	const char* operation,
	ZelDialRulesItem* item,
	std::string& number,
	bool convertDialled)
{
	try
	{
		detail::checkArguments(item, number);
		if (detail::isMarked(number)) return number;
		NUMBERING_TRACE(logger, std::string(operation) + " with : " + number);
		if (convertDialled) detail::trimNumber(number);
		return dialWithExternalPrefix(rules, logger, item, number, convertDialled);
	}
	catch (...)
	{
		const std::string context = " - PhoneNumber: '" + number + "'" + "\n  DialRules: " + detail::describe(item);
		logger->error(detail::errorLine(operation, context));
	}
	return "";
}

/// The first of the site's area codes, or "".
std::string firstAreaCode(ZelDialRulesItem* item)
{
	const std::vector<std::string> areaCodes = item->getAreaCodesList();
	return areaCodes.empty() ? "" : areaCodes.front();
}

} // namespace

std::string ZelNumberingRules::makeDialableNumber(ZelDialRulesItem* item, std::string canonicalNumber)
{
	// Hosts may call this unguarded operation directly: a missing site is reported, not dereferenced.
	detail::checkSite(item);
	const std::string countryId = item->getCountryId();
	NUMBERING_TRACE(
		logger, "makeDialableNumber('" + countryId + "', '" + firstAreaCode(item) + "', '" + canonicalNumber + "')");
	ZelCountryRuleItem* rule = config->getCountryRule(countryId);
	if (rule == nullptr)
	{
		NUMBERING_TRACE(logger, "ZelNumberingRules:makePhoneNumber no rules defined for this country : " + countryId);
		return canonicalNumber;
	}
	// A blank in place of the "+" still marks a canonical number; at() reports an empty one.
	const char first = canonicalNumber.at(0);
	if (first != '+' && first != ' ') return canonicalNumber;
	const std::string::size_type bound = ZelNumberingConfig::MAX_PHONE_NUMBER_LENGTH;
	const detail::CanonicalNumber parts = detail::CanonicalNumber::forDialling(canonicalNumber, bound);
	std::string country = parts.country();
	std::string area = parts.area();
	std::string subscriber = parts.restDigits();
	NUMBERING_TRACE(
		logger, "Country : '" + country + "', Area/Nat Pfx : '" + area + "', Number : '" + subscriber + "'");
	const std::string siteCountryNumber = rule->getCountryNumber();
	ZelDialable* dialable = detail::requireDialable(siteCountryNumber);
	// A number as long as the bound or longer was cut off, and a cut number must not be dialled.
	if (canonicalNumber.size() >= bound || subscriber.empty()) return "";
	if (country != siteCountryNumber)
	{
		NUMBERING_TRACE(logger, "ZelNumberingRules : makePhoneNumber International");
		// The site's own rule: the call leaves from its network, with its international prefix.
		return dialable->makeInternationalDialableNumber(country, area, subscriber, rule);
	}
	const std::vector<std::string> areaCodes = item->getAreaCodesList();
	if (std::find(areaCodes.begin(), areaCodes.end(), area) != areaCodes.end())
	{
		NUMBERING_TRACE(logger, "ZelNumberingRules : makePhoneNumber local with area code");
		return dialable->makeLocalDialableNumber(area, subscriber, rule);
	}
	NUMBERING_TRACE(logger, "ZelNumberingRules : makePhoneNumber Long Distance");
	return dialable->makeLongDistDialableNumber(area, subscriber, rule, item);
}

std::string ZelNumberingRules::addExternalPrefix(ZelDialRulesItem* item, std::string number)
{
	return dialGuarded(*this, logger, "addExternalPrefix", item, number, false);
}

std::string ZelNumberingRules::makePhoneNumber(ZelDialRulesItem* item, std::string number)
{
	return dialGuarded(*this, logger, "makePhoneNumber", item, number, true);
}

} // namespace numbering
