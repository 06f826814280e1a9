// ZelDialableTest.cpp

#include "dialable/ZelDialable.h"

#include "support/ConfigFixture.h"
#include "support/LogCapture.h"
#include "support/RowName.h"

#include <gtest/gtest.h>

using numbering::test::LogCapture;

namespace numbering {
namespace {

enum class Call
{
	Local,
	LongDist
};

struct RuleCase
{
	const char* name;
	Call call;
	std::string rule;
	std::string area;
	std::string dest;
	std::string expected;
};

/// The rule under test goes into the field of the maker called; the other field holds a decoy rule "9F" whose
/// prefix 9 shows up if a maker reads the wrong rule.
class ZelDialableRuleTest: public ::testing::TestWithParam<RuleCase>
{
};

TEST_P(ZelDialableRuleTest, AppliesOnlyTheLettersOfItsOwnRule)
{
	const RuleCase& c = GetParam();
	const bool local = c.call == Call::Local;
	ZelCountryRuleItem rule("33", "00", "EF", local ? "9F" : c.rule, local ? c.rule : "9F", "France");
	ZelDialable maker;
	std::string area = c.area;
	std::string dest = c.dest;
	const std::string result = local ? maker.makeLocalDialableNumber(area, dest, &rule)
									 : maker.makeLongDistDialableNumber(area, dest, &rule, nullptr);
	EXPECT_EQ(c.expected, result);
	EXPECT_EQ(c.area, area);
	EXPECT_EQ(c.dest, dest);
}

INSTANTIATE_TEST_SUITE_P(Rules,
	ZelDialableRuleTest,
	::testing::Values(RuleCase{"LocalEmptyRuleDialsDestAsItIs", Call::Local, "", "1", "23456789", "23456789"},
		RuleCase{"LocalLowerCaseLettersDoNotCount", Call::Local, "0f", "1", "23456789", "23456789"},
		RuleCase{"LocalLetterEDoesNotCount", Call::Local, "0E", "1", "23456789", "23456789"},
		RuleCase{"LocalIKeepsDestWithPrefix", Call::Local, "0I", "1", "0612345678", "0612345678"},
		RuleCase{"LocalIAddsMissingPrefix", Call::Local, "0I", "1", "612345678", "0612345678"},
		RuleCase{"LocalFFoundAfterOtherLetters", Call::Local, "0FG", "1", "23456789", "0123456789"},
		RuleCase{"LocalAreaAlreadyCarriesPrefix", Call::Local, "0F", "01", "23", "0123"},
		RuleCase{"LocalPartOfPrefixPresent", Call::Local, "00I", "", "0612", "00612"},
		RuleCase{"LocalMergeNeverLooksBack", Call::Local, "012I", "", "02", "012"},
		RuleCase{"LocalPrefixLongerThanDest", Call::Local, "00I", "", "0", "00"},
		RuleCase{"LongDistEmptyRuleDialsDest", Call::LongDist, "", "1", "23456789", "23456789"},
		RuleCase{"LongDistFAddsAreaAndPrefix", Call::LongDist, "0F", "1", "23456789", "0123456789"},
		RuleCase{"LongDistIAddsOnlyPrefix", Call::LongDist, "0I", "1", "23456789", "023456789"}),
	numbering::test::RowName());

class ZelDialableTest: public test::ConfigFixture
{
protected:
	void SetUp() override
	{
		ConfigFixture::SetUp();
		writeFile("dialingrules.properties", "FR = 33:00:EF:0F:0F:France:P\n"
											 "GB = 44:00:EF:0F:F:United Kingdom:P\n"
											 "US = 1:011:EF:F:G:United States:P\n");
	} // namespace
};    // namespace numbering

TEST_F(ZelDialableTest, LongDistWritesItsTraceOnlyWhenTracesAreOn)
{
	ZelCountryRuleItem rule("33", "00", "EF", "0F", "", "France");
	ZelDialable maker;
	std::string area = "1";
	std::string dest = "23456789";
	maker.makeLongDistDialableNumber(area, dest, &rule, nullptr);
	EXPECT_TRUE(LogCapture::lines().empty());
	Logger::m_Traces = true;
	maker.makeLongDistDialableNumber(area, dest, &rule, nullptr);
	const std::vector<std::string> expected{
		"DEBUG N9numbering11ZelDialableE - makeLongDistDialableNumber() AreaNatPfx: '1' dest: 23456789 result: "
		"0123456789"};
	EXPECT_EQ(expected, LogCapture::lines());
}

struct InternationalCase
{
	const char* name;
	std::string internatRule;
	std::string countryNumber;
	std::string area;
	std::string dest;
	std::string expected;
	std::string areaAfter;
};

class ZelDialableInternationalTest: public ZelDialableTest, public ::testing::WithParamInterface<InternationalCase>
{
};

TEST_P(ZelDialableInternationalTest, DialsPrefixCountryAreaAndDest)
{
	const InternationalCase& c = GetParam();
	ZelCountryRuleItem rule("33", "00", c.internatRule, "0F", "", "France");
	ZelDialable maker;
	std::string countryNumber = c.countryNumber;
	std::string area = c.area;
	std::string dest = c.dest;
	EXPECT_EQ(c.expected, maker.makeInternationalDialableNumber(countryNumber, area, dest, &rule));
	EXPECT_EQ(c.areaAfter, area);
	EXPECT_EQ(c.countryNumber, countryNumber);
	EXPECT_EQ(c.dest, dest);
}

INSTANTIATE_TEST_SUITE_P(Rules,
	ZelDialableInternationalTest,
	::testing::Values(InternationalCase{"CountryAndArea", "EF", "44", "20", "12345678", "00442012345678", "20"},
		InternationalCase{"CountryOnlyLeavesAreaOut", "E", "44", "20", "12345678", "004412345678", "20"},
		InternationalCase{"AreaOnly", "F", "44", "20", "12345678", "002012345678", "20"},
		InternationalCase{"NeitherLetterDialsPrefixAndDest", "I", "44", "20", "12345678", "0012345678", "20"},
		InternationalCase{"LettersFoundAnywhere", "XEYF", "44", "20", "12345678", "00442012345678", "20"},
		InternationalCase{"TrunkPrefixAsAreaIsDropped", "EF", "44", "0", "2012345678", "00442012345678", ""},
		InternationalCase{"AreaOnlyStartingWithTrunkIsKept", "EF", "44", "020", "12345678", "004402012345678", "020"},
		InternationalCase{"UnknownCountryKeepsArea", "EF", "999", "0", "12", "00999012", "0"},
		InternationalCase{"TrunkKeptWithoutLetterF", "E", "44", "0", "2012345678", "00442012345678", "0"}),
	numbering::test::RowName());

} // namespace
} // namespace numbering
