// CountryPlansEndToEndTest.cpp

#include "numbering/ZelClid.h"
#include "numbering/ZelEnumOrigin.h"
#include "numbering/ZelNumberingRules.h"

#include "support/ConfigFixture.h"
#include "support/PlanSites.h"
#include "support/TableRows.h"

#include "Poco/AutoPtr.h"

#include <gtest/gtest.h>

#include <string>

namespace numbering {
namespace test {
namespace {

/// A number at a site: its canonical form, what the exchange dials, and its calling-line identity.
struct Trip
{
	const char* name;
	SiteSetup site;
	const char* input;
	const char* canonical;
	const char* dialled;
	const char* clidNumber;
	const char* clidOrigin;
};

const SiteSetup PARIS{"FR", "1", "9"};
const SiteSetup MOSCOW{"RU", "495", "9"};
const SiteSetup NEW_YORK{"US", "212", "9"};
const SiteSetup ZURICH{"CH", "44", "0"};
const SiteSetup BOGOTA{"CO", "1", "0"};
const SiteSetup AUCKLAND{"NZ", "9", "1"};

const Trip TRIPS[] = {
	{"FrNational", PARIS, "01 23 45 67 89", "+33 (0) 123456789", "90123456789", "123456789", "National"},
	{"FrWithoutTrunkPrefix", PARIS, "123456789", "+33 (0) 123456789", "90123456789", "123456789", "National"},
	{"FrCanonical", PARIS, "+33 1 23 45 67 89", "+33 (0) 123456789", "90123456789", "123456789", "National"},
	{"FrToRussia", PARIS, "0079161234567", "+7 (916) 1234567", "90079161234567", "79161234567", "International"},
	{"FrInternalExtension", PARIS, "1234", "1234", "1234", "1234", "Private"},
	{"RuNational", MOSCOW, "8 916 123-45-67", "+7 (916) 1234567", "989161234567", "9161234567", "National"},
	{"RuWithoutTrunkPrefix", MOSCOW, "9161234567", "+7 (916) 1234567", "989161234567", "9161234567", "National"},
	{"RuOwnArea", MOSCOW, "84951234567", "+7 (495) 1234567", "91234567", "1234567", "Public"},
	{"RuCanonical", MOSCOW, "+7 495 123 45 67", "+7 (495) 1234567", "91234567", "1234567", "Public"},
	{"UsLocal", NEW_YORK, "555-1234", "+1 (212) 5551234", "95551234", "5551234", "Public"},
	{"UsNational", NEW_YORK, "1 312 555 1234", "+1 (312) 5551234", "913125551234", "3125551234", "National"},
	{"UsToFrance", NEW_YORK, "011 33 1 23 45 67 89", "+33 (0) 123456789", "901133123456789", "330123456789",
		"International"},
	{"ChOwnArea", ZURICH, "044 123 45 67", "+41 (44) 1234567", "01234567", "1234567", "Public"},
	{"ChOtherArea", ZURICH, "0311234567", "+41 (31) 1234567", "00311234567", "311234567", "National"},
	{"ChOldZurich", ZURICH, "012345678", "+41 (1) 2345678", "0012345678", "12345678", "National"},
	{"ChFreePhone", ZURICH, "0800 123 456", "+41 800123456", "00800123456", "800123456", "National"},
	{"ChUnknownCountryBehindExternalPrefix", ZURICH, "00451234567", "+41 (45) 1234567", "00451234567", "451234567",
		"National"},
	{"CoLocal", BOGOTA, "234 56 78", "+57 (1) 2345678", "02345678", "2345678", "Public"},
	{"CoOtherArea", BOGOTA, "0942345678", "+57 (4) 2345678", "00942345678", "42345678", "National"},
	{"CoCanonical", BOGOTA, "+57 4 234 5678", "+57 (4) 2345678", "00942345678", "42345678", "National"},
	{"NzLocal", AUCKLAND, "307 1234", "+64 (9) 3071234", "13071234", "3071234", "Public"},
	{"NzOtherArea", AUCKLAND, "04 307 1234", "+64 (4) 3071234", "1043071234", "43071234", "National"},
	{"NzSixDigitsOutsideAreaTwo", AUCKLAND, "307123", "307123", "1307123", "307123", "Private"},
};

class CountryPlansEndToEndTest: public ConfigFixture, public ::testing::WithParamInterface<Trip>
{
protected:
	void SetUp() override
	{
		ConfigFixture::SetUp();
		writeFile("dialingrules.properties", PLAN_COUNTRIES);
	}
};

TEST_P(CountryPlansEndToEndTest, MakesCanonicalNumberPhoneNumberAndClid)
{
	const Trip& trip = GetParam();
	const std::unique_ptr<ZelDialRulesItem> at = makeSite(trip.site);
	ZelNumberingRules* rules = ZelNumberingRules::getInstance();
	EXPECT_EQ(trip.canonical, rules->makeCanonicalNumber(at.get(), trip.input, ""));
	EXPECT_EQ(trip.dialled, rules->makePhoneNumber(at.get(), trip.input));
	Poco::AutoPtr<ZelClid> clid(rules->makeClid(at.get(), trip.input));
	ASSERT_FALSE(clid.isNull());
	EXPECT_EQ(trip.clidNumber, clid->getNumber());
	EXPECT_EQ(trip.clidOrigin, clid->getOrigin()->getName());
}

INSTANTIATE_TEST_SUITE_P(Sites, CountryPlansEndToEndTest, ::testing::ValuesIn(TRIPS), RowName());

} // namespace
} // namespace test
} // namespace numbering
