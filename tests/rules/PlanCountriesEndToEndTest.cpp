// PlanCountriesEndToEndTest.cpp
// Worked examples of every plan country through the facade: the trunk-prefix plans dialled back from three sites,
// the other plans dialled and identified at their own site, and calling-line identities of mobile numbers.

#include "numbering/ZelClid.h"
#include "numbering/ZelEnumOrigin.h"
#include "numbering/ZelNumberingRules.h"

#include "support/PlanCountriesFixture.h"
#include "support/TableRows.h"

#include "Poco/AutoPtr.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace numbering {
namespace test {
namespace {

const SiteSetup FR1{"FR", "1", "0"}, NL20{"NL", "20", "0"}, NL10{"NL", "10", "0"}, BE2{"BE", "2", "0"},
	BE4{"BE", "4", "0"}, AT1{"AT", "1", "0"}, AT1EXT9{"AT", "1", "9"}, AT316{"AT", "316", "0"}, GB20{"GB", "20", "9"},
	GB121{"GB", "121", "9"}, IE1{"IE", "1", "9"}, IE1EXT0{"IE", "1", "0"}, IE21{"IE", "21", "9"}, AU2{"AU", "2", "0"},
	AU3{"AU", "3", "0"}, AR11{"AR", "11", "0"}, AR351{"AR", "351", "0"}, MX55{"MX", "55", "9"}, MX33{"MX", "33", "9"},
	MX222{"MX", "222", "9"};

/// A number dialled at a site (home unless given), its canonical form, and what that form dials at home, at the
/// other site and from France (null: not canonical).
struct TripRow
{
	const char* name;
	const char* input;
	const char* canonical;
	const char* dialledAtHome = nullptr;
	const char* dialledAtOther = nullptr;
	const char* dialledFromFrance = nullptr;
	Setting setting = Setting::Sample;
	SiteSetup at{};
	SiteSetup other{};
	SiteSetup home{};
};

/// The rows of one country, with its home and other site filled in where a row does not give its own.
template <std::size_t N>
std::vector<TripRow> trips(const SiteSetup& home, const SiteSetup& other, const TripRow (&table)[N])
{
	std::vector<TripRow> rows(table, table + N);
	for (TripRow& row : rows)
	{
		row.home = home;
		if (row.at.country == nullptr) row.at = home;
		if (row.other.country == nullptr) row.other = other;
	}
	return rows;
}

const TripRow NETHERLANDS[] = {
	{"TwoDigitArea", "0201234567", "+31 (20) 1234567", "1234567", "0201234567", "0031201234567"},
	{"Mobile", "0612345678", "+31 (0) 612345678", "0612345678", "0612345678", "0031612345678"},
	{"Freephone", "08001234", "+31 (0) 8001234", "08001234", "08001234", "00318001234"},
	{"MachineToMachine", "097012345678", "+31 (0) 97012345678", "097012345678", "097012345678", "003197012345678"},
	{"Local", "6123456", "+31 (20) 6123456", "6123456", "0206123456", "0031206123456"},
	{"ExtPrefixAndLocal", "02345678", "+31 (20) 2345678", "2345678", "0202345678", "0031202345678"},
	{"ExtPrefixAndLocalBeginningWithNine", "09912345", "+31 (20) 9912345", "9912345", "0209912345", "0031209912345"},
	{"WrongLength", "021234567", "+31 (0) 21234567", "021234567", "021234567", "003121234567"},
	{"ShortCode", "14020", "14020"},
	{"ThreeDigitsBehindTrunkPrefix", "0123", "+31 (0) 123"},
	{"LocalWithoutTranslation", "6123456", "6123456", nullptr, nullptr, nullptr, Setting::NoTranslate},
	{"InternationalOneDigitShort", "+31 20 123 456", "+31 (0) 20123456", "020123456", "020123456", "003120123456"},
	{"LocalBeginningWithOne", "1234567", "1234567"},
	{"SevenDigitsBeginningWithEightyAreGeographic", "08012345", "+31 (20) 8012345"},
	{"SecondAreaOfTwoAreaSite", "0101234567", "+31 (10) 1234567", "0101234567", "1234567", "0031101234567",
		Setting::Sample, {}, {"NL", "20,10", "0"}},
};

const TripRow BELGIUM[] = {
	{"Brussels", "022345678", "+32 (2) 2345678", "022345678", "022345678", "003222345678"},
	{"Mobile", "0475123456", "+32 (0) 475123456", "0475123456", "0475123456", "0032475123456"},
	{"Zone80", "080223344", "+32 (80) 223344", "080223344", "080223344", "003280223344"},
	{"Freephone", "080012345", "+32 (0) 80012345", "080012345", "080012345", "003280012345"},
	{"WithoutTrunkPrefix", "2345678", "+32 (2) 2345678", "022345678", "022345678", "003222345678"},
	{"ExtPrefixAndLocal", "02234567", "+32 (2) 2234567", "022234567", "022234567", "003222234567"},
	{"Emergency", "112", "112"},
	{"InternationalOneDigitShort", "+32 2 234 567", "+32 (0) 2234567", "02234567", "02234567", "00322234567"},
	{"MobileBeforeLocalBehindLongExtPrefix", "0472345678", "+32 (0) 472345678", nullptr, nullptr, nullptr,
		Setting::Sample, {"BE", "2", "047"}},
};

const TripRow AUSTRIA[] = {
	{"Vienna", "0158800", "+43 (1) 58800", "58800", "0158800", "0043158800"},
	{"Graz", "03161234567", "+43 (316) 1234567", "03161234567", "1234567", "00433161234567"},
	{"Local", "58800", "+43 (1) 58800", "58800", "0158800", "0043158800"},
	{"ExtPrefixAndLocal", "058800", "+43 (1) 58800", "58800", "0158800", "0043158800"},
	{"Emergency", "112", "112"},
	{"EmptyTable", "0158800", "+43 (0) 158800", "0158800", "0158800", "0043158800", Setting::NoTable, AT1EXT9},
	{"LocalReadAsNational", "02236123", "+43 (2236) 123", "02236123", "02236123", "00432236123"},
	{"InternationalAreaMissingFromTable", "+43 2252 12345", "+43 (0) 225212345", "0225212345", "0225212345",
		"0043225212345"},
};

const TripRow UNITED_KINGDOM[] = {
	{"London", "02079460123", "+44 (20) 79460123", "79460123", "02079460123", "00442079460123"},
	{"Mobile", "07911123456", "+44 (0) 7911123456", "07911123456", "07911123456", "00447911123456"},
	{"Local", "79460123", "+44 (20) 79460123", "79460123", "02079460123", "00442079460123"},
	{"ExtPrefixAndLocal", "979460123", "+44 (20) 79460123", "79460123", "02079460123", "00442079460123"},
	{"ExtPrefixAndNational", "902079460123", "+44 (20) 79460123", "79460123", "02079460123", "00442079460123"},
	{"SevenDigitSpecial", "08001111", "+44 (0) 8001111", "08001111", "08001111", "00448001111"},
	{"Emergency", "999", "999"},
	{"InternationalMobile", "+44 7911 123456", "+44 (0) 7911123456", "07911123456", "07911123456", "00447911123456"},
};

const TripRow IRELAND[] = {
	{"Dublin", "012345678", "+353 (1) 2345678", "2345678", "012345678", "0035312345678"},
	{"Local", "2345678", "+353 (1) 2345678", "2345678", "012345678", "0035312345678"},
	{"ExtPrefixAndLocal", "92345678", "+353 (1) 2345678", "2345678", "012345678", "0035312345678"},
	{"FreephoneDialledAtHome", "1800123456", "1800123456"},
	{"ElevenDigitsAfterEighteenAreNoFreephone", "018001234567", "+353 (1) 8001234567", "8001234567", "018001234567",
		"0035318001234567"},
	{"NorthernIreland", "04890123456", "+353 (0) 4890123456", "04890123456", "04890123456", "003534890123456"},
	{"Emergency", "999", "999"},
	{"InternationalFreephone", "+353 1800 123 456", "+353 (1800) 123456", "01800123456", "01800123456",
		"003531800123456"},
	{"ExtPrefixZeroAndFreephone", "01800123456", "1800123456", nullptr, nullptr, nullptr, Setting::Sample, IE1EXT0},
	{"LocalOfFiveDigits", "23456", "+353 (1) 23456", "23456", "0123456", "00353123456"},
	{"LocalOfEightDigits", "23456789", "+353 (1) 23456789", "23456789", "0123456789", "00353123456789"},
	{"LocalOfNineDigits", "234567890", "234567890"},
};

const TripRow AUSTRALIA[] = {
	{"Sydney", "0292345678", "+61 (2) 92345678", "92345678", "0292345678", "0061292345678"},
	{"Mobile", "0412345678", "+61 (0) 412345678", "0412345678", "0412345678", "0061412345678"},
	{"LocalRate1300", "1300123456", "+61 1300 123456", "1300123456", "1300123456", "00611300123456"},
	{"LocalRate13", "131234", "+61 13 1234", "131234", "131234", "0061131234"},
	{"Local", "92345678", "+61 (2) 92345678", "92345678", "0292345678", "0061292345678"},
	{"ExtPrefixAndLocal", "092345678", "+61 (2) 92345678", "92345678", "0292345678", "0061292345678"},
	{"Premium", "1900123456", "1900123456"},
	{"Emergency", "000", "000"},
	{"International1300", "+61 1300 123 456", "+61 1300 123456", "1300123456", "1300123456", "00611300123456"},
	{"InternationalOneDigitShort", "+61 2 1234 567", "+61 (0) 21234567", "021234567", "021234567", "006121234567"},
	{"Freephone1800", "1800123456", "+61 1800 123456", "1800123456", "1800123456", "00611800123456"},
};

const TripRow ARGENTINA[] = {
	{"BuenosAires", "01143211234", "+54 (11) 43211234", "43211234", "01143211234", "00541143211234"},
	{"NationalMobile", "0111523456789", "+54 (911) 23456789", "1523456789", "0111523456789", "005491123456789"},
	{"LocalMobile", "1523456789", "+54 (911) 23456789", "1523456789", "0111523456789", "005491123456789"},
	{"Local", "43211234", "+54 (11) 43211234", "43211234", "01143211234", "00541143211234"},
	{"EightDigitsBeginningWithFifteen", "01115234567", "+54 (11) 15234567", "15234567", "01115234567",
		"00541115234567"},
	{"ExtPrefixAndLocal", "043211234", "+54 (11) 43211234", "43211234", "01143211234", "00541143211234"},
	{"MobileOfThreeDigitArea", "0223154234567", "+54 (9223) 4234567", "0223154234567", "0223154234567",
		"005492234234567"},
	{"MobileOfAnotherArea", "0351154123456", "+54 (9351) 4123456", "0351154123456", "154123456", "005493514123456"},
	{"Unsplittable", "0912345678", "+54 (0) 912345678", "0912345678", "0912345678", "0054912345678"},
	{"InternationalMobile", "+54 9 11 2345 6789", "+54 (911) 23456789", "1523456789", "0111523456789",
		"005491123456789"},
	{"InternationalUnsplittable", "+54 9 999 123 4567", "99991234567"},
	{"LocalWithoutTranslation", "43211234", "43211234", nullptr, nullptr, nullptr, Setting::NoTranslate},
	{"LocalBeginningWithOne", "12345678", "12345678"},
	{"ThreeDigitsBehindExtPrefix", "0234", "+54 (1234567) 234", nullptr, nullptr, nullptr, Setting::Sample,
		{"AR", "1234567", "0"}},
};

const TripRow MEXICO[] = {
	{"TwoDigitArea", "015512345678", "+52 (55) 12345678", "12345678", "015512345678", "00525512345678"},
	{"ThreeDigitArea", "012221234567", "+52 (222) 1234567", "012221234567", "1234567", "00522221234567",
		Setting::Sample, MX55, MX222},
	{"MobileOfTheSiteArea", "0445512345678", "+52 (155) 12345678", "0445512345678", "0455512345678", "005215512345678"},
	{"MobileOfAnotherArea", "0453312345678", "+52 (133) 12345678", "0453312345678", "0443312345678", "005213312345678"},
	{"TenDigits", "5512345678", "+52 (55) 12345678", "12345678", "015512345678", "00525512345678"},
	{"Local", "12345678", "+52 (55) 12345678", "12345678", "015512345678", "00525512345678"},
	{"ExtPrefixAndLocal", "912345678", "+52 (55) 12345678", "12345678", "015512345678", "00525512345678"},
	{"ExtPrefixAndNational", "9015512345678", "+52 (55) 12345678", "12345678", "015512345678", "00525512345678"},
	{"LocalOfWrongLength", "1234567", "1234567"},
	{"MobileOfThreeDigitSiteArea", "0442221234567", "+52 (1222) 1234567", "0452221234567", "0442221234567",
		"005212221234567", Setting::Sample, MX222, MX222},
	{"InternationalMobile", "+52 1 55 1234 5678", "+52 (155) 12345678", "0445512345678", "0455512345678",
		"005215512345678"},
	{"MobileIn2019", "0445512345678", "+52 (55) 12345678", "5512345678", "5512345678", "00525512345678",
		Setting::Mexico2019},
	{"InternationalOneDigitShort", "+52 55 1234 567", "+52 551234567", "01551234567", "01551234567", "0052551234567"},
};

using TrunkPrefixPlansEndToEndTest = WithRows<PlanCountriesFixture, TripRow>;

TEST_P(TrunkPrefixPlansEndToEndTest, MakesCanonicalNumberAndDialsItBack)
{
	const TripRow& row = GetParam();
	configure(row.setting);
	const auto dial = [](const SiteSetup& setup, const std::string& canonical) {
		return ZelNumberingRules::getInstance()->makeDialableNumber(makeSite(setup).get(), canonical);
	};
	const std::string canonical =
		ZelNumberingRules::getInstance()->makeCanonicalNumber(makeSite(row.at).get(), row.input, "");
	ASSERT_EQ(row.canonical, canonical);
	if (row.dialledAtHome == nullptr) return;
	EXPECT_EQ(row.dialledAtHome, dial(row.home, canonical)) << siteName(row.home);
	EXPECT_EQ(row.dialledAtOther, dial(row.other, canonical)) << siteName(row.other);
	EXPECT_EQ(row.dialledFromFrance, dial(FR1, canonical)) << siteName(FR1);
}

INSTANTIATE_TEST_SUITE_P(
	Netherlands, TrunkPrefixPlansEndToEndTest, ::testing::ValuesIn(trips(NL20, NL10, NETHERLANDS)), rowName);
INSTANTIATE_TEST_SUITE_P(Belgium, TrunkPrefixPlansEndToEndTest, ::testing::ValuesIn(trips(BE2, BE4, BELGIUM)), rowName);
INSTANTIATE_TEST_SUITE_P(
	Austria, TrunkPrefixPlansEndToEndTest, ::testing::ValuesIn(trips(AT1, AT316, AUSTRIA)), rowName);
INSTANTIATE_TEST_SUITE_P(
	UnitedKingdom, TrunkPrefixPlansEndToEndTest, ::testing::ValuesIn(trips(GB20, GB121, UNITED_KINGDOM)), rowName);
INSTANTIATE_TEST_SUITE_P(
	Ireland, TrunkPrefixPlansEndToEndTest, ::testing::ValuesIn(trips(IE1, IE21, IRELAND)), rowName);
INSTANTIATE_TEST_SUITE_P(
	Australia, TrunkPrefixPlansEndToEndTest, ::testing::ValuesIn(trips(AU2, AU3, AUSTRALIA)), rowName);
INSTANTIATE_TEST_SUITE_P(
	Argentina, TrunkPrefixPlansEndToEndTest, ::testing::ValuesIn(trips(AR11, AR351, ARGENTINA)), rowName);
INSTANTIATE_TEST_SUITE_P(Mexico, TrunkPrefixPlansEndToEndTest, ::testing::ValuesIn(trips(MX55, MX33, MEXICO)), rowName);

/// A received number at a site, and the calling-line identity made of it.
struct ClidRow
{
	const char* name;
	SiteSetup site;
	const char* received;
	ZelEnumOrigin* origin;
	const char* number;
	Setting setting = Setting::Sample;
};

// A mobile keeps its mark ("9", "1") before the area code, so it is national even in the site's own area.
const ClidRow CLIDS[] = {
	{"ArgentineInternationalMobile", AR11, "+54 9 11 2345 6789", &ZelEnumOrigin::NATIONAL, "91123456789"},
	{"ArgentineLocalMobile", AR11, "1523456789", &ZelEnumOrigin::NATIONAL, "91123456789"},
	{"ArgentineSiteArea", AR11, "01143211234", &ZelEnumOrigin::PUBLIC_1, "43211234"},
	{"ArgentineUnsplittable", AR11, "0912345678", &ZelEnumOrigin::NATIONAL, "912345678"},
	{"MexicanMobile", MX55, "0445512345678", &ZelEnumOrigin::NATIONAL, "15512345678"},
	{"MexicanSiteArea", MX55, "015512345678", &ZelEnumOrigin::PUBLIC_1, "12345678"},
	{"MexicanMobileIn2019", MX55, "+52 1 55 1234 5678", &ZelEnumOrigin::PUBLIC_1, "12345678", Setting::Mexico2019},
};

using TrunkPrefixPlansClidTest = WithRows<PlanCountriesFixture, ClidRow>;

TEST_P(TrunkPrefixPlansClidTest, TellsWhereTheCallerIs)
{
	const ClidRow& row = GetParam();
	configure(row.setting);
	Poco::AutoPtr<ZelClid> clid(ZelNumberingRules::getInstance()->makeClid(makeSite(row.site).get(), row.received));
	ASSERT_FALSE(clid.isNull());
	EXPECT_EQ(row.number, clid->getNumber());
	EXPECT_EQ(row.origin->getName(), clid->getOrigin()->getName());
}

INSTANTIATE_TEST_SUITE_P(MobileMarks, TrunkPrefixPlansClidTest, ::testing::ValuesIn(CLIDS), rowName);

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

const SiteSetup PARIS{"FR", "1", "9"}, MOSCOW{"RU", "495", "9"}, NEW_YORK{"US", "212", "9"}, ZURICH{"CH", "44", "0"},
	BOGOTA{"CO", "1", "0"}, AUCKLAND{"NZ", "9", "1"};

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

using CountryPlansEndToEndTest = WithRows<PlanCountriesFixture, Trip>;

TEST_P(CountryPlansEndToEndTest, MakesCanonicalNumberPhoneNumberAndClid)
{
	const Trip& trip = GetParam();
	configure(Setting::Sample);
	const std::unique_ptr<ZelDialRulesItem> at = makeSite(trip.site);
	ZelNumberingRules* rules = ZelNumberingRules::getInstance();
	EXPECT_EQ(trip.canonical, rules->makeCanonicalNumber(at.get(), trip.input, ""));
	EXPECT_EQ(trip.dialled, rules->makePhoneNumber(at.get(), trip.input));
	Poco::AutoPtr<ZelClid> clid(rules->makeClid(at.get(), trip.input));
	ASSERT_FALSE(clid.isNull());
	EXPECT_EQ(trip.clidNumber, clid->getNumber());
	EXPECT_EQ(trip.clidOrigin, clid->getOrigin()->getName());
}

INSTANTIATE_TEST_SUITE_P(Sites, CountryPlansEndToEndTest, ::testing::ValuesIn(TRIPS), rowName);

} // namespace
} // namespace test
} // namespace numbering
