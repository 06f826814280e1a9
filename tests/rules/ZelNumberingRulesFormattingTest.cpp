// ZelNumberingRulesFormattingTest.cpp

#include "numbering/ZelNumberingRules.h"

#include "support/ConfigFixture.h"
#include "support/LogCapture.h"

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
		std::vector<std::string> errors;
		for (const std::string& line : LogCapture::lines())
		{
			if (line.rfind(std::string("ERROR ") + LOGGER, 0) == 0) errors.push_back(line);
		}
		return errors;
	}

	ZelNumberingRules* m_Rules = nullptr;
};

struct LayoutCase
{
	const char* name;
	std::string canonical;
	std::string pattern;
	std::string expected;
};

void PrintTo(const LayoutCase& c, std::ostream* os)
{
	*os << c.name;
}

/// Cases name their tests by their name.
template <class Case>
std::string caseName(const ::testing::TestParamInfo<Case>& info)
{
	return info.param.name;
}

class ZelNumberingRulesLayoutTest: public ZelNumberingRulesFormattingTest,
								   public ::testing::WithParamInterface<LayoutCase>
{
};

TEST_P(ZelNumberingRulesLayoutTest, LaysOutByPatternLetters)
{
	EXPECT_EQ(GetParam().expected, m_Rules->formatCanonicalNumber(GetParam().canonical, GetParam().pattern));
	EXPECT_EQ(std::vector<std::string>(), errorLines());
}

INSTANTIATE_TEST_SUITE_P(Patterns,
	ZelNumberingRulesLayoutTest,
	::testing::Values(
		LayoutCase{"CountryAreaAndPairs", "+33 (1) 23456789", "+C (A) xx xx xx xx", "+33 (1) 23 45 67 89"},
		LayoutCase{"AreaThatIsNotTrunkShown", "+33 (1) 23456789", "+C (a) xx xx xx xx", "+33 (1) 23 45 67 89"},
		LayoutCase{"TrunkAreaLeftOutByLowerA", "+44 (0) 2012345678", "+C a x", "+44  2012345678"},
		LayoutCase{"TrunkAreaKeptByUpperA", "+44 (0) 2012345678", "+C (A) x", "+44 (0) 2012345678"},
		LayoutCase{"UnknownCountryShowsArea", "+999 (0) 12", "C a xx", "999 0 12"},
		LayoutCase{"LeftoverDigitsFollowAtTheEnd", "+49 (30) 1234567", "C A xx/", "49 30 12/34567"},
		LayoutCase{"SurplusXPrintNothing", "+49 (30) 123", "xxxxx.", "123."},
		LayoutCase{"BlankInSubscriberUsesUpAnX", "+33 (1) 23 45", "xxx-x", "23-45"},
		LayoutCase{"OtherCharactersCopied", "+33 (1) 23", "00C-[A]-zxx", "0033-[1]-z23"},
		LayoutCase{"NoSubscriberPart", "+33 (1)", "C-A-x", "33-1-"},
		LayoutCase{"WithoutParenthesesUnchanged", "+33 123456789", "+C (A) xx", "+33 123456789"},
		LayoutCase{"EmptyPatternTakesTheMask", "+33 (1) 23456789", "", "+33 (1) 23 45 67 89"},
		LayoutCase{"MaskFoundForTrimmedCountry", "+33  (1) 23456789", "", "+33 (1) 23 45 67 89"},
		LayoutCase{"EmptyPatternWithoutMaskUnchanged", "+49 (30) 1234567", "", "+49 (30) 1234567"}),
	caseName<LayoutCase>);

class ZelNumberingRulesLayoutErrorTest: public ZelNumberingRulesFormattingTest,
										public ::testing::WithParamInterface<LayoutCase>
{
};

TEST_P(ZelNumberingRulesLayoutErrorTest, PartRunningOffTheEndLogsAndGivesInputBack)
{
	const LayoutCase& c = GetParam();
	EXPECT_EQ(c.canonical, m_Rules->formatCanonicalNumber(c.canonical, c.pattern));
	const std::vector<std::string> errors = errorLines();
	ASSERT_EQ(1u, errors.size());
	EXPECT_EQ(0u, errors[0].find(std::string("ERROR ") + LOGGER +
								 "ZelNumberingRules::formatCanonicalNumber exception: basic_string::at"))
		<< errors[0];
	const std::string tail = " - strCanPhoneNumberFinal: '" + c.canonical + "', strPattern: '" + c.pattern + "'";
	EXPECT_NE(std::string::npos, errors[0].find(tail)) << errors[0];
}

INSTANTIATE_TEST_SUITE_P(Numbers,
	ZelNumberingRulesLayoutErrorTest,
	::testing::Values(LayoutCase{"CountryWithoutBlank", "+33(1)23", "C", ""},
		LayoutCase{"AreaWithoutClosingParenthesis", "+33 )1(2", "+C (A)", ""}),
	caseName<LayoutCase>);

TEST_F(ZelNumberingRulesFormattingTest, ErrorLineQuotesTheMaskThatStoodInForAnEmptyPattern)
{
	EXPECT_EQ("+33(1)23", m_Rules->formatCanonicalNumber("+33(1)23", ""));
	const std::vector<std::string> errors = errorLines();
	ASSERT_EQ(1u, errors.size());
	const std::string tail = " - strCanPhoneNumberFinal: '+33(1)23', strPattern: '+C (a) xx xx xx xx'";
	EXPECT_EQ(errors[0].size() - tail.size(), errors[0].rfind(tail)) << errors[0];
}

struct GSMCase
{
	const char* name;
	std::string canonical;
	std::string expected;
};

void PrintTo(const GSMCase& c, std::ostream* os)
{
	*os << c.name;
}

class ZelNumberingRulesGSMTest: public ZelNumberingRulesFormattingTest, public ::testing::WithParamInterface<GSMCase>
{
};

TEST_P(ZelNumberingRulesGSMTest, RunsCountryAreaAndSubscriberTogether)
{
	EXPECT_EQ(GetParam().expected, m_Rules->formatToGSMCanonicalNumber(GetParam().canonical));
	EXPECT_EQ(std::vector<std::string>(), errorLines());
}

INSTANTIATE_TEST_SUITE_P(Numbers,
	ZelNumberingRulesGSMTest,
	::testing::Values(GSMCase{"TrunkAreaDropped", "+44 (0) 2012345678", "+442012345678"},
		GSMCase{"AreaKept", "+49 (30) 1234567", "+49301234567"},
		GSMCase{"SubscriberCopiedAsItStands", "+33 (1) 23 45", "+33123 45"},
		GSMCase{"UnknownCountryKeepsArea", "+999 (0) 12", "+999012"},
		GSMCase{"NothingAfterTheArea", "+33 (1) ", "+331"},
		GSMCase{"WithoutParenthesesUnchanged", "+4912345", "+4912345"},
		GSMCase{"ServiceCodeUnchanged", "+33 (1) ***12", "+33 (1) ***12"}),
	caseName<GSMCase>);

TEST_F(ZelNumberingRulesFormattingTest, GSMFormOfUnreadableNumberLogsAndGivesInputBack)
{
	for (const std::string canonical : {"+33 (1)", "+33(1)2"})
	{
		LogCapture::clear();
		EXPECT_EQ(canonical, m_Rules->formatToGSMCanonicalNumber(canonical));
		const std::vector<std::string> errors = errorLines();
		ASSERT_EQ(1u, errors.size()) << canonical;
		EXPECT_EQ(0u, errors[0].find(std::string("ERROR ") + LOGGER +
									 "ZelNumberingRules::formatToGSMCanonicalNumber exception: basic_string::"))
			<< errors[0];
		EXPECT_NE(std::string::npos, errors[0].find(" - strCanPhoneNumber: '" + canonical + "'")) << errors[0];
	}
}

struct DefaultCase
{
	const char* name;
	std::string number;
	std::string countryCode;
	std::string area;
	std::string expected;
};

void PrintTo(const DefaultCase& c, std::ostream* os)
{
	*os << c.name;
}

class ZelNumberingRulesDefaultTest: public ZelNumberingRulesFormattingTest,
									public ::testing::WithParamInterface<DefaultCase>
{
};

TEST_P(ZelNumberingRulesDefaultTest, BuildsCanonicalNumberWithoutPlan)
{
	const DefaultCase& c = GetParam();
	EXPECT_EQ(c.expected, m_Rules->generateDefaultCanonicalNumber(c.number, c.countryCode, c.area));
	EXPECT_EQ(std::vector<std::string>(), errorLines());
}

INSTANTIATE_TEST_SUITE_P(Countries,
	ZelNumberingRulesDefaultTest,
	::testing::Values(DefaultCase{"AreaSplitOff", "0201234567", "GB", "20", "+44 (20) 1234567"},
		DefaultCase{"TrunkStandsForMissingArea", "0201234567", "GB", "", "+44 (0) 201234567"},
		DefaultCase{"TrunkRemovedFromArea", "0201234567", "GB", "020", "+44 (20) 1234567"},
		DefaultCase{"NumberNotBeginningWithArea", "0312345", "GB", "20", "+44 (20) 312345"},
		DefaultCase{"AreaThatIsOnlyTheTrunk", "0201234567", "GB", "0", "+44 (0) 201234567"},
		DefaultCase{"NumberWithoutTrunk", "201234567", "GB", "20", "+44 (20) 1234567"},
		DefaultCase{"NoAreaDialledKeepsTrunkOnly", "0612345678", "IT", "6", "+39 (0) 612345678"},
		DefaultCase{"NeitherAreaNorTrunk", "912345678", "ES", "91", "+34 912345678"},
		DefaultCase{"AreaWithoutTrunk", "2125551234", "US", "212", "+1 (212) 5551234"},
		DefaultCase{"EmptyNumber", "", "GB", "20", ""},
		DefaultCase{"EmptyCountryCode", "0201234567", "", "20", ""},
		DefaultCase{"UnknownCountryCode", "0201234567", "ZZ", "20", ""}),
	caseName<DefaultCase>);

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
