// CountryPlansTest.cpp

#include "numbering/Logger.h"
#include "numbering/ZelDialRulesItem.h"

#include "plans/ZelCNP_1.h"
#include "plans/ZelCNP_33.h"
#include "plans/ZelCNP_41.h"
#include "plans/ZelCNP_57.h"
#include "plans/ZelCNP_64.h"
#include "plans/ZelCNP_7.h"
#include "support/ConfigFixture.h"
#include "support/LogCapture.h"
#include "support/RowName.h"

#include "Poco/AutoPtr.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace numbering {
namespace test {
namespace {

const char* const SIX_COUNTRIES = R"(FR=33:00:EFG:0FG:G:France:P
RU=7:810:EFG:8FG:G:Russia:P
US=1:011:EFG:1FG:G:United States:P
CH=41:00:EFG:0FG:G:Switzerland:P
CO=57:00:EFG:0FG:G:Colombia:P
NZ=64:00:EFG:0FG:G:New Zealand:P
)";

/// The plan of a site's country, as the factory would choose it.
ZelCNP* makePlan(const std::string& country)
{
	if (country == "US") return new ZelCNP_1;
	if (country == "FR") return new ZelCNP_33;
	if (country == "CH") return new ZelCNP_41;
	if (country == "CO") return new ZelCNP_57;
	if (country == "NZ") return new ZelCNP_64;
	return new ZelCNP_7;
}

/// A number dialled at a site of the plan's country; with ruleMissing, the site is in "US" and the dialing
/// rules know no other country.
struct Conversion
{
	const char* name;
	const char* country;
	const char* number;
	const char* expected;
	const char* extPrefix = "";
	const char* areaCode = "";
	int localNbLength = 0;
	const char* exceptNbBegin = "";
	bool ruleMissing = false;
};

class CountryPlansTest: public ConfigFixture, public ::testing::WithParamInterface<Conversion>
{
};

TEST_P(CountryPlansTest, MakesCanonicalNumber)
{
	const Conversion& row = GetParam();
	writeFile("dialingrules.properties", row.ruleMissing ? "US=1:011:EFG:1FG:G:United States:P\n" : SIX_COUNTRIES);
	ZelDialRulesItem site(
		row.ruleMissing ? "US" : row.country, row.extPrefix, row.localNbLength, row.areaCode, 0, row.exceptNbBegin);
	Poco::AutoPtr<ZelCNP> plan(makePlan(row.country));
	EXPECT_EQ(row.expected, plan->qap_Country_MakeCanonicalNumber(row.number, &site));
}

// The plain national and local cases run end to end; these rows are the edges each plan must tell apart.
const Conversion CONVERSIONS[] = {
	{"UsTen", "US", "2125551234", "+1 (212) 5551234"},
	{"UsElevenWithLeadingZero", "US", "02125551234", "+1 (212) 5551234"},
	{"UsElevenWithOtherLeadingDigit", "US", "22125551234", "22125551234"},
	{"UsSevenWithoutSiteAreaCode", "US", "5551234", "+1 (?) 5551234"},
	{"UsEightWithLeadingOne", "US", "15551234", "+1 (212) 5551234", "", "212"},
	{"UsEightLeavingSevenBeginningWithOne", "US", "11551234", "11551234", "", "212"},
	{"UsSevenBeginningWithZero", "US", "0551234", "0551234", "", "212"},
	{"UsAreaCodeBeginningWithOne", "US", "1125551234", "1125551234"},
	{"UsExchangeCodeBeginningWithZero", "US", "2120551234", "2120551234"},
	{"UsNine", "US", "212555123", "212555123"},
	{"UsTwelve", "US", "121255512345", "121255512345"},
	{"FrAnyTenCharactersEvenBehindExternalPrefix", "FR", "9123456789", "+33 (9) 123456789", "9"},
	{"FrNineBeginningWithTrunkPrefix", "FR", "012345678", "012345678"},
	{"FrNineButLocal", "FR", "123456789", "123456789", "", "", 10},
	{"FrNineButExceptionNumber", "FR", "123456789", "123456789", "", "", 0, "12"},
	{"FrBehindExternalPrefixEvenIfLocal", "FR", "00123456789", "+33 (0) 123456789", "0", "", 12},
	{"FrBehindLongExternalPrefix", "FR", "990123456789", "+33 (0) 123456789", "99"},
	{"FrElevenWithoutExternalPrefix", "FR", "00123456789", "00123456789", "9"},
	{"FrEight", "FR", "12345678", "12345678"},
	{"RuTenBeginningWithTrunkPrefix", "RU", "8916123456", "8916123456"},
	{"RuBehindExternalPrefix", "RU", "089161234567", "+7 (916) 1234567", "0"},
	{"RuTwelveWithoutExternalPrefix", "RU", "989161234567", "989161234567", "0"},
	{"FrWithoutRuleNational", "FR", "0123456789", "+33 (0) 123456789", "", "", 0, "", true},
	{"FrWithoutRuleNoTrunkPrefix", "FR", "123456789", "123456789", "", "", 0, "", true},
	{"RuWithoutRuleBehindExternalPrefix", "RU", "989161234567", "+7 (916) 1234567", "9", "", 0, "", true},
	{"RuWithoutRuleNoTrunkPrefix", "RU", "9161234567", "9161234567", "", "", 0, "", true},
	{"ChNational", "CH", "0441234567", "+41 (44) 1234567"},
	{"ChNineNotZurich", "CH", "022345678", "022345678"},
	{"ChTenWithoutTrunkPrefix", "CH", "1441234567", "1441234567"},
	{"ChEight", "CH", "04412345", "04412345"},
	{"ChTenNotSearchedForExternalPrefix", "CH", "9012345678", "9012345678", "9"},
	{"ChElevenLosingExternalPrefix", "CH", "90012345678", "+41 (01) 2345678", "9"},
	{"ChZurichBehindLongExternalPrefix", "CH", "99012345678", "+41 (1) 2345678", "99"},
	{"ChElevenWithoutExternalPrefix", "CH", "80441234567", "80441234567", "9"},
	{"ChTwelveBehindExternalPrefix", "CH", "004412345678", "004412345678", "0"},
	{"ChBehindExternalPrefixWithoutTrunkPrefix", "CH", "08001234567", "08001234567", "0"},
	{"CoLocalWithoutSiteAreaCode", "CO", "2345678", "+57 () 2345678"},
	{"CoElevenWithThree", "CO", "03101234567", "+57 (101) 234567"},
	{"CoTenWithThree", "CO", "0310123456", "+57 (101) 23456"},
	{"CoTen", "CO", "0912345678", "+57 (1) 2345678"},
	{"CoEleven", "CO", "04561234567", "+57 (1) 234567"},
	{"CoTwelve", "CO", "045612345678", "+57 (1) 2345678"},
	{"CoSix", "CO", "234567", "234567", "", "1"},
	{"CoEight", "CO", "12345678", "12345678", "", "1"},
	{"CoNine", "CO", "123456789", "123456789", "", "1"},
	{"CoTenWithoutTrunkDigit", "CO", "9912345678", "9912345678"},
	{"NzOneDigitArea", "NZ", "093071234", "+64 (9) 3071234", "", "9"},
	{"NzOneDigitAreaTooLong", "NZ", "0930712345", "0930712345", "", "9"},
	{"NzTwoDigitAreaNine", "NZ", "0211234567", "+64 (21) 1234567", "", "9"},
	{"NzTwoDigitAreaEight", "NZ", "021123456", "+64 (21) 123456", "", "9"},
	{"NzTwoDigitAreaTooLong", "NZ", "02112345678", "02112345678", "", "9"},
	{"NzThreeDigitAreaAnyLength", "NZ", "05123456789", "+64 (512) 3456789", "", "9"},
	{"NzUnknownFirstDigit", "NZ", "012345678", "012345678", "", "9"},
	{"NzSevenAfterTrunkDigitIsLocal", "NZ", "09307123", "+64 (9) 9307123", "", "9"},
	{"NzSixAfterTrunkDigitInAreaTwo", "NZ", "0307123", "+64 (24) 307123", "", "24"},
	{"NzSixAfterTrunkDigitElsewhere", "NZ", "0307123", "0307123", "", "9"},
	{"NzSeven", "NZ", "3071234", "+64 (9) 3071234", "", "9"},
	{"NzSixInAreaTwo", "NZ", "307123", "+64 (24) 307123", "", "24"},
	{"NzSixWithoutSiteAreaCode", "NZ", "307123", "307123"},
	{"NzFive", "NZ", "30712", "30712", "", "24"},
	{"NzBehindExternalPrefix", "NZ", "1093071234", "+64 (9) 3071234", "1", "9"},
	{"NzTwoZerosThenExternalPrefix", "NZ", "0093071234", "+64 (9) 3071234", "0", "9"},
	{"NzBehindExternalPrefixWithoutTrunk", "NZ", "1930712345", "1930712345", "1", "9"},
};

INSTANTIATE_TEST_SUITE_P(Plans, CountryPlansTest, ::testing::ValuesIn(CONVERSIONS), numbering::test::RowName());

/// The debug messages of one plan's life: built, asked for number, released. "@" stands for the site.
struct Trace
{
	const char* country;
	const char* loggerName;
	const char* number;
	const char* extPrefix;
	std::vector<std::string> messages;
};

class CountryPlanTracesTest: public ConfigFixture, public ::testing::WithParamInterface<Trace>
{
protected:
	/// The lines of the plan's own logger, with the switch set to traces.
	std::vector<std::string> planLines(bool traces)
	{
		ZelDialRulesItem site(GetParam().country, GetParam().extPrefix, 0, "1", 0, "");
		Logger::m_Traces = traces;
		LogCapture::clear();
		Poco::AutoPtr<ZelCNP> plan(makePlan(GetParam().country));
		plan->qap_Country_MakeCanonicalNumber(GetParam().number, &site);
		plan = nullptr;
		return LogCapture::matching("", GetParam().loggerName);
	}

	std::vector<std::string> expectedLines()
	{
		ZelDialRulesItem site(GetParam().country, GetParam().extPrefix, 0, "1", 0, "");
		std::vector<std::string> lines;
		for (std::string message : GetParam().messages)
		{
			const std::size_t at = message.find('@');
			if (at != std::string::npos) message.replace(at, 1, site.ToString());
			lines.push_back(std::string("DEBUG ") + GetParam().loggerName + " - " + message);
		}
		return lines;
	}

	void SetUp() override
	{
		ConfigFixture::SetUp();
		writeFile("dialingrules.properties", SIX_COUNTRIES);
	}
};

TEST_P(CountryPlanTracesTest, WritesItsDebugLinesInOrder)
{
	EXPECT_EQ(expectedLines(), planLines(true));
}

TEST_P(CountryPlanTracesTest, WritesNothingWithoutTraces)
{
	EXPECT_TRUE(planLines(false).empty());
}

const Trace TRACES[] = {
	{"US", "N9numbering8ZelCNP_1E", "5551234", "", {"ZelCNP_1()", "qap_Country_MakeCanonicalNumber('5551234', '@')"}},
	{"FR", "N9numbering9ZelCNP_33E", "123456789", "",
		{"ZelCNP_33()", "qap_Country_MakeCanonicalNumber('123456789', '@')",
			"National number without national prefix detected : '123456789'"}},
	{"RU", "N9numbering8ZelCNP_7E", "089161234567", "0",
		{"ZelCNP_7()", "qap_Country_MakeCanonicalNumber('089161234567', '@')",
			"National number with external prefix detected : '089161234567'"}},
	{"CH", "N9numbering9ZelCNP_41E", "0441234567", "",
		{"ZelCNP_41()", "qap_Country_MakeCanonicalNumber('0441234567', '@')"}},
	{"CO", "N9numbering9ZelCNP_57E", "2345678", "",
		{"ZelCNP_57()", "qap_Country_MakeCanonicalNumber('2345678', '@')",
			"QapArgentinaMakeCanonicalNumber('2345678', '@') = +57 (1) 2345678", "ZelCNP_57: Destruct"}},
	{"NZ", "N9numbering9ZelCNP_64E", "123", "",
		{"ZelCNP_64()", "qap_Country_MakeCanonicalNumber('123', '@')", "ZelCNP_64"}},
};

INSTANTIATE_TEST_SUITE_P(
	Plans, CountryPlanTracesTest, ::testing::ValuesIn(TRACES), [](const ::testing::TestParamInfo<Trace>& info) {
		return std::string(info.param.country);
	});

} // namespace
} // namespace test
} // namespace numbering
