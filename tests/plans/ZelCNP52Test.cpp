// ZelCNP52Test.cpp

#include "plans/MorePlansFixture.h"

#include <gtest/gtest.h>

namespace numbering {
namespace test {
namespace {

const SiteSetup MX55{"MX", "55", "9"};
const SiteSetup MX222{"MX", "222", "9"};
const SiteSetup MX{"MX", "", ""};

// Dialling before August 2019 unless the row says Mexico2019 (ten-digit dialling).
const PlanRow MEXICO[] = {
	{"TwoDigitArea", MX55, "015512345678", "+52 (55) 12345678"},
	{"ThreeDigitArea", MX55, "012221234567", "+52 (222) 1234567"},
	{"MobileOfTheSiteArea", MX55, "0445512345678", "+52 (155) 12345678"},
	{"MobileOfAnotherArea", MX55, "0453312345678", "+52 (133) 12345678"},
	{"Freephone", MX55, "018001234567", "+52 (800) 1234567"},
	{"TenDigits", MX55, "5512345678", "+52 (55) 12345678"},
	{"Local", MX55, "12345678", "+52 (55) 12345678"},
	{"ExtPrefixAndLocal", MX55, "912345678", "+52 (55) 12345678"},
	{"ExtPrefixAndNational", MX55, "9015512345678", "+52 (55) 12345678"},
	{"LocalOfWrongLength", MX55, "1234567", "1234567"},
	{"MobileOfThreeDigitSiteArea", MX222, "0442221234567", "+52 (1222) 1234567"},
	{"LocalOfThreeDigitSiteArea", MX222, "1234567", "+52 (222) 1234567"},
	{"InternationalMobile", MX, "0115512345678", "+52 (155) 12345678"},
	{"International", MX, "015512345678", "+52 (55) 12345678"},
	{"MobileIn2019", MX55, "0445512345678", "+52 (55) 12345678", Setting::Mexico2019},
	{"InternationalMobileIn2019", MX, "15512345678", "+52 (55) 12345678", Setting::Mexico2019},
	{"TenDigitsIn2019", MX55, "5512345678", "+52 (55) 12345678", Setting::Mexico2019},
	{"OldPrefixIn2019", MX55, "015512345678", "+52 (55) 12345678", Setting::Mexico2019},
	{"InternationalIn2019", MX, "5512345678", "+52 (55) 12345678", Setting::Mexico2019},
	{"OneDigitShortKeepsCountry", MX, "01551234567", "+52 551234567"},
	{"ExtPrefixAndOneDigitShort", MX55, "901551234567", "+52 551234567"},
	{"NationalNumberBeginningWithOneKeepsCountry", MX55, "011234567890", "+52 1234567890"},
	{"TooShort", MX55, "123456", "123456"},
};

class ZelCNP52Test: public MorePlanTest
{
};

TEST_P(ZelCNP52Test, MakesCanonicalNumber)
{
	EXPECT_EQ(GetParam().canonical, canonical("52"));
}

INSTANTIATE_TEST_SUITE_P(Mexico, ZelCNP52Test, ::testing::ValuesIn(MEXICO), planRowName);

} // namespace
} // namespace test
} // namespace numbering
