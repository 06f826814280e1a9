// ZelNumberingRulesFormattingTest.cpp

#include "numbering/ZelNumberingRules.h"

#include "support/ConfigFixture.h"
#include "support/LogCapture.h"
#include "support/RowName.h"

#include <gtest/gtest.h>

using numbering::test::LogCapture;

namespace numbering {
namespace {

const char* const LOGGER = "N9numbering17ZelNumberingRulesE - ";

/// Trunk prefix 0 with area codes (FR, GB, DE), trunk 0 without area codes (IT), neither (ES), and area codes
/// without trunk prefix (US); a mask for 33 only.
class ZelNumberingRulesFormattingTest: public test::ConfigFixture
{
protected:
	void SetUp() override
	{
		ConfigFixture::SetUp();
		writeFile("dialingrules.properties", "FR = 33:00:EF:0F:0F:France:P\n"
											 "GB = 44:00:EF:0F:F:United Kingdom:P\n"
											 "DE = 49:00:EF:0F:0F:Germany:P\n"
											 "IT = 39:00:EF:0I::Italy:P\n"
											 "ES = 34:00:EF:G:G:Spain:P\n"
											 "US = 1:011:EF:F:G:United States:P\n");
		writeFile("qap_cnp_mask.properties", "Mask_33_1 = +C (a) xx xx xx xx\n");
		m_Rules = ZelNumberingRules::getInstance();
	}

	/// The facade's error lines captured so far.
	static std::vector<std::string> errorLines()
	{
		return LogCapture::matching(std::string("ERROR ") + LOGGER);
	}

	ZelNumberingRules* m_Rules = nullptr;
};

/// formatCanonicalNumber(number, pattern), or generateDefaultCanonicalNumber(number, country, area) where the
/// row has an area.
struct LayoutCase
{
	const char* name;
	std::string number;
	std::string patternOrCountry;
	const char* area;
	std::string expected;
};

class ZelNumberingRulesLayoutTest: public ZelNumberingRulesFormattingTest,
								   public ::testing::WithParamInterface<LayoutCase>
{
};

TEST_P(ZelNumberingRulesLayoutTest, LaysOutWithoutAnError)
{
	const LayoutCase& c = GetParam();
	EXPECT_EQ(c.expected, c.area ? m_Rules->generateDefaultCanonicalNumber(c.number, c.patternOrCountry, c.area)
								 : m_Rules->formatCanonicalNumber(c.number, c.patternOrCountry));
	EXPECT_EQ(std::vector<std::string>(), errorLines());
}

INSTANTIATE_TEST_SUITE_P(Patterns,
	ZelNumberingRulesLayoutTest,
	::testing::Values(
		LayoutCase{"CountryAreaAndPairs", "+33 (1) 23456789", "+C (A) xx xx xx xx", nullptr, "+33 (1) 23 45 67 89"},
		LayoutCase{"AreaThatIsNotTrunkShown", "+33 (1) 23456789", "+C (a) xx xx xx xx", nullptr, "+33 (1) 23 45 67 89"},
		LayoutCase{"TrunkAreaLeftOutByLowerA", "+44 (0) 2012345678", "+C a x", nullptr, "+44  2012345678"},
		LayoutCase{"TrunkAreaKeptByUpperA", "+44 (0) 2012345678", "+C (A) x", nullptr, "+44 (0) 2012345678"},
		LayoutCase{"UnknownCountryShowsArea", "+999 (0) 12", "C a xx", nullptr, "999 0 12"},
		LayoutCase{"LeftoverDigitsFollowAtTheEnd", "+49 (30) 1234567", "C A xx/", nullptr, "49 30 12/34567"},
		LayoutCase{"SurplusXPrintNothing", "+49 (30) 123", "xxxxx.", nullptr, "123."},
		LayoutCase{"BlankInSubscriberUsesUpAnX", "+33 (1) 23 45", "xxx-x", nullptr, "23-45"},
		LayoutCase{"OtherCharactersCopied", "+33 (1) 23", "00C-[A]-zxx", nullptr, "0033-[1]-z23"},
		LayoutCase{"NoSubscriberPart", "+33 (1)", "C-A-x", nullptr, "33-1-"},
		LayoutCase{"WithoutParenthesesUnchanged", "+33 123456789", "+C (A) xx", nullptr, "+33 123456789"},
		LayoutCase{"EmptyPatternTakesTheMask", "+33 (1) 23456789", "", nullptr, "+33 (1) 23 45 67 89"},
		LayoutCase{"MaskFoundForTrimmedCountry", "+33  (1) 23456789", "", nullptr, "+33 (1) 23 45 67 89"},
		LayoutCase{"EmptyPatternWithoutMaskUnchanged", "+49 (30) 1234567", "", nullptr, "+49 (30) 1234567"}),
	numbering::test::RowName());

INSTANTIATE_TEST_SUITE_P(DefaultCanonicalNumbers,
	ZelNumberingRulesLayoutTest,
	::testing::Values(LayoutCase{"AreaSplitOff", "0201234567", "GB", "20", "+44 (20) 1234567"},
		LayoutCase{"TrunkStandsForMissingArea", "0201234567", "GB", "", "+44 (0) 201234567"},
		LayoutCase{"TrunkRemovedFromArea", "0201234567", "GB", "020", "+44 (20) 1234567"},
		LayoutCase{"NumberNotBeginningWithArea", "0312345", "GB", "20", "+44 (20) 312345"},
		LayoutCase{"AreaThatIsOnlyTheTrunk", "0201234567", "GB", "0", "+44 (0) 201234567"},
		LayoutCase{"NumberWithoutTrunk", "201234567", "GB", "20", "+44 (20) 1234567"},
		LayoutCase{"NoAreaDialledKeepsTrunkOnly", "0612345678", "IT", "6", "+39 (0) 612345678"},
		LayoutCase{"NeitherAreaNorTrunk", "912345678", "ES", "91", "+34 912345678"},
		LayoutCase{"AreaWithoutTrunk", "2125551234", "US", "212", "+1 (212) 5551234"},
		LayoutCase{"EmptyNumber", "", "GB", "20", ""},
		LayoutCase{"EmptyCountryCode", "0201234567", "", "20", ""},
		LayoutCase{"UnknownCountryCode", "0201234567", "ZZ", "20", ""}),
	numbering::test::RowName());

/// A layout of an unreadable number: the input back and one error line with the operation's cause and the
/// arguments (for formatCanonicalNumber, the mask that stood in for an empty pattern).
struct LayoutErrorCase
{
	const char* name;
	bool gsm;
	std::string canonical;
	std::string pattern;
	std::string cause;
	std::string tail;
};

class ZelNumberingRulesLayoutErrorTest: public ZelNumberingRulesFormattingTest,
										public ::testing::WithParamInterface<LayoutErrorCase>
{
};

TEST_P(ZelNumberingRulesLayoutErrorTest, LogsAndGivesInputBack)
{
	const LayoutErrorCase& c = GetParam();
	EXPECT_EQ(c.canonical, c.gsm ? m_Rules->formatToGSMCanonicalNumber(c.canonical)
								 : m_Rules->formatCanonicalNumber(c.canonical, c.pattern));
	const std::vector<std::string> errors = errorLines();
	ASSERT_EQ(1u, errors.size());
	EXPECT_EQ(0u, errors[0].find(std::string("ERROR ") + LOGGER + "ZelNumberingRules::" + c.cause)) << errors[0];
	EXPECT_EQ(errors[0].size() - c.tail.size(), errors[0].rfind(c.tail)) << errors[0];
}

const std::string LAYOUT_AT = "formatCanonicalNumber exception: basic_string::at";
const std::string GSM_CAUSE = "formatToGSMCanonicalNumber exception: basic_string::";

INSTANTIATE_TEST_SUITE_P(Numbers,
	ZelNumberingRulesLayoutErrorTest,
	::testing::Values(LayoutErrorCase{"CountryWithoutBlank", false, "+33(1)23", "C", LAYOUT_AT,
						  " - strCanPhoneNumberFinal: '+33(1)23', strPattern: 'C'"},
		LayoutErrorCase{"AreaWithoutClosingParenthesis", false, "+33 )1(2", "+C (A)", LAYOUT_AT,
			" - strCanPhoneNumberFinal: '+33 )1(2', strPattern: '+C (A)'"},
		LayoutErrorCase{"MaskQuotedForEmptyPattern", false, "+33(1)23", "", LAYOUT_AT,
			" - strCanPhoneNumberFinal: '+33(1)23', strPattern: '+C (a) xx xx xx xx'"},
		LayoutErrorCase{"GSMNothingAfterArea", true, "+33 (1)", "", GSM_CAUSE, " - strCanPhoneNumber: '+33 (1)'"},
		LayoutErrorCase{"GSMCountryWithoutBlank", true, "+33(1)2", "", GSM_CAUSE, " - strCanPhoneNumber: '+33(1)2'"}),
	numbering::test::RowName());

/// Answers makeCanonicalNumber from a script, so that makeGSMCanonicalNumber is seen on its own.
class ScriptedRules: public ZelNumberingRules
{
public:
	using ZelNumberingRules::makeCanonicalNumber;

	std::string makeCanonicalNumber(ZelDialRulesItem*, std::string, std::string pattern, bool withExtPrefix) override
	{
		seenPattern = pattern;
		seenFlag = withExtPrefix;
		return answer;
	}

	std::string answer;
	std::string seenPattern = "not called";
	bool seenFlag = false;
};

TEST_F(ZelNumberingRulesFormattingTest, GSMCanonicalNumberTurnsOnlyCanonicalAnswersCompact)
{
	const std::vector<std::pair<std::string, std::string>> answers{
		{"+44 (0) 2012345678", "+442012345678"}, {"+4912345", "+4912345"}, {"1234", "1234"}, {"", ""}};
	for (const auto& [answer, expected] : answers)
	{
		ScriptedRules rules;
		rules.answer = answer;
		EXPECT_EQ(expected, rules.makeGSMCanonicalNumber(nullptr, "whatever", true)) << answer;
		EXPECT_EQ("", rules.seenPattern);
		EXPECT_TRUE(rules.seenFlag);
	}
	ScriptedRules rules;
	rules.makeGSMCanonicalNumber(nullptr, "whatever", false);
	EXPECT_FALSE(rules.seenFlag);
}

} // namespace
} // namespace numbering
