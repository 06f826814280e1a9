// MorePlansEndToEndTest.cpp

#include "numbering/ZelClid.h"
#include "numbering/ZelEnumOrigin.h"
#include "numbering/ZelNumberingRules.h"

#include "plans/MorePlansFixture.h"

#include "Poco/AutoPtr.h"

#include <gtest/gtest.h>

namespace numbering {
namespace test {
namespace {

/// A worked example through the facade: the number dialled at a site, its canonical form, and the digits
/// that form dials at the country's home site, at its other site and from France (null: not canonical).
struct TripRow
{
	const char* name;
	SiteSetup at;
	const char* input;
	const char* canonical;
	SiteSetup home;
	const char* dialledAtHome;
	SiteSetup other;
	const char* dialledAtOther;
	const char* dialledFromFrance;
	Setting setting = Setting::Sample;
};

void PrintTo(const TripRow& row, std::ostream* os)
{
	*os << row.name;
}

const SiteSetup FR1{"FR", "1", "0"};
const SiteSetup NL20{"NL", "20", "0"};
const SiteSetup NL10{"NL", "10", "0"};
const SiteSetup BE2{"BE", "2", "0"};
const SiteSetup BE4{"BE", "4", "0"};
const SiteSetup AT1{"AT", "1", "0"};
const SiteSetup AT1EXT9{"AT", "1", "9"};
const SiteSetup AT316{"AT", "316", "0"};
const SiteSetup GB20{"GB", "20", "9"};
const SiteSetup GB121{"GB", "121", "9"};
const SiteSetup IE1{"IE", "1", "9"};
const SiteSetup IE1EXT0{"IE", "1", "0"};
const SiteSetup IE21{"IE", "21", "9"};
const SiteSetup AU2{"AU", "2", "0"};
const SiteSetup AU3{"AU", "3", "0"};
const SiteSetup AR11{"AR", "11", "0"};
const SiteSetup AR351{"AR", "351", "0"};
const SiteSetup MX55{"MX", "55", "9"};
const SiteSetup MX33{"MX", "33", "9"};
const SiteSetup MX222{"MX", "222", "9"};

const TripRow NETHERLANDS[] = {
	{"TwoDigitArea", NL20, "0201234567", "+31 (20) 1234567", NL20, "1234567", NL10, "0201234567", "0031201234567"},
	{"ThreeDigitArea", NL20, "0346123456", "+31 (346) 123456", NL20, "0346123456", NL10, "0346123456", "0031346123456"},
	{"Mobile", NL20, "0612345678", "+31 (0) 612345678", NL20, "0612345678", NL10, "0612345678", "0031612345678"},
	{"Freephone", NL20, "08001234", "+31 (0) 8001234", NL20, "08001234", NL10, "08001234", "00318001234"},
	{"ServiceNumber", NL20, "0851234567", "+31 (0) 851234567", NL20, "0851234567", NL10, "0851234567", "0031851234567"},
	{"AreaMissingFromTable", NL20, "0221234567", "+31 (0) 221234567", NL20, "0221234567", NL10, "0221234567",
		"0031221234567"},
	{"MachineToMachine", NL20, "097012345678", "+31 (0) 97012345678", NL20, "097012345678", NL10, "097012345678",
		"003197012345678"},
	{"Local", NL20, "6123456", "+31 (20) 6123456", NL20, "6123456", NL10, "0206123456", "0031206123456"},
	{"ExtPrefixAndLocal", NL20, "02345678", "+31 (20) 2345678", NL20, "2345678", NL10, "0202345678", "0031202345678"},
	{"WrongLength", NL20, "021234567", "+31 (0) 21234567", NL20, "021234567", NL10, "021234567", "003121234567"},
	{"ShortCode", NL20, "14020", "14020", NL20, nullptr, NL10, nullptr, nullptr},
	{"InternationalMobile", NL20, "+31 6 12345678", "+31 (0) 612345678", NL20, "0612345678", NL10, "0612345678",
		"0031612345678"},
	{"LocalWithoutTranslation", NL20, "6123456", "6123456", NL20, nullptr, NL10, nullptr, nullptr,
		Setting::NoTranslate},
	{"InternationalOneDigitShort", NL20, "+31 20 123 456", "+31 (0) 20123456", NL20, "020123456", NL10, "020123456",
		"003120123456"},
};

const TripRow BELGIUM[] = {
	{"Brussels", BE2, "022345678", "+32 (2) 2345678", BE2, "022345678", BE4, "022345678", "003222345678"},
	{"TwoDigitZone", BE2, "071123456", "+32 (71) 123456", BE2, "071123456", BE4, "071123456", "003271123456"},
	{"Liege", BE2, "042345678", "+32 (4) 2345678", BE2, "042345678", BE4, "042345678", "003242345678"},
	{"Mobile", BE2, "0475123456", "+32 (0) 475123456", BE2, "0475123456", BE4, "0475123456", "0032475123456"},
	{"Zone80", BE2, "080223344", "+32 (80) 223344", BE2, "080223344", BE4, "080223344", "003280223344"},
	{"Freephone", BE2, "080012345", "+32 (0) 80012345", BE2, "080012345", BE4, "080012345", "003280012345"},
	{"Premium", BE2, "090012345", "+32 (0) 90012345", BE2, "090012345", BE4, "090012345", "003290012345"},
	{"NationalRate", BE2, "078153344", "+32 (0) 78153344", BE2, "078153344", BE4, "078153344", "003278153344"},
	{"WithoutTrunkPrefix", BE2, "2345678", "+32 (2) 2345678", BE2, "022345678", BE4, "022345678", "003222345678"},
	{"ExtPrefixAndLocal", BE2, "02234567", "+32 (2) 2234567", BE2, "022234567", BE4, "022234567", "003222234567"},
	{"Emergency", BE2, "112", "112", BE2, nullptr, BE4, nullptr, nullptr},
	{"InternationalMobile", BE2, "+32 475 12 34 56", "+32 (0) 475123456", BE2, "0475123456", BE4, "0475123456",
		"0032475123456"},
	{"InternationalOneDigitShort", BE2, "+32 2 234 567", "+32 (0) 2234567", BE2, "02234567", BE4, "02234567",
		"00322234567"},
};

const TripRow AUSTRIA[] = {
	{"Vienna", AT1, "0158800", "+43 (1) 58800", AT1, "58800", AT316, "0158800", "0043158800"},
	{"ExtensionAppended", AT1, "015880012", "+43 (1) 5880012", AT1, "5880012", AT316, "015880012", "004315880012"},
	{"Graz", AT1, "03161234567", "+43 (316) 1234567", AT1, "03161234567", AT316, "1234567", "00433161234567"},
	{"FourDigitArea", AT1, "0223612345", "+43 (2236) 12345", AT1, "0223612345", AT316, "0223612345", "0043223612345"},
	{"Mobile", AT1, "06641234567", "+43 (664) 1234567", AT1, "06641234567", AT316, "06641234567", "00436641234567"},
	{"Freephone", AT1, "0800123456", "+43 (800) 123456", AT1, "0800123456", AT316, "0800123456", "0043800123456"},
	{"LocationIndependent", AT1, "0720123456", "+43 (720) 123456", AT1, "0720123456", AT316, "0720123456",
		"0043720123456"},
	{"Local", AT1, "58800", "+43 (1) 58800", AT1, "58800", AT316, "0158800", "0043158800"},
	{"ExtPrefixAndLocal", AT1, "058800", "+43 (1) 58800", AT1, "58800", AT316, "0158800", "0043158800"},
	{"Emergency", AT1, "112", "112", AT1, nullptr, AT316, nullptr, nullptr},
	{"InternationalMobile", AT1, "+43 664 1234567", "+43 (664) 1234567", AT1, "06641234567", AT316, "06641234567",
		"00436641234567"},
	{"EmptyTable", AT1EXT9, "0158800", "+43 (0) 158800", AT1, "0158800", AT316, "0158800", "0043158800",
		Setting::NoTable},
	{"LocalReadAsNational", AT1, "02236123", "+43 (2236) 123", AT1, "02236123", AT316, "02236123", "00432236123"},
	{"InternationalAreaMissingFromTable", AT1, "+43 2252 12345", "+43 (0) 225212345", AT1, "0225212345", AT316,
		"0225212345", "0043225212345"},
	{"ZellAmSee", AT1, "06542123456", "+43 (6542) 123456", AT1, "06542123456", AT316, "06542123456", "00436542123456"},
};

const TripRow UNITED_KINGDOM[] = {
	{"London", GB20, "02079460123", "+44 (20) 79460123", GB20, "79460123", GB121, "02079460123", "00442079460123"},
	{"Birmingham", GB20, "01214960123", "+44 (121) 4960123", GB20, "01214960123", GB121, "4960123", "00441214960123"},
	{"Cambridge", GB20, "01223123456", "+44 (1223) 123456", GB20, "01223123456", GB121, "01223123456",
		"00441223123456"},
	{"Dumfries", GB20, "01387123456", "+44 (1387) 123456", GB20, "01387123456", GB121, "01387123456", "00441387123456"},
	{"Langholm", GB20, "01387312345", "+44 (13873) 12345", GB20, "01387312345", GB121, "01387312345", "00441387312345"},
	{"FiveDigitArea", GB20, "01697712345", "+44 (16977) 12345", GB20, "01697712345", GB121, "01697712345",
		"00441697712345"},
	{"Mobile", GB20, "07911123456", "+44 (0) 7911123456", GB20, "07911123456", GB121, "07911123456", "00447911123456"},
	{"Freephone", GB20, "0800123456", "+44 (0) 800123456", GB20, "0800123456", GB121, "0800123456", "0044800123456"},
	{"GeographicRate", GB20, "03001234567", "+44 (0) 3001234567", GB20, "03001234567", GB121, "03001234567",
		"00443001234567"},
	{"Local", GB20, "79460123", "+44 (20) 79460123", GB20, "79460123", GB121, "02079460123", "00442079460123"},
	{"ExtPrefixAndLocal", GB20, "979460123", "+44 (20) 79460123", GB20, "79460123", GB121, "02079460123",
		"00442079460123"},
	{"ExtPrefixAndNational", GB20, "902079460123", "+44 (20) 79460123", GB20, "79460123", GB121, "02079460123",
		"00442079460123"},
	{"SevenDigitSpecial", GB20, "08001111", "+44 (0) 8001111", GB20, "08001111", GB121, "08001111", "00448001111"},
	{"Emergency", GB20, "999", "999", GB20, nullptr, GB121, nullptr, nullptr},
	{"InternationalMobile", GB20, "+44 7911 123456", "+44 (0) 7911123456", GB20, "07911123456", GB121, "07911123456",
		"00447911123456"},
	{"ExtPrefixAndSevenDigitSpecial", GB20, "908001111", "+44 (0) 8001111", GB20, "08001111", GB121, "08001111",
		"00448001111"},
	{"InternationalSevenDigitSpecial", GB20, "+44 800 1111", "+44 (0) 8001111", GB20, "08001111", GB121, "08001111",
		"00448001111"},
};

const TripRow IRELAND[] = {
	{"Dublin", IE1, "012345678", "+353 (1) 2345678", IE1, "2345678", IE21, "012345678", "0035312345678"},
	{"Cork", IE1, "0211234567", "+353 (21) 1234567", IE1, "0211234567", IE21, "1234567", "00353211234567"},
	{"ThreeDigitArea", IE1, "040212345", "+353 (402) 12345", IE1, "040212345", IE21, "040212345", "0035340212345"},
	{"Galway", IE1, "091123456", "+353 (91) 123456", IE1, "091123456", IE21, "091123456", "0035391123456"},
	{"Mobile", IE1, "0871234567", "+353 (87) 1234567", IE1, "0871234567", IE21, "0871234567", "00353871234567"},
	{"NonGeographic", IE1, "0818123456", "+353 (818) 123456", IE1, "0818123456", IE21, "0818123456", "00353818123456"},
	{"Local", IE1, "2345678", "+353 (1) 2345678", IE1, "2345678", IE21, "012345678", "0035312345678"},
	{"ExtPrefixAndLocal", IE1, "92345678", "+353 (1) 2345678", IE1, "2345678", IE21, "012345678", "0035312345678"},
	{"FreephoneDialledAtHome", IE1, "1800123456", "1800123456", IE1, nullptr, IE21, nullptr, nullptr},
	{"NorthernIreland", IE1, "04890123456", "+353 (0) 4890123456", IE1, "04890123456", IE21, "04890123456",
		"003534890123456"},
	{"Emergency", IE1, "999", "999", IE1, nullptr, IE21, nullptr, nullptr},
	{"InternationalFreephone", IE1, "+353 1800 123 456", "+353 (1800) 123456", IE1, "01800123456", IE21, "01800123456",
		"003531800123456"},
	{"InternationalMobile", IE1, "+353 87 123 4567", "+353 (87) 1234567", IE1, "0871234567", IE21, "0871234567",
		"00353871234567"},
	{"InternationalAreaMissingFromTable", IE1, "+353 51 123 456", "+353 (0) 51123456", IE1, "051123456", IE21,
		"051123456", "0035351123456"},
	{"ExtPrefixAndFreephone", IE1, "91800123456", "1800123456", IE1, nullptr, IE21, nullptr, nullptr},
	{"ExtPrefixZeroAndFreephone", IE1EXT0, "01800123456", "1800123456", IE1, nullptr, IE21, nullptr, nullptr},
};

const TripRow AUSTRALIA[] = {
	{"Sydney", AU2, "0292345678", "+61 (2) 92345678", AU2, "92345678", AU3, "0292345678", "0061292345678"},
	{"Melbourne", AU2, "0390001234", "+61 (3) 90001234", AU2, "0390001234", AU3, "90001234", "0061390001234"},
	{"Mobile", AU2, "0412345678", "+61 (0) 412345678", AU2, "0412345678", AU3, "0412345678", "0061412345678"},
	{"LocalRate1300", AU2, "1300123456", "+61 1300 123456", AU2, "1300123456", AU3, "1300123456", "00611300123456"},
	{"Freephone1800", AU2, "1800123456", "+61 1800 123456", AU2, "1800123456", AU3, "1800123456", "00611800123456"},
	{"LocalRate13", AU2, "131234", "+61 13 1234", AU2, "131234", AU3, "131234", "0061131234"},
	{"Local", AU2, "92345678", "+61 (2) 92345678", AU2, "92345678", AU3, "0292345678", "0061292345678"},
	{"ExtPrefixAndLocal", AU2, "092345678", "+61 (2) 92345678", AU2, "92345678", AU3, "0292345678", "0061292345678"},
	{"ExtPrefixAndNational", AU2, "00412345678", "+61 (0) 412345678", AU2, "0412345678", AU3, "0412345678",
		"0061412345678"},
	{"ExtPrefixAnd1300", AU2, "01300123456", "+61 1300 123456", AU2, "1300123456", AU3, "1300123456", "00611300123456"},
	{"Premium", AU2, "1900123456", "1900123456", AU2, nullptr, AU3, nullptr, nullptr},
	{"Emergency", AU2, "000", "000", AU2, nullptr, AU3, nullptr, nullptr},
	{"InternationalMobile", AU2, "+61 4 1234 5678", "+61 (0) 412345678", AU2, "0412345678", AU3, "0412345678",
		"0061412345678"},
	{"International1300", AU2, "+61 1300 123 456", "+61 1300 123456", AU2, "1300123456", AU3, "1300123456",
		"00611300123456"},
	{"FranceDials1300", FR1, "00 61 1300 123 456", "+61 1300 123456", AU2, "1300123456", AU3, "1300123456",
		"00611300123456"},
	{"AustraliaDials13Internationally", AU2, "0011 61 13 12 34", "+61 13 1234", AU2, "131234", AU3, "131234",
		"0061131234"},
	{"InternationalOneDigitShort", AU2, "+61 2 1234 567", "+61 (0) 21234567", AU2, "021234567", AU3, "021234567",
		"006121234567"},
	{"AustraliaDialsPremiumInternationally", AU2, "0011 61 1900 123 456", "+61 (0) 1900123456", AU2, "01900123456", AU3,
		"01900123456", "00611900123456"},
};

const TripRow ARGENTINA[] = {
	{"BuenosAires", AR11, "01143211234", "+54 (11) 43211234", AR11, "43211234", AR351, "01143211234", "00541143211234"},
	{"NationalMobile", AR11, "0111523456789", "+54 (911) 23456789", AR11, "1523456789", AR351, "0111523456789",
		"005491123456789"},
	{"LocalMobile", AR11, "1523456789", "+54 (911) 23456789", AR11, "1523456789", AR351, "0111523456789",
		"005491123456789"},
	{"Local", AR11, "43211234", "+54 (11) 43211234", AR11, "43211234", AR351, "01143211234", "00541143211234"},
	{"ExtPrefixAndLocal", AR11, "043211234", "+54 (11) 43211234", AR11, "43211234", AR351, "01143211234",
		"00541143211234"},
	{"MobileOfThreeDigitArea", AR11, "0223154234567", "+54 (9223) 4234567", AR11, "0223154234567", AR351,
		"0223154234567", "005492234234567"},
	{"MobileOfFourDigitArea", AR11, "0296615423456", "+54 (92966) 423456", AR11, "0296615423456", AR351,
		"0296615423456", "005492966423456"},
	{"LongerCodeExtendingAnother", AR11, "02202423456", "+54 (2202) 423456", AR11, "02202423456", AR351, "02202423456",
		"00542202423456"},
	{"ShorterCodeOfTheSamePath", AR11, "02204123456", "+54 (220) 4123456", AR11, "02204123456", AR351, "02204123456",
		"00542204123456"},
	{"MobileOfAnotherArea", AR11, "0351154123456", "+54 (9351) 4123456", AR11, "0351154123456", AR351, "154123456",
		"005493514123456"},
	{"Freephone", AR11, "08001234567", "+54 (800) 1234567", AR11, "08001234567", AR351, "08001234567",
		"00548001234567"},
	{"Unsplittable", AR11, "0912345678", "+54 (0) 912345678", AR11, "0912345678", AR351, "0912345678", "0054912345678"},
	{"LocalMobileOfThreeDigitArea", AR351, "154123456", "+54 (9351) 4123456", AR351, "154123456", AR11, "0351154123456",
		"005493514123456"},
	{"InternationalMobile", AR11, "+54 9 11 2345 6789", "+54 (911) 23456789", AR11, "1523456789", AR351,
		"0111523456789", "005491123456789"},
	{"InternationalUnsplittable", AR11, "+54 9 999 123 4567", "99991234567", AR11, nullptr, AR351, nullptr, nullptr},
	{"LocalWithoutTranslation", AR11, "43211234", "43211234", AR11, nullptr, AR351, nullptr, nullptr,
		Setting::NoTranslate},
	{"AreaMissingFromTable", AR11, "02914123456", "+54 (0) 2914123456", AR11, "02914123456", AR351, "02914123456",
		"00542914123456"},
};

const TripRow MEXICO[] = {
	{"TwoDigitArea", MX55, "015512345678", "+52 (55) 12345678", MX55, "12345678", MX33, "015512345678",
		"00525512345678"},
	{"ThreeDigitArea", MX55, "012221234567", "+52 (222) 1234567", MX55, "012221234567", MX222, "1234567",
		"00522221234567"},
	{"MobileOfTheSiteArea", MX55, "0445512345678", "+52 (155) 12345678", MX55, "0445512345678", MX33, "0455512345678",
		"005215512345678"},
	{"MobileOfAnotherArea", MX55, "0453312345678", "+52 (133) 12345678", MX55, "0453312345678", MX33, "0443312345678",
		"005213312345678"},
	{"Freephone", MX55, "018001234567", "+52 (800) 1234567", MX55, "018001234567", MX33, "018001234567",
		"00528001234567"},
	{"TenDigits", MX55, "5512345678", "+52 (55) 12345678", MX55, "12345678", MX33, "015512345678", "00525512345678"},
	{"Local", MX55, "12345678", "+52 (55) 12345678", MX55, "12345678", MX33, "015512345678", "00525512345678"},
	{"ExtPrefixAndLocal", MX55, "912345678", "+52 (55) 12345678", MX55, "12345678", MX33, "015512345678",
		"00525512345678"},
	{"ExtPrefixAndNational", MX55, "9015512345678", "+52 (55) 12345678", MX55, "12345678", MX33, "015512345678",
		"00525512345678"},
	{"LocalOfWrongLength", MX55, "1234567", "1234567", MX55, nullptr, MX33, nullptr, nullptr},
	{"MobileOfThreeDigitSiteArea", MX222, "0442221234567", "+52 (1222) 1234567", MX222, "0442221234567", MX55,
		"0452221234567", "005212221234567"},
	{"LocalOfThreeDigitSiteArea", MX222, "1234567", "+52 (222) 1234567", MX222, "1234567", MX55, "012221234567",
		"00522221234567"},
	{"InternationalMobile", MX55, "+52 1 55 1234 5678", "+52 (155) 12345678", MX55, "0445512345678", MX33,
		"0455512345678", "005215512345678"},
	{"International", MX55, "+52 55 1234 5678", "+52 (55) 12345678", MX55, "12345678", MX33, "015512345678",
		"00525512345678"},
	{"MobileIn2019", MX55, "0445512345678", "+52 (55) 12345678", MX55, "5512345678", MX33, "5512345678",
		"00525512345678", Setting::Mexico2019},
	{"InternationalMobileIn2019", MX55, "+52 1 55 1234 5678", "+52 (55) 12345678", MX55, "5512345678", MX33,
		"5512345678", "00525512345678", Setting::Mexico2019},
	{"TenDigitsIn2019", MX55, "5512345678", "+52 (55) 12345678", MX55, "5512345678", MX33, "5512345678",
		"00525512345678", Setting::Mexico2019},
	{"OldPrefixIn2019", MX55, "015512345678", "+52 (55) 12345678", MX55, "5512345678", MX33, "5512345678",
		"00525512345678", Setting::Mexico2019},
	{"InternationalIn2019", MX55, "+52 55 1234 5678", "+52 (55) 12345678", MX55, "5512345678", MX33, "5512345678",
		"00525512345678", Setting::Mexico2019},
	{"InternationalOneDigitShort", MX55, "+52 55 1234 567", "+52 551234567", MX55, "01551234567", MX33, "01551234567",
		"0052551234567"},
};

class MorePlansEndToEndTest: public MorePlansFixture, public ::testing::WithParamInterface<TripRow>
{
protected:
	std::string dial(const SiteSetup& setup, const std::string& canonical)
	{
		return ZelNumberingRules::getInstance()->makeDialableNumber(makeSite(setup).get(), canonical);
	}
};

TEST_P(MorePlansEndToEndTest, MakesCanonicalNumberAndDialsItBack)
{
	const TripRow& row = GetParam();
	configure(row.setting);
	const std::string canonical =
		ZelNumberingRules::getInstance()->makeCanonicalNumber(makeSite(row.at).get(), row.input, "");
	ASSERT_EQ(row.canonical, canonical);
	if (row.dialledAtHome == nullptr) return;
	EXPECT_EQ(row.dialledAtHome, dial(row.home, canonical)) << siteName(row.home);
	EXPECT_EQ(row.dialledAtOther, dial(row.other, canonical)) << siteName(row.other);
	EXPECT_EQ(row.dialledFromFrance, dial(FR1, canonical)) << siteName(FR1);
}

std::string tripName(const ::testing::TestParamInfo<TripRow>& info)
{
	return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(Netherlands, MorePlansEndToEndTest, ::testing::ValuesIn(NETHERLANDS), tripName);
INSTANTIATE_TEST_SUITE_P(Belgium, MorePlansEndToEndTest, ::testing::ValuesIn(BELGIUM), tripName);
INSTANTIATE_TEST_SUITE_P(Austria, MorePlansEndToEndTest, ::testing::ValuesIn(AUSTRIA), tripName);
INSTANTIATE_TEST_SUITE_P(UnitedKingdom, MorePlansEndToEndTest, ::testing::ValuesIn(UNITED_KINGDOM), tripName);
INSTANTIATE_TEST_SUITE_P(Ireland, MorePlansEndToEndTest, ::testing::ValuesIn(IRELAND), tripName);
INSTANTIATE_TEST_SUITE_P(Australia, MorePlansEndToEndTest, ::testing::ValuesIn(AUSTRALIA), tripName);
INSTANTIATE_TEST_SUITE_P(Argentina, MorePlansEndToEndTest, ::testing::ValuesIn(ARGENTINA), tripName);
INSTANTIATE_TEST_SUITE_P(Mexico, MorePlansEndToEndTest, ::testing::ValuesIn(MEXICO), tripName);

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

void PrintTo(const ClidRow& row, std::ostream* os)
{
	*os << row.name;
}

// A mobile keeps its mark ("9", "1") before the area code, so it is national even in the site's own area.
const ClidRow CLIDS[] = {
	{"ArgentineInternationalMobile", AR11, "+54 9 11 2345 6789", &ZelEnumOrigin::NATIONAL, "91123456789"},
	{"ArgentineLocalMobile", AR11, "1523456789", &ZelEnumOrigin::NATIONAL, "91123456789"},
	{"ArgentineSiteArea", AR11, "01143211234", &ZelEnumOrigin::PUBLIC_1, "43211234"},
	{"ArgentineUnsplittable", AR11, "0912345678", &ZelEnumOrigin::NATIONAL, "912345678"},
	{"MexicanMobile", MX55, "0445512345678", &ZelEnumOrigin::NATIONAL, "15512345678"},
	{"MexicanSiteArea", MX55, "015512345678", &ZelEnumOrigin::PUBLIC_1, "12345678"},
	{"MexicanMobileIn2019", MX55, "+52 1 55 1234 5678", &ZelEnumOrigin::PUBLIC_1, "12345678", Setting::Mexico2019},
	{"DutchMobile", NL20, "0612345678", &ZelEnumOrigin::NATIONAL, "612345678"},
	{"BritishNumberFromFrance", FR1, "0044 20 7946 0123", &ZelEnumOrigin::INTERNATIONAL, "442079460123"},
};

class MorePlansClidTest: public MorePlansFixture, public ::testing::WithParamInterface<ClidRow>
{
};

TEST_P(MorePlansClidTest, TellsWhereTheCallerIs)
{
	const ClidRow& row = GetParam();
	configure(row.setting);
	Poco::AutoPtr<ZelClid> clid(ZelNumberingRules::getInstance()->makeClid(makeSite(row.site).get(), row.received));
	ASSERT_FALSE(clid.isNull());
	EXPECT_EQ(row.number, clid->getNumber());
	EXPECT_EQ(row.origin->getName(), clid->getOrigin()->getName());
}

INSTANTIATE_TEST_SUITE_P(
	MorePlans, MorePlansClidTest, ::testing::ValuesIn(CLIDS), [](const ::testing::TestParamInfo<ClidRow>& info) {
		return info.param.name;
	});

} // namespace
} // namespace test
} // namespace numbering
