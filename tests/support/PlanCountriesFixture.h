// PlanCountriesFixture.h
// Test fixture of the countries with a numbering plan: their dialing rules, sites in them and the area-code tables
// of the trunk-prefix plans (the Dutch, Belgian, Austrian, British, Irish, Australian and Argentine plans).

#ifndef Numbering_PlanCountriesFixture_INCLUDED
#define Numbering_PlanCountriesFixture_INCLUDED

#include "numbering/ZelDialRulesItem.h"

#include "support/ConfigFixture.h"

#include <iterator>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace numbering {
namespace test {

/// The countries with a numbering plan but Germany and Mexico, whose tests vary their rules: long-distance calls
/// dial the trunk prefix before the area code, and Belgium dials it on local calls too.
inline constexpr const char* PLAN_COUNTRIES = R"(AR=54:00:EFG:0FG:G:Argentina:P
AT=43:00:EFG:0FG:G:Austria:P
AU=61:0011:EFG:0FG:G:Australia:P
BE=32:00:EFG:0FG:0FG:Belgium:P
CH=41:00:EFG:0FG:G:Switzerland:P
CO=57:00:EFG:0FG:G:Colombia:P
FR=33:00:EFG:0FG:G:France:P
GB=44:00:EFG:0FG:G:United Kingdom:P
IE=353:00:EFG:0FG:G:Ireland:P
NL=31:00:EFG:0FG:G:Netherlands:P
NZ=64:00:EFG:0FG:G:New Zealand:P
RU=7:810:EFG:8FG:G:Russia:P
US=1:011:EFG:1FG:G:United States:P
)";

/// A site as the worked examples write it: country, area-code list, external prefix.
struct SiteSetup
{
	const char* country;
	const char* areas;
	const char* ext;
};

/// The site's record with local numbers shorter than 5 digits; its country must be in the dialing rules.
inline std::unique_ptr<ZelDialRulesItem> makeSite(const SiteSetup& site)
{
	return std::make_unique<ZelDialRulesItem>(site.country, site.ext, 5, site.areas, 0, "");
}

/// "NL/20 ext 0".
inline std::string siteName(const SiteSetup& site)
{
	return std::string(site.country) + "/" + site.areas + " ext " + site.ext;
}

/// What a row of examples needs besides the dialing rules of the examples.
enum class Setting
{
	Sample,      ///< the sample tables
	NoTranslate, ///< the sample tables with "Translate=0"
	NoTable,     ///< no table file at all
	Mexico2019   ///< the sample tables and Mexico's ten-digit dialling
};

/// Writes the dialing rules of the plan countries and Mexico, and the sample area-code tables.
class PlanCountriesFixture: public ConfigFixture
{
protected:
	/// The dialing rules and tables of setting.
	void configure(Setting setting)
	{
		// The codes are in ascending string order, so that a code comes before every longer code that extends it.
		static const std::map<std::string, std::string> sampleCodes = {
			{"31", "10 111 20 30 346 40 50 70 71"},
			{"32", "10 11 2 3 4 50 71 80 89 9"},
			{"43", "1 2236 316 463 512 5574 650 6542 660 662 664 676 680 699 720 732 800 810 900"},
			{"44", "113 121 1223 131 1387 13873 141 161 16977 1865 20 29"},
			{"353", "1 21 402 404 41 61 818 83 85 86 87 89 91"},
			{"54", "11 220 2202 221 223 261 294 2966 341 351 3543 381 600 800 810"},
			{"61", "2 3 7 8"},
		};
		const char* mexico =
			setting == Setting::Mexico2019 ? "MX=52:00:EFG:FG:FG:Mexico:P\n" : "MX=52:00:EFG:01FG:G:Mexico:P\n";
		writeFile("dialingrules.properties", std::string(PLAN_COUNTRIES) + mexico);
		if (setting == Setting::NoTable) return;
		for (const auto& [callingCode, codes] : sampleCodes)
		{
			std::istringstream words(codes);
			const std::vector<std::string> list{std::istream_iterator<std::string>(words), {}};
			const char* translate = setting == Setting::NoTranslate ? "Translate=0\n" : "Translate=1\n";
			writeFile("r7731cnp_" + callingCode + ".properties", areaCodeTable(translate, list));
		}
	}
};

} // namespace test
} // namespace numbering

#endif // Numbering_PlanCountriesFixture_INCLUDED
