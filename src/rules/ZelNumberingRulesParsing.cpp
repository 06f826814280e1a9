// ZelNumberingRulesParsing.cpp

#include "numbering/ZelNumberingRules.h"

#include "support/CanonicalNumber.h"
#include "support/Guards.h"
#include "support/Text.h"
#include "support/Trace.h"

#include "Poco/String.h"

namespace numbering {

using detail::CanonicalNumber;

std::string ZelNumberingRules::validNumber(std::string number)
{
	const bool traces = Logger::m_Traces;
	// The argument is a copy already: it becomes the result unless the trace line still has to quote it.
	std::string result = traces ? number : std::move(number);
	Poco::trimInPlace(result);
	if (result.size() >= 2 && result[0] == '+')
	{
		const CanonicalNumber runs = CanonicalNumber::byRuns(result);
		if (runs.hasClosedArea())
		{
			NUMBERING_TRACE(
				logger, "ValidNumber CountryCode + AreaCode : +" + runs.country() + " (" + runs.area() + ") ");
		}
		// A number already in the layout, as every canonical number is, is kept without being rebuilt.
		if (!runs.hasClosedArea() || !runs.isLaidOut()) result = runs.laidOut();
	}
	if (traces) logger->debug("validNumber before : " + number + ", after : " + result);
	return result;
}

std::string ZelNumberingRules::extractCountryNumberFromCanonicalNumber(std::string canonicalNumber)
{
	NUMBERING_TRACE(logger, "extractCountryNumber('" + canonicalNumber + "')");
	if (!detail::isCanonical(canonicalNumber)) return "";
	return CanonicalNumber::byRuns(canonicalNumber).separatedCountry();
}

std::string ZelNumberingRules::extractAreaCodeOrNatPrefixFromCanonicalNumber(std::string canonicalNumber)
{
	NUMBERING_TRACE(logger, "extractAreaCodeOrNatPrefix('" + canonicalNumber + "')");
	return CanonicalNumber::byBrackets(canonicalNumber).bracketedArea();
}

std::string ZelNumberingRules::extractExtensionFromCanonicalNumber(std::string canonicalNumber)
{
	NUMBERING_TRACE(logger, "extractExtension('" + canonicalNumber + "')");
	// Digits after a "|" belong to the result too.
	return CanonicalNumber::byBrackets(canonicalNumber).digitsAfterArea();
}

ZelClid* ZelNumberingRules::makeClid(ZelDialRulesItem* item, std::string number)
{
	detail::checkArguments(item, number);
	NUMBERING_TRACE(logger, "makeClid with : " + number);
	const std::string canonical = makeCanonicalNumber(item, number, "");
	if (canonical.empty()) return nullptr;
	if (canonical[0] != '+') return new ZelClid(canonical, &ZelEnumOrigin::PRIVATE_1);
	const std::string countryNumber = extractCountryNumberFromCanonicalNumber(canonical);
	const std::string area = extractAreaCodeOrNatPrefixFromCanonicalNumber(canonical);
	const std::string subscriber = extractExtensionFromCanonicalNumber(canonical);
	ZelCountryRuleItem* siteRule = detail::requireCountryRule(config, item->getCountryId());
	const std::string siteCountryNumber = siteRule->getCountryNumber();
	const std::string ld = siteRule->getLongDistPrefix();
	if (countryNumber != siteCountryNumber)
	{
		// Other countries' numbers are given without "+" or international prefix; a national prefix in the
		// parentheses is no area code.
		const bool areaIsPrefix = !ld.empty() && area == ld;
		return new ZelClid(countryNumber + (areaIsPrefix ? "" : area) + subscriber, &ZelEnumOrigin::INTERNATIONAL);
	}
	if (area == ld) return new ZelClid(subscriber, &ZelEnumOrigin::NATIONAL);
	if (area == item->getAreaCode()) return new ZelClid(subscriber, &ZelEnumOrigin::PUBLIC_1);
	return new ZelClid(area + subscriber, &ZelEnumOrigin::NATIONAL);
}

} // namespace numbering
