// ZelCNP_52.cpp

#include "plans/ZelCNP_52.h"

#include "numbering/ZelNumberingConfig.h"

#include "support/Plans.h"
#include "support/Trace.h"

#include <algorithm>
#include <string_view>
#include <typeinfo>
#include <vector>

namespace numbering {

namespace {

const std::string COUNTRY_HEAD = "+52 ";

const std::string::size_type MIN_LENGTH = 7;

/// Digits of a national significant number.
const std::string::size_type NATIONAL_NUMBER_LENGTH = 10;

/// "01", the long-distance prefix of the before-2019 rules.
const std::string PREFIX_NATIONAL = "01";

/// The area codes of two digits; every other code has three.
const std::vector<std::string> AREA_CODES_2 = {"33", "55", "56", "81"};
const std::string NO_PREFIX;

/// A national number behind the prefix first + second; mobile when the prefix marks a mobile number.
struct NationalForm
{
	std::string_view first;
	std::string_view second;
	bool mobile;
};

/// Ten digits alone do not tell a mobile number from a fixed one: they are taken as fixed.
const NationalForm NATIONAL_FORMS[] = {{ZelCNP_52::PREFIX_MOBILE_LOCAL, NO_PREFIX, true},
	{ZelCNP_52::PREFIX_MOBILE_DISTANT, NO_PREFIX, true}, {PREFIX_NATIONAL, ZelCNP_52::PREFIX_MOBILE, true},
	{PREFIX_NATIONAL, NO_PREFIX, false}, {ZelCNP_52::PREFIX_MOBILE, NO_PREFIX, true}, {NO_PREFIX, NO_PREFIX, false}};

std::string mobileMarker()
{
	// A site dialling the ten digits has no long-distance prefix; ZelDialable_52 would dial the marker as 044
	// or 045, so mobile numbers are then written like fixed ones.
	ZelCountryRuleItem* rule = ZelNumberingConfig::getInstance()->getCountryRule("MX");
	return rule != nullptr && rule->getLongDistPrefix().empty() ? "" : ZelCNP_52::PREFIX_MOBILE;
}

} // namespace

Logger* ZelCNP_52::logger = Logger::getLogger(typeid(ZelCNP_52).name());

ZelCNP_52::ZelCNP_52()
{
	NUMBERING_TRACE(logger, "ZelCNP_52()");
}

std::string ZelCNP_52::qap_Country_MakeCanonicalNumber(std::string number, ZelDialRulesItem* rules)
{
	NUMBERING_TRACE(logger, detail::canonicalCallText(number, rules));
	if (number.size() < MIN_LENGTH) return number;
	std::string result;
	if (readNational(number, result)) return result;
	const std::string ext = rules->getExtPrefix();
	const bool isStripped = !ext.empty() && detail::followsExtPrefix(number, ext);
	const std::string stripped = isStripped ? number.substr(ext.size()) : std::string();
	if (isStripped && readNational(stripped, result)) return result;
	if (readLocal(isStripped ? stripped : number, rules->getAreaCode(), result)) return result;
	result = detail::keepCountryForm(COUNTRY_HEAD, PREFIX_NATIONAL, number, stripped);
	return result.empty() ? number : result;
}

bool ZelCNP_52::readNational(const std::string& candidate, std::string& result)
{
	const NationalForm* form =
		std::find_if(std::begin(NATIONAL_FORMS), std::end(NATIONAL_FORMS), [&candidate](const NationalForm& f) {
			return candidate.size() == NATIONAL_NUMBER_LENGTH + f.first.size() + f.second.size() &&
				   candidate.compare(0, f.first.size(), f.first) == 0 &&
				   candidate.compare(f.first.size(), f.second.size(), f.second) == 0;
		});
	if (form == std::end(NATIONAL_FORMS)) return false;
	const std::string nsn = candidate.substr(form->first.size() + form->second.size());
	if (nsn[0] < '2' || nsn[0] > '9') return false;
	const bool twoDigits = std::find(AREA_CODES_2.begin(), AREA_CODES_2.end(), nsn.substr(0, 2)) != AREA_CODES_2.end();
	const std::string::size_type areaLength = twoDigits ? 2 : 3;
	NUMBERING_TRACE(
		logger, (form->mobile ? "Mobile number detected : '" : "Fixed number detected : '") + candidate + "'");
	result = COUNTRY_HEAD + "(" + (form->mobile ? mobileMarker() : NO_PREFIX) + nsn.substr(0, areaLength) + ") " +
			 nsn.substr(areaLength);
	return true;
}

bool ZelCNP_52::readLocal(const std::string& candidate, const std::string& siteArea, std::string& result)
{
	if (siteArea.empty() || candidate.empty() || candidate[0] == '0' ||
		candidate.size() + siteArea.size() != NATIONAL_NUMBER_LENGTH)
		return false;
	NUMBERING_TRACE(logger, "Local number detected : '" + candidate + "'");
	result = COUNTRY_HEAD + "(" + siteArea + ") " + candidate;
	return true;
}

} // namespace numbering
