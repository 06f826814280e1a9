// PlanSites.h
// Test data: the dialing rules of the countries with a numbering plan, and sites in them.

#ifndef Numbering_PlanSites_INCLUDED
#define Numbering_PlanSites_INCLUDED

#include "numbering/ZelDialRulesItem.h"

#include <memory>
#include <string>

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

} // namespace test
} // namespace numbering

#endif // Numbering_PlanSites_INCLUDED
