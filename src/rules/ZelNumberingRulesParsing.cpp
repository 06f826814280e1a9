// ZelNumberingRulesParsing.cpp

#include "numbering/ZelNumberingRules.h"

#include "rules/ZelRulesSupport.h"
#include "support/Text.h"

#include "Poco/String.h"

namespace numbering {

namespace {

/// Characters that the layout "+C (A) rest" may add to a trimmed number.
const std::string::size_type VALID_LAYOUT_EXTRA = 4;

/// Where the runs of a "+" number lie: the country digits end at countryEnd, the area digits are
/// [areaBegin, areaEnd), the rest begins at restBegin; an index equal to end means the run is missing.
struct Runs
{
	explicit Runs(const std::string& text):
		end(text.size()),
		countryEnd(detail::skipDigits(text, 1, end)),
		areaBegin(detail::skipNonDigits(text, countryEnd, end)),
		areaEnd(detail::skipDigits(text, areaBegin, end)),
		restBegin(detail::skipNonDigits(text, areaEnd, end))
	{
	}

	/// A separator after the area run closes the area, even when no subscriber digits follow it.
	bool hasClosedArea() const
	{
		return areaEnd < end;
	}

	std::string::size_type end;
	std::string::size_type countryEnd;
	std::string::size_type areaBegin;
	std::string::size_type areaEnd;
	std::string::size_type restBegin;
};

/// True when text already reads "+C (A) rest" without a blank in rest: laying it out would give it back.
bool isLaidOut(const std::string& text, const Runs& runs)
{
	return runs.areaBegin == runs.countryEnd + 2 && text.compare(runs.countryEnd, 2, " (") == 0 &&
		   runs.restBegin == runs.areaEnd + 2 && text.compare(runs.areaEnd, 2, ") ") == 0 &&
		   text.find(' ', runs.restBegin) == std::string::npos;
}

/// "+C (A) rest" with the blanks of rest dropped (rest may be empty), "+C A" when the area digits run to the end,
/// "+C" without an area.
std::string layOut(const std::string& text, const Runs& runs)
{
	std::string built;
	built.reserve(runs.end + VALID_LAYOUT_EXTRA);
	built.append(text, 0, runs.countryEnd);
	if (runs.hasClosedArea())
	{
		built.append(" (").append(text, runs.areaBegin, runs.areaEnd - runs.areaBegin).append(") ");
		for (std::string::size_type i = runs.restBegin; i < runs.end; ++i)
		{
			if (text[i] != ' ')
			{
				built += text[i];
			}
		}
	}
	else if (runs.areaBegin < runs.end)
	{
		built.append(" ").append(text, runs.areaBegin, runs.areaEnd - runs.areaBegin);
	}
	return built;
}

} // namespace

std::string ZelNumberingRules::validNumber(std::string number)
{
	const bool traces = Logger::m_Traces;
	// The argument is a copy already: it becomes the result unless the trace line still has to quote it.
	std::string result = traces ? number : std::move(number);
	Poco::trimInPlace(result);
	if (result.size() >= 2 && result[0] == '+')
	{
		const Runs runs(result);
		if (runs.hasClosedArea() && traces)
		{
			logger->debug("ValidNumber CountryCode + AreaCode : " + result.substr(0, runs.countryEnd) + " (" +
						  result.substr(runs.areaBegin, runs.areaEnd - runs.areaBegin) + ") ");
		}
		// A number already in the layout, as every canonical number is, is kept without being rebuilt.
		if (!runs.hasClosedArea() || !isLaidOut(result, runs))
		{
			result = layOut(result, runs);
		}
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
	const std::string::size_type end = detail::skipDigits(canonicalNumber, 1, canonicalNumber.size());
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
	return detail::digitsOf(canonicalNumber, separator + 1, canonicalNumber.size());
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
	ZelCountryRuleItem* siteRule = ZelRulesSupport::requireCountryRule(config, item->getCountryId());
	const std::string siteCountryNumber = siteRule->getCountryNumber();
	const std::string ld = siteRule->getLongDistPrefix();
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
