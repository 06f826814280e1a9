// ZelNumberingRulesDialable.cpp

#include "numbering/ZelNumberingRules.h"

#include "rules/ZelRulesSupport.h"
#include "support/Text.h"

#include "Poco/String.h"

#include <algorithm>
#include <stdexcept>

namespace numbering {

namespace {

/// The parts of a canonical number as makeDialableNumber reads them, never looking beyond
/// MAX_PHONE_NUMBER_LENGTH characters.
class CanonicalParts
{
public:
	explicit CanonicalParts(const std::string& canonical)
	{
		const std::string::size_type bound = ZelNumberingConfig::MAX_PHONE_NUMBER_LENGTH;
		const std::string::size_type end = std::min(canonical.size(), bound);
		std::string::size_type pos = detail::skipNonDigits(canonical, 1, end);
		pos = collectRun(canonical, pos, end, country);
		if (canonical.find('(') != std::string::npos && canonical.find(')') != std::string::npos)
		{
			pos = collectRun(canonical, pos, end, area);
		}
		subscriber = detail::digitsOf(canonical, pos, end);
		// A number as long as the bound or longer was cut off, and a cut number must not be dialled.
		complete = canonical.size() < bound;
	}

	std::string country;
	std::string area;
	std::string subscriber;
	bool complete = false;

private:
	/// Copies the run of digits at pos into digits and returns the index of the next digit after the
	/// separators that follow the run.
	static std::string::size_type collectRun(
		const std::string& text, std::string::size_type pos, std::string::size_type end, std::string& digits)
	{
		const std::string::size_type runEnd = detail::skipDigits(text, pos, end);
		digits.assign(text, pos, runEnd - pos);
		return detail::skipNonDigits(text, runEnd, end);
	}
};

bool isOneOf(const std::string& text, const std::vector<std::string>& list)
{
	return std::find(list.begin(), list.end(), text) != list.end();
}

/// Whether makePhoneNumber only cleans a number: a "+" number never, any other one when it holds a keypad
/// character.
bool containsSpecialCharacter(const std::string& number, Logger* logger)
{
	const bool found = !ZelRulesSupport::isCanonical(number) &&
					   number.find_first_of(ZelNumberingRules::TELEPHONENUMBER_SPECIAL_CHARACTER) != std::string::npos;
	if (Logger::m_Traces)
	{
		logger->debug(std::string("containsSpecialCharacter : ") + (found ? "true" : "false"));
	}
	return found;
}

/// The rest of addExternalPrefix and makePhoneNumber once the number is checked: the dialable form of number
/// with the site's external prefix where it is wanted. A number without "+" is converted when convertDialled
/// is set and it holds no keypad character, else only cleaned. number is left as the error line must quote it.
std::string dialWithExternalPrefix(
	ZelNumberingRules& rules, Logger* logger, ZelDialRulesItem* item, std::string& number, bool convertDialled)
{
	const std::string extPrefix = item->getExtPrefix();
	bool alreadyPrefixed = false;
	if (!extPrefix.empty())
	{
		alreadyPrefixed = Poco::startsWith(number, extPrefix) || ZelRulesSupport::isCanonical(number);
	}
	else
	{
		Poco::trimInPlace(number);
		if (!ZelRulesSupport::isCanonical(number))
		{
			return rules.checkPhoneNumber(number);
		}
	}
	const bool clean =
		convertDialled ? containsSpecialCharacter(number, logger) : !ZelRulesSupport::isCanonical(number);
	std::string dialable;
	if (clean)
	{
		dialable = rules.checkPhoneNumber(number);
	}
	else
	{
		std::string canonical = rules.makeCanonicalNumber(item, number, "", false);
		if (!canonical.empty())
		{
			dialable = rules.makeDialableNumber(item, std::move(canonical));
		}
	}
	if (dialable.empty())
	{
		return "";
	}
	// A number that came with the prefix, or in "+" form, is dialled with it even where it is not needed.
	if (rules.isPrefixNeeded(item, dialable) || (alreadyPrefixed && !Poco::startsWith(dialable, extPrefix)))
	{
		return extPrefix + dialable;
	}
	return dialable;
}

std::string dialContext(const std::string& number, ZelDialRulesItem* item)
{
	return " - PhoneNumber: '" + number + "'" + "\n  DialRules: " + ZelRulesSupport::describe(item);
}

} // namespace

std::string ZelNumberingRules::makeDialableNumber(ZelDialRulesItem* item, std::string canonicalNumber)
{
	// Hosts may call this unguarded operation directly: a missing site is reported, not dereferenced.
	if (item == nullptr)
	{
		throw std::invalid_argument("'myZelDialRulesItem' parameter can not be null");
	}
	const std::string countryId = item->getCountryId();
	if (Logger::m_Traces)
	{
		const std::vector<std::string> areaCodes = item->getAreaCodesList();
		logger->debug("makeDialableNumber('" + countryId + "', '" + (areaCodes.empty() ? "" : areaCodes.front()) +
					  "', '" + canonicalNumber + "')");
	}
	ZelCountryRuleItem* rule = config->getCountryRule(countryId);
	if (rule == nullptr)
	{
		if (Logger::m_Traces)
		{
			logger->debug("ZelNumberingRules:makePhoneNumber no rules defined for this country : " + countryId);
		}
		return canonicalNumber;
	}
	// A blank in place of the "+" still marks a canonical number; at() reports an empty one.
	const char first = canonicalNumber.at(0);
	if (first != '+' && first != ' ')
	{
		return canonicalNumber;
	}
	CanonicalParts parts(canonicalNumber);
	if (Logger::m_Traces)
	{
		logger->debug("Country : '" + parts.country + "', Area/Nat Pfx : '" + parts.area + "', Number : '" +
					  parts.subscriber + "'");
	}
	const std::string siteCountryNumber = rule->getCountryNumber();
	ZelDialable* dialable = ZelRulesSupport::requireDialable(siteCountryNumber);
	if (!parts.complete || parts.subscriber.empty())
	{
		return "";
	}
	if (parts.country != siteCountryNumber)
	{
		if (Logger::m_Traces)
		{
			logger->debug("ZelNumberingRules : makePhoneNumber International");
		}
		// The site's own rule: the call leaves from its network, with its international prefix.
		return dialable->makeInternationalDialableNumber(parts.country, parts.area, parts.subscriber, rule);
	}
	if (isOneOf(parts.area, item->getAreaCodesList()))
	{
		if (Logger::m_Traces)
		{
			logger->debug("ZelNumberingRules : makePhoneNumber local with area code");
		}
		return dialable->makeLocalDialableNumber(parts.area, parts.subscriber, rule);
	}
	if (Logger::m_Traces)
	{
		logger->debug("ZelNumberingRules : makePhoneNumber Long Distance");
	}
	return dialable->makeLongDistDialableNumber(parts.area, parts.subscriber, rule, item);
}

std::string ZelNumberingRules::addExternalPrefix(ZelDialRulesItem* item, std::string number)
{
	try
	{
		ZelRulesSupport::checkArguments(item, number);
		if (ZelRulesSupport::isMarked(number))
		{
			return number;
		}
		if (Logger::m_Traces)
		{
			logger->debug("addExternalPrefix with : " + number);
		}
		return dialWithExternalPrefix(*this, logger, item, number, false);
	}
	catch (...)
	{
		logger->error(ZelRulesSupport::errorLine("addExternalPrefix", dialContext(number, item)));
	}
	return "";
}

std::string ZelNumberingRules::makePhoneNumber(ZelDialRulesItem* item, std::string number)
{
	try
	{
		ZelRulesSupport::checkArguments(item, number);
		if (ZelRulesSupport::isMarked(number))
		{
			return number;
		}
		if (Logger::m_Traces)
		{
			logger->debug("makePhoneNumber with : " + number);
		}
		ZelRulesSupport::trimNumber(number);
		return dialWithExternalPrefix(*this, logger, item, number, true);
	}
	catch (...)
	{
		logger->error(ZelRulesSupport::errorLine("makePhoneNumber", dialContext(number, item)));
	}
	return "";
}

} // namespace numbering
