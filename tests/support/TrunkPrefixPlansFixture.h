// TrunkPrefixPlansFixture.h
// Test fixture of the trunk-prefix plans: the Dutch, Belgian, Austrian, British, Irish, Australian, Mexican and
// Argentine plans.

#ifndef Numbering_TrunkPrefixPlansFixture_INCLUDED
#define Numbering_TrunkPrefixPlansFixture_INCLUDED

#include "support/ConfigFixture.h"
#include "support/PlanSites.h"

#include <iterator>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace numbering {
namespace test {

/// What a row of examples needs besides the dialing rules of the examples.
enum class Setting
{
	Sample,      ///< the sample tables
	NoTranslate, ///< the sample tables with "Translate=0"
	NoTable,     ///< no table file at all
	Mexico2019   ///< the sample tables and Mexico's ten-digit dialling
};

/// Writes the dialing rules of the plan countries and Mexico, and the sample area-code tables.
class TrunkPrefixPlansFixture: public ConfigFixture
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

#endif // Numbering_TrunkPrefixPlansFixture_INCLUDED
