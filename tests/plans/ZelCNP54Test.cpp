// ZelCNP54Test.cpp

#include "plans/MorePlansFixture.h"
#include "plans/ZelCNP_54.h"
#include "support/LogCapture.h"
#include "support/RowName.h"

#include "Poco/AutoPtr.h"

#include <gtest/gtest.h>

namespace numbering {
namespace test {
namespace {

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

INSTANTIATE_TEST_SUITE_P(Argentina, ZelCNP54StripTest, ::testing::ValuesIn(STRIPS), numbering::test::RowName());

} // namespace
} // namespace test
} // namespace numbering
