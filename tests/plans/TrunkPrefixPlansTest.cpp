// TrunkPrefixPlansTest.cpp

#include "numbering/ZelNumberingConfig.h"

#include "plans/ZelCNPFactory.h"
#include "plans/ZelCNP_54.h"
#include "support/LogCapture.h"
#include "support/TableRows.h"
#include "support/TrunkPrefixPlansFixture.h"

#include "Poco/AutoPtr.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace numbering {
namespace test {
namespace {

const SiteSetup NL20{"NL", "20", "0"}, AT1EXT9{"AT", "1", "9"}, AT1{"AT", "1", "0"}, GB20{"GB", "20", "9"},
	IE1{"IE", "1", "9"}, MX55{"MX", "55", "9"}, MX{"MX", "", ""};

/// A worked example at plan level: the number handed to the plan at a site, and the plan's result.
struct PlanRow
{
	const char* name;
	SiteSetup site;
	const char* number;
	const char* canonical;
};

// Numbers the facade never hands over as they stand; a site without prefix or area is an international record.
const PlanRow PLAN_ONLY[] = {
	{"NlExtPrefixAndNational", NL20, "00201234567", "+31 (20) 1234567"},
	{"AtExtPrefixAndNational", AT1, "00158800", "+43 (1) 58800"},
	{"AtTwoSubscriberDigitsKeepCountry", AT1EXT9, "0223612", "+43 (0) 223612"},
	{"GbNineDigitLondon", GB20, "0207946012", "+44 (20) 7946012"},
	{"IeLocalOfFourDigits", IE1, "2345", "2345"},
	{"MxExtPrefixAndOneDigitShort", MX55, "901551234567", "+52 551234567"},
	{"MxNationalNumberBeginningWithOneKeepsCountry", MX55, "011234567890", "+52 1234567890"},
	{"MxTooShort", MX55, "123456", "123456"},
	{"MxTenDigitsAtSiteWithoutAreaAreNotLocal", MX, "1234567890", "1234567890"},
	{"MxEightDigitsWithTrunkDigitAreNotLocal", MX55, "01234567", "+52 234567"},
	{"AtExtPrefixAndThreeDigits", AT1EXT9, "9234", "+43 (1) 234"},
	{"AtShortNumberBehindLongExtPrefixIsLocal", {"AT", "1", "99"}, "9923", "+43 (1) 9923"},
	{"AtNumberAsLongAsTheLongestCode", AT1EXT9, "01234", "+43 (1) 234"},
};

const std::map<std::string, std::string> CALLING_CODES{
	{"NL", "31"}, {"AT", "43"}, {"GB", "44"}, {"IE", "353"}, {"MX", "52"}};

using TrunkPrefixPlansTest = WithRows<TrunkPrefixPlansFixture, PlanRow>;

TEST_P(TrunkPrefixPlansTest, MakesCanonicalNumber)
{
	const PlanRow& row = GetParam();
	configure(Setting::Sample);
	Poco::AutoPtr<ZelCNP> plan(ZelCNPFactory::CreateInstance(CALLING_CODES.at(row.site.country)));
	EXPECT_EQ(row.canonical, plan->qap_Country_MakeCanonicalNumber(row.number, makeSite(row.site).get()));
}

INSTANTIATE_TEST_SUITE_P(PlanOnly, TrunkPrefixPlansTest, ::testing::ValuesIn(PLAN_ONLY), RowName());

const char* const NO_FILE = "No specific dialing rules configuration file";

/// The info lines of a table plan without its country file, then without its default file.
struct ConstructionRow
{
	const char* callingCode;
	const char* noCountryFile;
	const char* noDefaultFile = NO_FILE;
};

const ConstructionRow CONSTRUCTIONS[] = {
	{"31", "No specific configuration file for Netherlands"},
	{"32", "No specific configuration file for Belgium"},
	{"43", "No specific configuration file for Austria"},
	{"44", ""},
	{"353", "No specific dialing rules configuration for Ireland",
		"No specific dialing rules configuration for Irelandd"},
	{"61", "No specific configuration file for Australia"},
	{"54", "No specific configuration file for Argentina"},
};

class TablePlanConstructionTest: public TrunkPrefixPlansFixture, public ::testing::WithParamInterface<ConstructionRow>
{
protected:
	/// The info lines written while the plan is built.
	std::vector<std::string> infoLines()
	{
		LogCapture::clear();
		Poco::AutoPtr<ZelCNP> plan(ZelCNPFactory::CreateInstance(GetParam().callingCode));
		return LogCapture::matching("INFO ");
	}

	std::vector<std::string> expectedLines(bool defaultFileMissing)
	{
		const ConstructionRow& row = GetParam();
		const std::string className = std::string("ZelCNP_") + row.callingCode;
		const std::string head = "INFO N9numbering" + std::to_string(className.size()) + className + "E - ";
		std::vector<std::string> result;
		if (*row.noCountryFile != '\0') result.push_back(head + row.noCountryFile);
		if (defaultFileMissing) result.push_back(head + row.noDefaultFile);
		return result;
	}
};

TEST_P(TablePlanConstructionTest, NamesBothMissingFilesThenOnlyTheCountryFileWhenTheDefaultOpens)
{
	EXPECT_EQ(expectedLines(true), infoLines());
	writeFile(std::string("r7731cnp_") + GetParam().callingCode + "_default.properties", "Translate=1\n");
	EXPECT_EQ(expectedLines(false), infoLines());
}

INSTANTIATE_TEST_SUITE_P(TablePlans,
	TablePlanConstructionTest,
	::testing::ValuesIn(CONSTRUCTIONS),
	[](const ::testing::TestParamInfo<ConstructionRow>& info) { return std::string("Plan") + info.param.callingCode; });

/// A split: the number, the site area ("": no site), the record's text ("": none).
struct StripRow
{
	const char* name;
	const char* full;
	const char* siteArea;
	const char* record;
};

const StripRow STRIPS[] = {
	{"InternationalMobile", "91123456789", "351", "areaCode : '11', number : '23456789', mobile : true"},
	{"National", "1143211234", "11", "areaCode : '11', number : '43211234', mobile : false"},
	{"LocalMobile", "1523456789", "11", "areaCode : '11', number : '23456789', mobile : true"},
	{"Local", "43211234", "11", "areaCode : '11', number : '43211234', mobile : false"},
	{"NationalMobile", "0111523456789", "", "areaCode : '11', number : '23456789', mobile : true"},
	{"MobileMarkWithoutArea", "99991234567", "", ""},
	{"SubscriberTooShort", "0114321123", "", ""},
	{"TooShort", "01", "11", ""},
	{"UnknownAreaWithoutMobileMark", "0491234567", "", ""},
};

using ZelCNP54StripTest = WithRows<TrunkPrefixPlansFixture, StripRow>;

TEST_P(ZelCNP54StripTest, SplitsTheNumber)
{
	const StripRow& row = GetParam();
	configure(Setting::Sample);
	const std::unique_ptr<ZelDialRulesItem> site = makeSite(SiteSetup{"AR", row.siteArea, "0"});
	Poco::AutoPtr<ZelCNP_54> plan(new ZelCNP_54());
	const std::unique_ptr<ZelStrippedNbr> stripped = plan->StripNbr(row.full, *row.siteArea ? site.get() : nullptr);
	EXPECT_EQ(row.record, stripped ? stripped->ToString() : "");
}

INSTANTIATE_TEST_SUITE_P(Argentina, ZelCNP54StripTest, ::testing::ValuesIn(STRIPS), numbering::test::RowName());

using BelgianServiceNumbersTest = TrunkPrefixPlansFixture;

// 070 and 078 numbers keep the trunk form even when the table holds a code they begin with.
TEST_F(BelgianServiceNumbersTest, AreNotSplitByAreaCodesOfTheTable)
{
	configure(Setting::Sample);
	writeFile("r7731cnp_32.properties", areaCodeTable("Translate=1\n", {"7", "78"}));
	Poco::AutoPtr<ZelCNP> plan(ZelCNPFactory::CreateInstance("32"));
	const std::unique_ptr<ZelDialRulesItem> site = makeSite(SiteSetup{"BE", "2", "0"});
	EXPECT_EQ("+32 (0) 70123456", plan->qap_Country_MakeCanonicalNumber("070123456", site.get()));
	EXPECT_EQ("+32 (0) 78123456", plan->qap_Country_MakeCanonicalNumber("078123456", site.get()));
}

// A table that cannot be read is reported under the plan's own name.
TEST_P(TablePlanConstructionTest, NamesItselfWhenItsTableCannotBeRead)
{
	const std::string className = std::string("ZelCNP_") + GetParam().callingCode;
	writeFile("r7731cnp_" + std::string(GetParam().callingCode) + ".properties", "AC_0000=${AC_0000}\n");
	const std::vector<std::string> expected{"INFO N9numbering" + std::to_string(className.size()) + className + "E - " +
											className + " : Circular reference"};
	EXPECT_EQ(expected, infoLines());
}

} // namespace
} // namespace test
} // namespace numbering
