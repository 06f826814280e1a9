// ZelDialableVariantsTest.cpp

#include "dialable/ZelDialableFactory.h"
#include "support/ConfigFixture.h"
#include "support/LogCapture.h"
#include "support/RowName.h"

#include "Poco/AutoPtr.h"

#include <gtest/gtest.h>

#include <map>

using numbering::test::LogCapture;

namespace numbering {
namespace {

struct LongDistCase
{
	const char* name;
	std::string country;
	std::string siteArea;
	std::string area;
	std::string dest;
	std::string expected;
};

/// Russia's trunk prefix is "8" in the configuration, while the rule record handed to the makers has "01", which
/// only the Mexican maker may read.
class ZelDialableVariantsTest: public test::ConfigFixture, public ::testing::WithParamInterface<LongDistCase>
{
protected:
	void SetUp() override
	{
		ConfigFixture::SetUp();
		writeFile("dialingrules.properties", "RU = 7:810:EF:8F::Russia:P\n");
		Logger::m_Traces = true;
	}

	std::string dial(const std::string& country, const std::string& siteArea, std::string area, std::string dest)
	{
		Poco::AutoPtr<ZelDialable> maker(ZelDialableFactory::CreateInstance(country));
		ZelCountryRuleItem rule("52", "00", "EF", "01F", "", "Mexico");
		ZelDialRulesItem site;
		site.setAreaCode(siteArea);
		return maker->makeLongDistDialableNumber(area, dest, &rule, &site);
	}
};

TEST_P(ZelDialableVariantsTest, DialsLongDistanceAndTracesTheResult)
{
	const std::map<std::string, std::string> traces{{"52", "N9numbering14ZelDialable_52E - 52-MX"},
		{"61", "N9numbering14ZelDialable_61E - 61-AU"}, {"7", "N9numbering13ZelDialable_7E - 7-RU"}};
	const LongDistCase& c = GetParam();
	EXPECT_EQ(c.expected, dial(c.country, c.siteArea, c.area, c.dest));
	EXPECT_EQ(1, LogCapture::count("DEBUG " + traces.at(c.country) + " makeLongDistDialableNumber() AreaNatPfx: '" +
								   c.area + "' dest: " + c.dest + " result: " + c.expected));
}

INSTANTIATE_TEST_SUITE_P(Countries,
	ZelDialableVariantsTest,
	::testing::Values(LongDistCase{"MexicanMobileOfOwnArea", "52", "55", "155", "12345678", "0445512345678"},
		LongDistCase{"MexicanMobileOfAnotherArea", "52", "33", "155", "12345678", "0455512345678"},
		LongDistCase{"MexicanMobileAtSiteWithoutArea", "52", "", "155", "12345678", "0455512345678"},
		LongDistCase{"MexicanBareMobileDigitAtSiteWithoutArea", "52", "", "1", "12345678", "04412345678"},
		LongDistCase{"MexicanFixedLine", "52", "55", "33", "12345678", "013312345678"},
		LongDistCase{"AustralianAreaWithoutTrunkDigit", "61", "", "2", "12345678", "0212345678"},
		LongDistCase{"AustralianAreaWithTrunkDigit", "61", "", "02", "12345678", "0212345678"},
		LongDistCase{"AustralianNationwideNumber", "61", "", "", "1300123456", "1300123456"},
		LongDistCase{"AustralianAreaBeginningWithOne", "61", "", "1", "800123456", "1800123456"},
		LongDistCase{"AustralianNothingToDial", "61", "", "", "", "0"},
		LongDistCase{"RussianTenDigits", "7", "", "495", "1234567", "84951234567"},
		LongDistCase{"RussianTenDigitsWithoutArea", "7", "", "", "4951234567", "84951234567"},
		LongDistCase{"RussianNineDigits", "7", "", "49", "1234567", "491234567"},
		LongDistCase{"RussianElevenDigits", "7", "", "4951", "1234567", "49511234567"}),
	numbering::test::RowName());

TEST_F(ZelDialableVariantsTest, RussianNumbersWithoutRussiaInTheConfigurationAreDialledAsTheyStand)
{
	writeFile("dialingrules.properties", "FR = 33:00:EF:0F::France:P\n");
	EXPECT_EQ("4951234567", dial("7", "", "495", "1234567"));
}

} // namespace
} // namespace numbering
