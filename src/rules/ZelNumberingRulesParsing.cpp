// ZelNumberingRulesParsing.cpp

#include "numbering/ZelNumberingRules.h"

#include "rules/ZelRulesSupport.h"

#include "Poco/String.h"

namespace numbering {

namespace {

/// Characters that the layout "+C (A) rest" may add to a trimmed number.
const std::string::size_type VALID_LAYOUT_EXTRA = 4;

} // namespace

std::string ZelNumberingRules::validNumber(std::string number)
{
	const bool traces = Logger::m_Traces;
	// The argument is a copy already: it becomes the result unless the trace line still has to quote it.
	std::string result = traces ? number : std::move(number);
	Poco::trimInPlace(result);
	if (result.size() >= 2 && result[0] == '+')
	{
		const std::string::size_type end = result.size();
		const std::string::size_type countryEnd = ZelRulesSupport::skipDigits(result, 1, end);
		const std::string::size_type areaBegin = ZelRulesSupport::skipNonDigits(result, countryEnd, end);
		const std::string::size_type areaEnd = ZelRulesSupport::skipDigits(result, areaBegin, end);
		const std::string::size_type restBegin = ZelRulesSupport::skipNonDigits(result, areaEnd, end);
		std::string built;
		built.reserve(end + VALID_LAYOUT_EXTRA);
		built.append(result, 0, countryEnd);
		// Without digits after the area run there is no subscriber part to set the area apart from.
		if (areaBegin < end && restBegin < end)
		{
			built.append(" (").append(result, areaBegin, areaEnd - areaBegin).append(") ");
			if (traces)
			{
				logger->debug("ValidNumber CountryCode + AreaCode : " + built);
			}
			for (std::string::size_type i = restBegin; i < end; ++i)
			{
				if (result[i] != ' ')
				{
					built += result[i];
				}
			}
		}
		else if (areaBegin < end)
		{
			built.append(" ").append(result, areaBegin, areaEnd - areaBegin);
		}
		result = std::move(built);
	}
	if (traces)
	{
		logger->debug("validNumber before : " + number + ", after : " + result);
	}
	return result;
}

std::string ZelNumberingRules::extractCountryNumberFromCanonicalNumber(std::string canonicalNumber)
{
	if (Logger::m_Traces)
	{
		logger->debug("extractCountryNumber('" + canonicalNumber + "')");
	}
	if (!ZelRulesSupport::isCanonical(canonicalNumber))
	{
		return "";
	}
	const std::string::size_type end = ZelRulesSupport::skipDigits(canonicalNumber, 1, canonicalNumber.size());
	// "+" and digits alone have no recognisable country number: the configuration must split them.
	if (end == canonicalNumber.size())
	{
		return "";
	}
	return canonicalNumber.substr(1, end - 1);
}

std::string ZelNumberingRules::extractAreaCodeOrNatPrefixFromCanonicalNumber(std::string canonicalNumber)
{
	if (Logger::m_Traces)
	{
		logger->debug("extractAreaCodeOrNatPrefix('" + canonicalNumber + "')");
	}
	const std::string::size_type open = canonicalNumber.find('(');
	const std::string::size_type close = canonicalNumber.find(')');
	if (open == std::string::npos || open == 0 || close == std::string::npos || close < open + 2)
	{
		return "";
	}
	return canonicalNumber.substr(open + 1, close - open - 1);
}

std::string ZelNumberingRules::extractExtensionFromCanonicalNumber(std::string canonicalNumber)
{
	if (Logger::m_Traces)
	{
		logger->debug("extractExtension('" + canonicalNumber + "')");
	}
	std::string::size_type separator = canonicalNumber.find(')');
	if (separator == std::string::npos)
	{
		separator = canonicalNumber.find(' ');
	}
	if (separator == std::string::npos)
	{
		return "";
	}
	// Digits after a "|" belong to the result too.
	return ZelRulesSupport::digitsOf(canonicalNumber, separator + 1, canonicalNumber.size());
}

ZelClid* ZelNumberingRules::makeClid(ZelDialRulesItem* item, std::string number)
{
	ZelRulesSupport::checkArguments(item, number);
	if (Logger::m_Traces)
	{
		logger->debug("makeClid with : " + number);
	}
	const std::string canonical = makeCanonicalNumber(item, number, "");
	if (canonical.empty())
	{
		return nullptr;
	}
	if (canonical[0] != '+')
	{
		return new ZelClid(canonical, &ZelEnumOrigin::PRIVATE_1);
	}
	const std::string countryNumber = extractCountryNumberFromCanonicalNumber(canonical);
	const std::string area = extractAreaCodeOrNatPrefixFromCanonicalNumber(canonical);
	const std::string subscriber = extractExtensionFromCanonicalNumber(canonical);
	const std::string siteCountryNumber = config->getCountryNumber(item->getCountryId());
	const std::string ld = ZelRulesSupport::requireCountryRule(config, item->getCountryId())->getLongDistPrefix();
	if (countryNumber != siteCountryNumber)
	{
		// Other countries' numbers are given without "+" or international prefix; a national prefix in the
		// parentheses is no area code.
		const bool areaIsPrefix = !ld.empty() && area == ld;
		return new ZelClid(countryNumber + (areaIsPrefix ? "" : area) + subscriber, &ZelEnumOrigin::INTERNATIONAL);
	}
	if (area == ld)
	{
		return new ZelClid(subscriber, &ZelEnumOrigin::NATIONAL);
	}
	if (area == item->getAreaCode())
	{
		return new ZelClid(subscriber, &ZelEnumOrigin::PUBLIC_1);
	}
	return new ZelClid(area + subscriber, &ZelEnumOrigin::NATIONAL);
}

} // namespace numbering
