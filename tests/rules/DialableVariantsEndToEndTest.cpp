// DialableVariantsEndToEndTest.cpp

#include "numbering/ZelDialRulesItem.h"
#include "numbering/ZelNumberingRules.h"

#include "support/ConfigFixture.h"
#include "support/RowName.h"

#include <gtest/gtest.h>

#include <ostream>

namespace numbering {
namespace {

struct Site
{
	const char* country;
	const char* areaCode;
	const char* extPrefix;
};

struct PhoneCase
{
	const char* name;
	Site site;
	const char* input;
	const char* expected;
};

const Site BOGOTA{"CO", "1", "0"};
const Site MEXICO_CITY{"MX", "55", "9"};
const Site GUADALAJARA{"MX", "33", "9"};
const Site SYDNEY{"AU", "2", "0"};
const Site MOSCOW{"RU", "495", "9"};

/// The countries of the four dialable variants and Spain; Colombia dials the carrier 4 and knows the carriers 5
/// and 7; Australia's area codes are 2, 3, 7 and 8. Local numbers are shorter than 5 digits at every site.
class DialableVariantsEndToEndTest: public test::ConfigFixture, public ::testing::WithParamInterface<PhoneCase>
{
protected:
	void SetUp() override
	{
		ConfigFixture::SetUp();
		writeFile("dialingrules.properties", R"(CO=57:00:EFG:0FG:G:Colombia:P
ES=34:00:EFG:FG:G:Spain:P
MX=52:00:EFG:01FG:G:Mexico:P
AU=61:0011:EFG:0FG:G:Australia:P
RU=7:810:EFG:8FG:G:Russia:P
)");
		writeFile("r7731cnp_57.properties", "OP_DEFAULT=4\nOP_0000=5\nOP_0001=7\n");
		writeFile("r7731cnp_61.properties", "Translate=1\nAC_0000=2\nAC_0001=3\nAC_0002=7\nAC_0003=8\n");
	}
};

TEST_P(DialableVariantsEndToEndTest, MakesPhoneNumber)
{
	const PhoneCase& c = GetParam();
	ZelDialRulesItem site(c.site.country, c.site.extPrefix, 5, c.site.areaCode, 0, "");
	EXPECT_EQ(c.expected, ZelNumberingRules::getInstance()->makePhoneNumber(&site, c.input));
}

// A carrier dialled towards another country is dropped from the canonical number, one dialled towards Colombia
// stays in the national number the Colombian plan reads; either way the site's own carrier 4 is dialled, and
// abroad the subscriber number is dialled twice.
INSTANTIATE_TEST_SUITE_P(Sites,
	DialableVariantsEndToEndTest,
	::testing::Values(PhoneCase{"ColombiaAbroadWithCarrier", BOGOTA, "005 34 91 123 4567", "0004911234567911234567"},
		PhoneCase{"ColombiaOwnCountryWithCarrier", BOGOTA, "005 57 4 234 5678", "00442345678"},
		PhoneCase{"ColombiaMobile", BOGOTA, "+57 300 123 4567", "0033001234567"},
		PhoneCase{"MexicoMobileOfOwnArea", MEXICO_CITY, "+52 1 55 1234 5678", "90445512345678"},
		PhoneCase{"MexicoMobileOfAnotherArea", GUADALAJARA, "+52 1 55 1234 5678", "90455512345678"},
		PhoneCase{"MexicoOtherArea", GUADALAJARA, "+52 55 1234 5678", "9015512345678"},
		PhoneCase{"AustraliaOtherArea", SYDNEY, "+61 3 9000 1234", "00390001234"},
		PhoneCase{"AustraliaMobile", SYDNEY, "+61 4 1234 5678", "00412345678"},
		PhoneCase{"AustraliaLocalRate", SYDNEY, "1300 123 456", "01300123456"},
		PhoneCase{"RussiaNineDigits", MOSCOW, "+7 812 123 456", "9812123456"}),
	numbering::test::RowName());

} // namespace
} // namespace numbering
