// ZelNumberingRulesTest.cpp

#include "numbering/ZelNumberingRules.h"

#include "support/ConfigFixture.h"
#include "support/FacadeCall.h"
#include "support/LogCapture.h"
#include "support/TableRows.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using numbering::test::LogCapture;

namespace numbering {
namespace {

class ZelNumberingRulesTest: public test::ConfigFixture
{
protected:
	void SetUp() override
	{
		ConfigFixture::SetUp();
		writeFile("dialingrules.properties", "FR = 33:00:EF:0F:0F:France:P\n");
	}
};

TEST_F(ZelNumberingRulesTest, GetInstanceBuildsOneFacadeUntilResetAndTheNextReadsTheFilesAgain)
{
	ZelNumberingRules* rules = ZelNumberingRules::getInstance();
	EXPECT_EQ(rules, ZelNumberingRules::getInstance());
	EXPECT_EQ("France", rules->getCountryName("FR"));
	EXPECT_EQ("FR", rules->getCountryCode("France"));
	EXPECT_EQ("FR", rules->getCountryCodeFromNumber("33"));
	writeFile("dialingrules.properties", "FR = 33:00:EF:0F:0F:Frankreich:P\n");
	EXPECT_EQ(std::vector<std::string>{"France"}, ZelNumberingRules::getInstance()->getCountryList());
	ZelNumberingRules::resetInstance();
	EXPECT_EQ(std::vector<std::string>{"Frankreich"}, ZelNumberingRules::getInstance()->getCountryList());
}

TEST_F(ZelNumberingRulesTest, PrefixWantedFromTheLocalLengthOnUnlessExceptionNumberOrNoSite)
{
	ZelDialRulesItem site("FR", "0", 4, "1", 0, "18");
	const std::pair<const char*, bool> numbers[] = {
		{"", false}, {"123", false}, {"1234", true}, {"0612345678", true}, {"18765", false}};
	for (const auto& [number, wanted] : numbers)
		EXPECT_EQ(wanted, ZelNumberingRules::getInstance()->isPrefixNeeded(&site, number)) << number;
	EXPECT_FALSE(ZelNumberingRules::getInstance()->isPrefixNeeded(nullptr, "0612345678"));
}

/// A site in area 1 of Spain (no numbering plan) with external prefix 0, and what one operation makes of a number.
struct DialCase
{
	const char* name;
	test::Op op;
	const char* input;
	const char* expected;
	int localLength;
	const char* exceptionBegin;
};

class ZelNumberingRulesDialableTest: public test::ConfigFixture, public ::testing::WithParamInterface<DialCase>
{
protected:
	void SetUp() override
	{
		ConfigFixture::SetUp();
		writeFile("dialingrules.properties", "ES=34:00:EF:0F::Spain:P\nGB=44:00:EF:0F::United Kingdom:P\n"
											 "CO=57:00:EF:0F::Colombia:P\n");
	}
};

TEST_P(ZelNumberingRulesDialableTest, DialsWhatTheExchangeNeeds)
{
	const DialCase& c = GetParam();
	ZelDialRulesItem site("ES", "0", c.localLength, "1", 0, c.exceptionBegin);
	EXPECT_EQ(c.expected, test::callFacade(c.op, &site, c.input));
}

INSTANTIATE_TEST_SUITE_P(SpanishSite,
	ZelNumberingRulesDialableTest,
	::testing::Values(DialCase{"OwnAreaIsLocal", test::Op::Dial, "+34 (1) 23456789", "23456789", 4, ""},
		DialCase{"OtherAreaIsLongDistance", test::Op::Dial, "+34 (4) 12345678", "0412345678", 4, ""},
		DialCase{"OtherCountryIsInternational", test::Op::Dial, "+44 (20) 12345678", "00442012345678", 4, ""},
		DialCase{"NoParenthesesIsLongDistance", test::Op::Dial, "+34 123456789", "0123456789", 4, ""},
		DialCase{"BlankInPlaceOfPlus", test::Op::Dial, " 34 (1) 23456789", "23456789", 4, ""},
		DialCase{"OutsideNumberGetsPrefix", test::Op::Prefix, "1234", "01234", 4, ""},
		DialCase{"ExceptionNumberWithoutPrefix", test::Op::Prefix, "1234", "1234", 4, "12"},
		DialCase{"PlusNumberKeepsPrefixEvenWhenShort", test::Op::Prefix, "+34 (1) 23456789", "023456789", 10, ""},
		DialCase{"MarkedNumberUntouched", test::Op::Prefix, " 12***3 ", " 12***3 ", 4, ""},
		DialCase{"PhoneNumberConvertsDialled", test::Op::Phone, "01 23 45 67 89", "00123456789", 4, ""},
		DialCase{"PhoneNumberOnlyCleansServiceCode", test::Op::Phone, "*12#", "0*12#", 4, ""},
		DialCase{"PlusNumberDialledWithPrefixGetsNoSecond", test::Op::Prefix, "+34 (4) 12345678", "0412345678", 11, ""},
		DialCase{"OpeningBracketAloneIsNoArea", test::Op::Dial, "+34 (1 23456789", "0123456789", 4, ""},
		DialCase{"ClosingBracketAloneIsNoArea", test::Op::Dial, "+34 1) 23456789", "0123456789", 4, ""}),
	numbering::test::RowName());

using ZelNumberingRulesCanonicalErrorTest = ZelNumberingRulesDialableTest;

/// A failure after the destination country was found quotes that country's temporary record.
TEST_F(ZelNumberingRulesCanonicalErrorTest, QuotesTheTemporaryRecord)
{
	ZelDialRulesItem site("ES", "0", 4, "1", 0, "");
	ZelNumberingRules* rules = ZelNumberingRules::getInstance();
	test::LogCapture::clear();
	EXPECT_EQ("", rules->makeCanonicalNumber(&site, " + 57 ", "x"));
	const std::vector<std::string> expected{
		"ERROR N9numbering17ZelNumberingRulesE - ZelNumberingRules::makeCanonicalNumber exception: basic_string::at: "
		"__n (which is 0) >= this->size() (which is 0) - PhoneNumber: '+57', Pattern: 'x'\n  DialRules: CountryCode : "
		"'CO', External Prefix : '', Local length : 0, AreaCode : '', m_areaCodesList : , Except length : 0, Except "
		"begin : ''"};
	EXPECT_EQ(expected, test::LogCapture::matching("ERROR "));
}

const char* const LOGGER = "N9numbering17ZelNumberingRulesE - ";

/// Trunk 0 with areas (FR, GB, DE), trunk 0 without (IT), neither (ES), areas only (US); a mask for 33 only.
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

/// formatCanonicalNumber(number, pattern), or generateDefaultCanonicalNumber(number, country, area).
struct LayoutCase
{
	const char* name;
	std::string number;
	std::string patternOrCountry;
	const char* area;
	std::string expected;
};

using ZelNumberingRulesLayoutTest = test::WithRows<ZelNumberingRulesFormattingTest, LayoutCase>;

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

/// A layout of an unreadable number: the input back and one error line, whose text after the logger is given.
struct LayoutErrorCase
{
	const char* name;
	bool gsm;
	std::string canonical;
	std::string pattern;
	std::string error;
};

using ZelNumberingRulesLayoutErrorTest = test::WithRows<ZelNumberingRulesFormattingTest, LayoutErrorCase>;

TEST_P(ZelNumberingRulesLayoutErrorTest, LogsAndGivesInputBack)
{
	const LayoutErrorCase& c = GetParam();
	EXPECT_EQ(c.canonical, c.gsm ? m_Rules->formatToGSMCanonicalNumber(c.canonical)
								 : m_Rules->formatCanonicalNumber(c.canonical, c.pattern));
	EXPECT_EQ(std::vector<std::string>{std::string("ERROR ") + LOGGER + c.error}, errorLines());
}

const std::string LAYOUT_AT = "ZelNumberingRules::formatCanonicalNumber exception: basic_string::at: __n (which is 8) "
							  ">= this->size() (which is 8) - strCanPhoneNumberFinal: ";
const std::string GSM_ERROR = "ZelNumberingRules::formatToGSMCanonicalNumber exception: basic_string::";

INSTANTIATE_TEST_SUITE_P(Numbers,
	ZelNumberingRulesLayoutErrorTest,
	::testing::Values(
		LayoutErrorCase{"CountryWithoutBlank", false, "+33(1)23", "C", LAYOUT_AT + "'+33(1)23', strPattern: 'C'"},
		LayoutErrorCase{"AreaWithoutClosingParenthesis", false, "+33 )1(2", "+C (A)",
			LAYOUT_AT + "'+33 )1(2', strPattern: '+C (A)'"},
		LayoutErrorCase{"MaskQuotedForEmptyPattern", false, "+33(1)23", "",
			LAYOUT_AT + "'+33(1)23', strPattern: '+C (a) xx xx xx xx'"},
		LayoutErrorCase{"GSMNothingAfterArea", true, "+33 (1)", "",
			GSM_ERROR + "substr: __pos (which is 8) > this->size() (which is 7) - strCanPhoneNumber: '+33 (1)'"},
		LayoutErrorCase{"GSMCountryWithoutBlank", true, "+33(1)2", "",
			GSM_ERROR + "at: __n (which is 7) >= this->size() (which is 7) - strCanPhoneNumber: '+33(1)2'"}),
	numbering::test::RowName());

using Reader = std::string (ZelNumberingRules::*)(std::string);

/// One reader of a single number applied to one input.
struct ReaderCase
{
	const char* name;
	Reader reader;
	std::string input;
	const char* expected;
};

using ZelNumberingRulesParsingTest = test::WithRows<ZelNumberingRulesFormattingTest, ReaderCase>;

TEST_P(ZelNumberingRulesParsingTest, ReadsThePartOfTheNumberWithoutAnError)
{
	const ReaderCase& c = GetParam();
	EXPECT_EQ(c.expected, (m_Rules->*c.reader)(c.input));
	EXPECT_EQ(std::vector<std::string>(), errorLines());
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
