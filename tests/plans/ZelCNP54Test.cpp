// ZelCNP54Test.cpp

#include "plans/MorePlansFixture.h"
#include "plans/ZelCNP_54.h"
#include "support/LogCapture.h"

#include "Poco/AutoPtr.h"

#include <gtest/gtest.h>

namespace numbering {
namespace test {
namespace {

const SiteSetup AR11{"AR", "11", "0"};
const SiteSetup AR351{"AR", "351", "0"};
const SiteSetup AR{"AR", "", ""};

const PlanRow ARGENTINA[] = {
	{"BuenosAires", AR11, "01143211234", "+54 (11) 43211234"},
	{"NationalMobile", AR11, "0111523456789", "+54 (911) 23456789"},
	{"LocalMobile", AR11, "1523456789", "+54 (911) 23456789"},
	{"Local", AR11, "43211234", "+54 (11) 43211234"},
	{"ExtPrefixAndLocal", AR11, "043211234", "+54 (11) 43211234"},
	{"MobileOfThreeDigitArea", AR11, "0223154234567", "+54 (9223) 4234567"},
	{"MobileOfFourDigitArea", AR11, "0296615423456", "+54 (92966) 423456"},
	{"LongerCodeExtendingAnother", AR11, "02202423456", "+54 (2202) 423456"},
	{"ShorterCodeOfTheSamePath", AR11, "02204123456", "+54 (220) 4123456"},
	{"MobileOfAnotherArea", AR11, "0351154123456", "+54 (9351) 4123456"},
	{"Freephone", AR11, "08001234567", "+54 (800) 1234567"},
	{"UnsplittableKeepsCountry", AR11, "0912345678", "+54 (0) 912345678"},
	{"LocalMobileOfThreeDigitArea", AR351, "154123456", "+54 (9351) 4123456"},
	{"InternationalMobile", AR, "0111523456789", "+54 (911) 23456789"},
	{"InternationalUnsplittable", AR, "99991234567", "99991234567"},
	{"LocalWithoutTranslation", AR11, "43211234", "43211234", Setting::NoTranslate},
	{"AreaMissingFromTable", AR11, "02914123456", "+54 (0) 2914123456"},
};

class ZelCNP54Test: public MorePlanTest
{
};

TEST_P(ZelCNP54Test, MakesCanonicalNumber)
{
	EXPECT_EQ(GetParam().canonical, canonical("54"));
}

INSTANTIATE_TEST_SUITE_P(Argentina, ZelCNP54Test, ::testing::ValuesIn(ARGENTINA), planRowName);

/// A split: the number, the site (null when "area" is ""), the record's text or "" for none, and the debug
/// lines after "stripNbr('...')".
struct StripRow
{
	const char* name;
	const char* full;
	const char* siteArea;
	const char* record;
	std::vector<std::string> lines;
};

void PrintTo(const StripRow& row, std::ostream* os)
{
	*os << row.name;
}

const std::string NATIONAL = "number starts with national prefix:";

const StripRow STRIPS[] = {
	{"InternationalMobile", "91123456789", "351", "areaCode : '11', number : '23456789', mobile : true",
		{"Mobile international prefix is found:91123456789", "Area code is found:11"}},
	{"National", "1143211234", "11", "areaCode : '11', number : '43211234', mobile : false", {"Area code is found:11"}},
	{"LocalMobile", "1523456789", "11", "areaCode : '11', number : '23456789', mobile : true",
		{"number starts with local mobile prefix:1523456789"}},
	{"Local", "43211234", "11", "areaCode : '11', number : '43211234', mobile : false", {"Only local number"}},
	{"NationalMobile", "0111523456789", "", "areaCode : '11', number : '23456789', mobile : true",
		{NATIONAL + "0111523456789", "Area code is found:11", "Mobile national prefix is found:1523456789"}},
	{"NationalMobileOfThreeDigitArea", "0223154234567", "", "areaCode : '223', number : '4234567', mobile : true",
		{NATIONAL + "0223154234567", "Area code is found:223", "Mobile national prefix is found:154234567"}},
	{"MobileMarkWithoutArea", "99991234567", "", "",
		{"Mobile international prefix is found:99991234567",
			"No area code found but prefix mobile international found before: bad format"}},
	{"SubscriberTooShort", "0114321123", "", "", {NATIONAL + "0114321123", "Area code is found:11"}},
	{"TooShort", "01", "11", "", {}},
	{"UnknownAreaWithoutMobileMark", "0491234567", "", "", {NATIONAL + "0491234567"}},
};

class ZelCNP54StripTest: public MorePlansFixture, public ::testing::WithParamInterface<StripRow>
{
};

TEST_P(ZelCNP54StripTest, SplitsAndTracesTheNumber)
{
	const StripRow& row = GetParam();
	configure(Setting::Sample);
	const std::unique_ptr<ZelDialRulesItem> site = makeSite(SiteSetup{"AR", row.siteArea, "0"});
	Poco::AutoPtr<ZelCNP_54> plan(new ZelCNP_54());
	Logger::m_Traces = true;
	LogCapture::clear();
	const std::unique_ptr<ZelStrippedNbr> stripped = plan->StripNbr(row.full, *row.siteArea ? site.get() : nullptr);

	std::vector<std::string> expected{"stripNbr('" + std::string(row.full) + "')"};
	expected.insert(expected.end(), row.lines.begin(), row.lines.end());
	expected.push_back(*row.record ? "Argentina stripNumber returns " + std::string(row.record)
								   : "Argentina StripNumber returns null");
	std::vector<std::string> actual;
	for (const std::string& line : LogCapture::lines())
		actual.push_back(line.substr(line.find(" - ") + 3));
	EXPECT_EQ(expected, actual);
	EXPECT_EQ(row.record, stripped ? stripped->ToString() : "");
}

INSTANTIATE_TEST_SUITE_P(
	Argentina, ZelCNP54StripTest, ::testing::ValuesIn(STRIPS), [](const ::testing::TestParamInfo<StripRow>& info) {
		return info.param.name;
	});

} // namespace
} // namespace test
} // namespace numbering
