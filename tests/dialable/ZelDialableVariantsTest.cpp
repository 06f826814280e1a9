// ZelDialableVariantsTest.cpp

#include "dialable/ZelDialable_52.h"
#include "dialable/ZelDialable_61.h"
#include "dialable/ZelDialable_7.h"
#include "support/ConfigFixture.h"
#include "support/LogCapture.h"

#include <gtest/gtest.h>

using numbering::test::LogCapture;

namespace numbering {
namespace {

struct LongDistCase
{
	const char* name;
	std::string siteArea;
	std::string area;
	std::string dest;
	std::string expected;
};

std::string caseName(const ::testing::TestParamInfo<LongDistCase>& info)
{
	return info.param.name;
}

const char* const DIALING_RULES = "MX = 52:00:EF:01F::Mexico:P\n"
								  "AU = 61:0011:EF:0F::Australia:P\n"
								  "RU = 7:810:EF:8F::Russia:P\n";

/// Traces on, a configuration where Russia's long-distance prefix is "8", and a rule record whose long-distance
/// prefix is "01", which only the Mexican maker may read.
class ZelDialableVariantsTest: public test::ConfigFixture
{
protected:
	void SetUp() override
	{
		ConfigFixture::SetUp();
		writeFile("dialingrules.properties", DIALING_RULES);
		Logger::m_Traces = true;
	}

	/// The result of maker for the case, after checking that the caller's strings are left alone and that the
	/// last line logged is the maker's closing trace.
	std::string dial(ZelDialable& maker, const LongDistCase& c, const std::string& expectedTrace)
	{
		ZelDialRulesItem site;
		site.setAreaCode(c.siteArea);
		std::string area = c.area;
		std::string dest = c.dest;
		const std::string result = maker.makeLongDistDialableNumber(area, dest, &m_Rule, &site);
		EXPECT_EQ(c.area, area);
		EXPECT_EQ(c.dest, dest);
		const std::vector<std::string> lines = LogCapture::lines();
		EXPECT_FALSE(lines.empty());
		if (!lines.empty())
		{
			EXPECT_EQ(expectedTrace, lines.back());
		}
		return result;
	}

	static std::string trace(const std::string& logger, const std::string& label, const LongDistCase& c)
	{
		return "DEBUG " + logger + " - " + label + " makeLongDistDialableNumber() AreaNatPfx: '" + c.area +
			   "' dest: " + c.dest + " result: " + c.expected;
	}

	ZelCountryRuleItem m_Rule{"52", "00", "EF", "01F", "", "Mexico"};
};

class ZelDialable52Test: public ZelDialableVariantsTest, public ::testing::WithParamInterface<LongDistCase>
{
};

TEST_P(ZelDialable52Test, DialsMobilesBehindTheirOwnTrunkPrefix)
{
	ZelDialable_52 maker;
	const LongDistCase& c = GetParam();
	EXPECT_EQ(c.expected, dial(maker, c, trace("N9numbering14ZelDialable_52E", "52-MX", c)));
}

INSTANTIATE_TEST_SUITE_P(Mexico,
	ZelDialable52Test,
	::testing::Values(LongDistCase{"MobileOfOwnArea", "55", "155", "12345678", "0445512345678"},
		LongDistCase{"MobileOfAnotherArea", "33", "155", "12345678", "0455512345678"},
		LongDistCase{"MobileAtSiteWithoutArea", "", "155", "12345678", "0455512345678"},
		LongDistCase{"BareMobileDigitAtSiteWithoutArea", "", "1", "12345678", "04412345678"},
		LongDistCase{"FixedLine", "55", "33", "12345678", "013312345678"},
		LongDistCase{"NoAreaPart", "55", "", "5512345678", "015512345678"}),
	caseName);

class ZelDialable61Test: public ZelDialableVariantsTest, public ::testing::WithParamInterface<LongDistCase>
{
};

TEST_P(ZelDialable61Test, AddsTheTrunkDigitUnlessTheNumberBeginsWithOneOrZero)
{
	ZelDialable_61 maker;
	const LongDistCase& c = GetParam();
	EXPECT_EQ(c.expected, dial(maker, c, trace("N9numbering14ZelDialable_61E", "61-AU", c)));
}

INSTANTIATE_TEST_SUITE_P(Australia,
	ZelDialable61Test,
	::testing::Values(LongDistCase{"AreaWithoutTrunkDigit", "", "2", "12345678", "0212345678"},
		LongDistCase{"AreaWithTrunkDigit", "", "02", "12345678", "0212345678"},
		LongDistCase{"NationwideNumberWithoutArea", "", "", "1300123456", "1300123456"},
		LongDistCase{"AreaBeginningWithOne", "", "1", "800123456", "1800123456"},
		LongDistCase{"MobileWithoutArea", "", "", "412345678", "0412345678"},
		LongDistCase{"NothingToDial", "", "", "", "0"}),
	caseName);

class ZelDialable7Test: public ZelDialableVariantsTest, public ::testing::WithParamInterface<LongDistCase>
{
};

TEST_P(ZelDialable7Test, AddsTheRussianTrunkPrefixOnlyToElevenDigits)
{
	ZelDialable_7 maker;
	const LongDistCase& c = GetParam();
	EXPECT_EQ(c.expected, dial(maker, c, trace("N9numbering13ZelDialable_7E", "7-RU", c)));
}

INSTANTIATE_TEST_SUITE_P(Russia,
	ZelDialable7Test,
	::testing::Values(LongDistCase{"TenDigits", "", "495", "1234567", "84951234567"},
		LongDistCase{"TenDigitsWithoutArea", "", "", "4951234567", "84951234567"},
		LongDistCase{"NineDigits", "", "49", "1234567", "491234567"},
		LongDistCase{"ElevenDigits", "", "4951", "1234567", "49511234567"},
		LongDistCase{"NothingToDial", "", "", "", ""}),
	caseName);

class ZelDialableRussianPrefixTest: public test::ConfigFixture
{
protected:
	std::string dialWithRules(const std::string& rules)
	{
		writeFile("dialingrules.properties", rules);
		ZelDialable_7 maker;
		ZelCountryRuleItem rule("7", "810", "EF", "8F", "", "Russia");
		ZelDialRulesItem site;
		std::string area = "49";
		std::string dest = "1234567";
		return maker.makeLongDistDialableNumber(area, dest, &rule, &site);
	}
};

TEST_F(ZelDialableRussianPrefixTest, CountsTheConfiguredPrefixLength)
{
	EXPECT_EQ("89491234567", dialWithRules("RU = 7:810:EF:89F::Russia:P\n"));
}

TEST_F(ZelDialableRussianPrefixTest, DialsAsItStandsWithoutRussiaInTheConfiguration)
{
	EXPECT_EQ("491234567", dialWithRules("FR = 33:00:EF:0F::France:P\n"));
}

TEST_F(ZelDialableVariantsTest, VariantsWriteNoTraceWhenTracesAreOff)
{
	Logger::m_Traces = false;
	ZelDialable_52 mexico;
	ZelDialable_61 australia;
	ZelDialable_7 russia;
	ZelDialRulesItem site;
	for (ZelDialable* maker :
		{static_cast<ZelDialable*>(&mexico), static_cast<ZelDialable*>(&australia), static_cast<ZelDialable*>(&russia)})
	{
		std::string area = "495";
		std::string dest = "1234567";
		maker->makeLongDistDialableNumber(area, dest, &m_Rule, &site);
	}
	EXPECT_EQ(0, LogCapture::count("makeLongDistDialableNumber"));
}

} // namespace
} // namespace numbering
