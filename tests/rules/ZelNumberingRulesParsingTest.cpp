// ZelNumberingRulesParsingTest.cpp

#include "numbering/ZelNumberingRules.h"

#include "support/ConfigFixture.h"
#include "support/LogCapture.h"
#include "support/TableRows.h"

#include <gtest/gtest.h>

#include <string>

namespace numbering {
namespace {

using Reader = std::string (ZelNumberingRules::*)(std::string);

/// One reader of a single number applied to one input.
struct ReaderCase
{
	const char* name;
	Reader reader;
	std::string input;
	const char* expected;
};

/// Trunk prefix 0 with area codes (FR, GB, DE), and neither trunk prefix nor area codes (ES).
using ZelNumberingRulesParsingTest = test::WithRows<test::ConfigFixture, ReaderCase>;

TEST_P(ZelNumberingRulesParsingTest, ReadsThePartOfTheNumberWithoutAnError)
{
	writeFile("dialingrules.properties", "FR = 33:00:EF:0F:0F:France:P\nGB = 44:00:EF:0F:F:United Kingdom:P\n"
										 "DE = 49:00:EF:0F:0F:Germany:P\nES = 34:00:EF:G:G:Spain:P\n");
	const ReaderCase& c = GetParam();
	EXPECT_EQ(c.expected, (ZelNumberingRules::getInstance()->*c.reader)(c.input));
	EXPECT_EQ(std::vector<std::string>(), test::LogCapture::matching("ERROR N9numbering17ZelNumberingRulesE"));
}

const Reader CHECK = &ZelNumberingRules::checkPhoneNumber;
const Reader VALID = &ZelNumberingRules::validNumber;
const Reader COUNTRY = &ZelNumberingRules::extractCountryNumberFromCanonicalNumber;
const Reader AREA = &ZelNumberingRules::extractAreaCodeOrNatPrefixFromCanonicalNumber;
const Reader EXTENSION = &ZelNumberingRules::extractExtensionFromCanonicalNumber;
const Reader GSM = &ZelNumberingRules::formatToGSMCanonicalNumber;

INSTANTIATE_TEST_SUITE_P(Readers,
	ZelNumberingRulesParsingTest,
	::testing::Values(ReaderCase{"CheckEmpty", CHECK, "", ""},
		ReaderCase{"CheckDropsLayoutCharacters", CHECK, "(01) 23-45.67", "01234567"},
		ReaderCase{"CheckKeepsServiceCode", CHECK, "*21#", "*21#"},
		ReaderCase{"CheckKeepsUpperCaseKeypadLetters", CHECK, "1A B-C.D", "1ABCD"},
		ReaderCase{"CheckRejectsLowerCaseKeypadLetter", CHECK, "12a3", ""},
		ReaderCase{"CheckRejectsOtherLetter", CHECK, "12x3", ""},
		ReaderCase{"CheckRejectsPlus", CHECK, "+33 1 23", ""},
		ReaderCase{"CheckRejectsNul", CHECK, "12" + std::string(1, '\0') + "3", ""},
		ReaderCase{"CheckRejectsHighByte", CHECK, "12\xe9", ""},
		ReaderCase{"ValidRebuildsLayout", VALID, "  +33  1-2345 6789 ", "+33 (1) 23456789"},
		ReaderCase{"ValidKeepsBarAndKeypad", VALID, "+33 (1) 23 45|1*2", "+33 (1) 2345|1*2"},
		ReaderCase{"ValidOnlyTrimsDialled", VALID, " 01 23 ", "01 23"},
		ReaderCase{"ValidCountryDigitsAlone", VALID, "+3312345", "+3312345"},
		ReaderCase{"ValidPlusAlone", VALID, " + ", "+"},
		ReaderCase{"ValidClosesAreaWithoutSubscriber", VALID, "+33 (1)", "+33 (1) "},
		ReaderCase{"CountryBeforeBlank", COUNTRY, "+33 (1) 23456789", "33"},
		ReaderCase{"CountryNeedsSomethingAfterIt", COUNTRY, "+3312345", ""},
		ReaderCase{"CountryNeedsPlus", COUNTRY, "33 (1) 2", ""},
		ReaderCase{"CountryOfPlusAlone", COUNTRY, "+", ""},
		ReaderCase{"AreaBetweenParentheses", AREA, "+33 (1) 23456789", "1"},
		ReaderCase{"AreaNotAtStart", AREA, "(1) 234", ""},
		ReaderCase{"AreaEmptyParentheses", AREA, "+33 () 234", ""},
		ReaderCase{"AreaClosedBeforeOpened", AREA, "+33 1) 2 (3", ""},
		ReaderCase{"ExtensionAfterParenthesis", EXTENSION, "+33 (1) 23 45 67 89", "23456789"},
		ReaderCase{"ExtensionTakesDigitsAfterBar", EXTENSION, "+33 (1) 2345|12", "234512"},
		ReaderCase{"ExtensionAfterBlank", EXTENSION, "+33 1234", "1234"},
		ReaderCase{"ExtensionNeedsSeparator", EXTENSION, "12345", ""},
		ReaderCase{"ExtensionOfNothing", EXTENSION, "+33 (1) ", ""},
		ReaderCase{"GSMDropsTrunkArea", GSM, "+44 (0) 2012345678", "+442012345678"},
		ReaderCase{"GSMKeepsArea", GSM, "+49 (30) 1234567", "+49301234567"},
		ReaderCase{"GSMCopiesSubscriberAsItStands", GSM, "+33 (1) 23 45", "+33123 45"},
		ReaderCase{"GSMUnknownCountryKeepsArea", GSM, "+999 (0) 12", "+999012"},
		ReaderCase{"GSMNothingAfterTheArea", GSM, "+33 (1) ", "+331"},
		ReaderCase{"GSMWithoutParenthesesUnchanged", GSM, "+4912345", "+4912345"},
		ReaderCase{"GSMServiceCodeUnchanged", GSM, "+33 (1) ***12", "+33 (1) ***12"},
		ReaderCase{"ValidRebuildsWrongBracket", VALID, "+33 )1) 23", "+33 (1) 23"},
		ReaderCase{"ValidRebuildsDoubleBracket", VALID, "+33 ((1) 23", "+33 (1) 23"},
		ReaderCase{"ValidDropsSeparatorBeforeSubscriber", VALID, "+33 (1) -23", "+33 (1) 23"},
		ReaderCase{"CountryMustFollowThePlus", COUNTRY, "+ 33 (1) 2", ""}),
	test::RowName());

} // namespace
} // namespace numbering
