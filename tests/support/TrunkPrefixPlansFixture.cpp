// TrunkPrefixPlansFixture.cpp

#include "support/TrunkPrefixPlansFixture.h"

#include <iterator>
#include <map>
#include <sstream>
#include <vector>

namespace numbering {
namespace test {

namespace {

const char* const MEXICO = "MX=52:00:EFG:01FG:G:Mexico:P\n";
const char* const MEXICO_2019 = "MX=52:00:EFG:FG:FG:Mexico:P\n";

// The codes are in ascending string order, so that a code comes before every longer code that extends it.
const std::map<std::string, std::string> SAMPLE_CODES = {
	{"31", "10 111 20 30 346 40 50 70 71"},
	{"32", "10 11 2 3 4 50 71 80 89 9"},
	{"43", "1 2236 316 463 512 5574 650 6542 660 662 664 676 680 699 720 732 800 810 900"},
	{"44", "113 121 1223 131 1387 13873 141 161 16977 1865 20 29"},
	{"353", "1 21 402 404 41 61 818 83 85 86 87 89 91"},
	{"54", "11 220 2202 221 223 261 294 2966 341 351 3543 381 600 800 810"},
	{"61", "2 3 7 8"},
};

} // namespace

void TrunkPrefixPlansFixture::configure(Setting setting)
{
	writeFile("dialingrules.properties",
		std::string(PLAN_COUNTRIES) + (setting == Setting::Mexico2019 ? MEXICO_2019 : MEXICO));
	if (setting == Setting::NoTable) return;
	for (const auto& [callingCode, codes] : SAMPLE_CODES)
	{
		std::istringstream words(codes);
		const std::vector<std::string> list{std::istream_iterator<std::string>(words), {}};
		const char* translate = setting == Setting::NoTranslate ? "Translate=0\n" : "Translate=1\n";
		writeFile("r7731cnp_" + callingCode + ".properties", areaCodeTable(translate, list));
	}
}

} // namespace test
} // namespace numbering
