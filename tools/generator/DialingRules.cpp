// DialingRules.cpp

#include "DialingRules.h"

#include <algorithm>
#include <cctype>
#include <set>
#include <stdexcept>

using i18n::phonenumbers::PhoneNumber;
using i18n::phonenumbers::PhoneNumberUtil;

namespace numbering {
namespace generator {

namespace {

// Prefixes and rules fixed by the plans of these countries: they take precedence over the metadata. Mexico
// dials ten digits since 2019; Colombia's plan reads the national forms in use before 2021, with trunk "0".
const std::map<std::string, std::string> FIXED_RULES = {
	{"AR", "54:00:EFG:0FG:G"},
	{"AT", "43:00:EFG:0FG:G"},
	{"AU", "61:0011:EFG:0FG:G"},
	{"BE", "32:00:EFG:0FG:0FG"},
	{"CO", "57:00:EFG:0FG:G"},
	{"GB", "44:00:EFG:0FG:G"},
	{"IE", "353:00:EFG:0FG:G"},
	{"MX", "52:00:EFG:FG:FG"},
	{"NL", "31:00:EFG:0FG:G"},
};

// Countries with a trunk prefix whose local calls still need trunk prefix and area code.
const std::set<std::string> AREA_CODE_DIALLED_LOCALLY = {"CH", "FR", "IL", "MA", "TH", "ZA"};

// Used when neither a unique nor a preferred international prefix is known.
const std::string USUAL_INTERNATIONAL_PREFIX = "00";

std::string digitsOf(const std::string& text)
{
	std::string digits;
	std::copy_if(text.begin(), text.end(), std::back_inserter(digits), [](unsigned char c) { return std::isdigit(c); });
	return digits;
}

} // namespace

DialingRules::DialingRules(const PhoneNumberUtil& util, const CountryNames& names):
	m_Util(util),
	m_Names(names)
{
}

std::map<std::string, std::string> DialingRules::entries() const
{
	std::set<std::string> regions;
	m_Util.GetSupportedRegions(&regions);
	std::map<std::string, std::string> result;
	for (const std::string& region : regions)
		result[region] = entry(region);
	return result;
}

std::string DialingRules::entry(const std::string& region) const
{
	const std::string name = m_Names.name(region);
	if (name.empty()) throw std::runtime_error("no English name for region " + region);
	const int callingCode = m_Util.GetCountryCodeForRegion(region);
	std::string mainRegion;
	m_Util.GetRegionCodeForCountryCode(callingCode, &mainRegion);
	const std::string principal = mainRegion == region ? ":P" : "";

	auto fixed = FIXED_RULES.find(region);
	if (fixed != FIXED_RULES.end()) return fixed->second + ":" + name + principal;

	std::string trunk;
	m_Util.GetNddPrefixForRegion(region, true, &trunk);
	const std::string longDistRule = trunk + "FG";
	const bool areaCodeLocally = trunk.empty() || AREA_CODE_DIALLED_LOCALLY.count(region) > 0;
	const std::string localRule = areaCodeLocally ? longDistRule : "G";
	return std::to_string(callingCode) + ":" + internationalPrefix(region, callingCode) + ":EFG:" + longDistRule + ":" +
		   localRule + ":" + name + principal;
}

std::string DialingRules::internationalPrefix(const std::string& region, int callingCode) const
{
	// The metadata exposes the prefix only through formatting: a foreign number formatted for dialling from
	// the region begins with it ("00 49 30 1234567"), or with "+" when the region has no single prefix.
	PhoneNumber foreign;
	foreign.set_country_code(callingCode == 49 ? 33 : 49);
	foreign.set_national_number(callingCode == 49 ? 123456789ULL : 301234567ULL);
	std::string formatted;
	m_Util.FormatOutOfCountryCallingNumber(foreign, region, &formatted);
	const std::string prefix = digitsOf(formatted.substr(0, formatted.find(' ')));
	return formatted.empty() || formatted[0] == '+' || prefix.empty() ? USUAL_INTERNATIONAL_PREFIX : prefix;
}

} // namespace generator
} // namespace numbering
