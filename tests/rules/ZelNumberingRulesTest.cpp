// ZelNumberingRulesTest.cpp

#include "numbering/ZelNumberingRules.h"

#include "numbering/ZelClid.h"
#include "numbering/ZelDialRulesItem.h"
#include "numbering/ZelEnumOrigin.h"

#include "support/ConfigFixture.h"
#include "support/LogCapture.h"
#include "support/TableRows.h"

#include "Poco/AutoPtr.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

using numbering::test::LogCapture;

namespace numbering {
namespace {

/// makeCanonicalNumber without and with the site's external prefix, makePhoneNumber, addExternalPrefix,
/// makeDialableNumber and makeGSMCanonicalNumber (without external prefix).
enum class Op
{
	Canonical,
	CanonicalWithExtPrefix,
	Phone,
	Prefix,
	Dial,
	GSM
};

/// What the facade instance makes of number at site; the canonical operations get pattern.
std::string callFacade(Op op, ZelDialRulesItem* site, const std::string& number, const std::string& pattern = "")
{
	ZelNumberingRules* rules = ZelNumberingRules::getInstance();
	switch (op)
	{
	case Op::Canonical:
		return rules->makeCanonicalNumber(site, number, pattern);
	case Op::CanonicalWithExtPrefix:
		return rules->makeCanonicalNumber(site, number, pattern, true);
	case Op::Phone:
		return rules->makePhoneNumber(site, number);
	case Op::Prefix:
		return rules->addExternalPrefix(site, number);
	case Op::Dial:
		return rules->makeDialableNumber(site, number);
	case Op::GSM:
		return rules->makeGSMCanonicalNumber(site, number, false);
	}
	return "unknown operation";
}

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

TEST_F(ZelNumberingRulesTest, ResetAlsoRebuildsThePlansFromTheirFiles)
{
	writeFile("dialingrules.properties", "DE=49:00:EFG:0FG:G:Germany:P\n");
	writeFile("r7731cnp_49.properties", "AC_0000=30\n");
	ZelDialRulesItem site("DE", "0", 0, "89", 0, "");
	EXPECT_EQ("+49 (30) 12345", ZelNumberingRules::getInstance()->makeCanonicalNumber(&site, "03012345", ""));
	writeFile("r7731cnp_49.properties", "AC_0000=301\n");
	ZelNumberingRules::resetInstance();
	EXPECT_EQ("+49 (301) 2345", ZelNumberingRules::getInstance()->makeCanonicalNumber(&site, "03012345", ""));
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
	Op op;
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
	EXPECT_EQ(c.expected, callFacade(c.op, &site, c.input));
}

INSTANTIATE_TEST_SUITE_P(SpanishSite,
	ZelNumberingRulesDialableTest,
	::testing::Values(DialCase{"OwnAreaIsLocal", Op::Dial, "+34 (1) 23456789", "23456789", 4, ""},
		DialCase{"OtherAreaIsLongDistance", Op::Dial, "+34 (4) 12345678", "0412345678", 4, ""},
		DialCase{"OtherCountryIsInternational", Op::Dial, "+44 (20) 12345678", "00442012345678", 4, ""},
		DialCase{"NoParenthesesIsLongDistance", Op::Dial, "+34 123456789", "0123456789", 4, ""},
		DialCase{"BlankInPlaceOfPlus", Op::Dial, " 34 (1) 23456789", "23456789", 4, ""},
		DialCase{"OutsideNumberGetsPrefix", Op::Prefix, "1234", "01234", 4, ""},
		DialCase{"ExceptionNumberWithoutPrefix", Op::Prefix, "1234", "1234", 4, "12"},
		DialCase{"PlusNumberKeepsPrefixEvenWhenShort", Op::Prefix, "+34 (1) 23456789", "023456789", 10, ""},
		DialCase{"MarkedNumberUntouched", Op::Prefix, " 12***3 ", " 12***3 ", 4, ""},
		DialCase{"PhoneNumberConvertsDialled", Op::Phone, "01 23 45 67 89", "00123456789", 4, ""},
		DialCase{"PhoneNumberOnlyCleansServiceCode", Op::Phone, "*12#", "0*12#", 4, ""},
		DialCase{"PlusNumberDialledWithPrefixGetsNoSecond", Op::Prefix, "+34 (4) 12345678", "0412345678", 11, ""},
		DialCase{"OpeningBracketAloneIsNoArea", Op::Dial, "+34 (1 23456789", "0123456789", 4, ""},
		DialCase{"ClosingBracketAloneIsNoArea", Op::Dial, "+34 1) 23456789", "0123456789", 4, ""}),
	numbering::test::rowName);

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
	numbering::test::rowName);

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
	numbering::test::rowName);

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
	numbering::test::rowName);

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
	test::rowName);

/// Germany and Colombia with plans, Spain (no trunk prefix), Italy (trunk 0), Portugal (long-distance rule E,
/// local rule F), Luxembourg (no long-distance rule, local rule G: local and national numbers alike) and
/// Liechtenstein (no long-distance rule, local rule F) without; "Unconfigured" is a default record of a country
/// ("FR") the configuration does not know.
class CanonicalSitesFixture: public test::ConfigFixture
{
protected:
	void SetUp() override
	{
		ConfigFixture::SetUp();
		writeFile("dialingrules.properties", R"(DE=49:00:EF:0F::Germany:P
ES=34:00:EF:::Spain:P
IT=39:00:EF:0F:F:Italy:P
PT=351:00:EF:E:F:Portugal:P
CO=57:00:EF:0F:F:Colombia:P
LU=352:00:EF::G:Luxembourg:P
LI=423:00:EF::F:Liechtenstein:P
BS=1242:011:EF:1F:G:Bahamas:P
US=1:011:EF:1F:G:United States:P
)");
		writeFile("r7731cnp_57.properties", "OP_DEFAULT=4\nOP_0000=5\nOP_0001=7\n");
		writeFile("qap_cnp_mask.properties", "Mask_49_1=+C (A) xxx xxxx\n");
		writeFile("specific_format_activation.properties", "cnp_49=true\n");
		writeFile("r7731cnp_49.properties", "Translate=1\nAC_0000=30\nAC_0001=89\nAC_0002=221\nAC_0003=7071\n");
		m_Sites["Berlin"] = std::make_unique<ZelDialRulesItem>("DE", "0", 5, "30", 0, "11");
		m_Sites["BerlinDirect"] = std::make_unique<ZelDialRulesItem>("DE", "", 5, "30", 0, "11");
		m_Sites["Madrid"] = std::make_unique<ZelDialRulesItem>("ES", "0", 5, "91", 0, "");
		m_Sites["Rome"] = std::make_unique<ZelDialRulesItem>("IT", "0", 5, "6", 0, "");
		m_Sites["Lisbon"] = std::make_unique<ZelDialRulesItem>("PT", "0", 5, "21", 0, "");
		m_Sites["Bogota"] = std::make_unique<ZelDialRulesItem>("CO", "0", 5, "1", 0, "");
		m_Sites["Luxembourg"] = std::make_unique<ZelDialRulesItem>("LU", "0", 5, "", 0, "");
		m_Sites["Vaduz"] = std::make_unique<ZelDialRulesItem>("LI", "0", 5, "", 0, "");
		m_Sites["Unconfigured"] = std::make_unique<ZelDialRulesItem>();
		rules();
		LogCapture::clear();
	}

	/// The named site, or null for "none".
	ZelDialRulesItem* site(const std::string& name) const
	{
		return name == "none" ? nullptr : m_Sites.at(name).get();
	}

	static ZelNumberingRules* rules()
	{
		return ZelNumberingRules::getInstance();
	}

private:
	std::map<std::string, std::unique_ptr<ZelDialRulesItem>> m_Sites;
};

/// A number as dialled or received at a site, and what an operation makes of it.
struct Case
{
	const char* name;
	Op op;
	const char* site;
	const char* input;
	const char* expected;
};

using SiteCaseTest = numbering::test::WithRows<CanonicalSitesFixture, Case>;

TEST_P(SiteCaseTest, GivesTheExpectedTextWithoutAnError)
{
	const Case& c = GetParam();
	EXPECT_EQ(c.expected, callFacade(c.op, site(c.site), c.input));
	EXPECT_EQ(std::vector<std::string>(), LogCapture::matching("ERROR "));
}

INSTANTIATE_TEST_SUITE_P(Canonical,
	SiteCaseTest,
	::testing::Values(Case{"InternalExtension", Op::Canonical, "Berlin", "1234", "1234"},
		Case{"ExceptionNumber", Op::Canonical, "Berlin", "11833", "11833"},
		Case{"NationalNumber", Op::Canonical, "Berlin", "(089) 1234-5678", "+49 (89) 123 45678"},
		Case{"LocalSubscriberGetsSiteArea", Op::Canonical, "Berlin", "76985411", "+49 (30) 769 85411"},
		Case{"PlusBlankNumber", Op::Canonical, "Berlin", " + 49 221 1234567 ", "+49 (221) 123 4567"},
		Case{"AbroadToOwnCountryIsNational", Op::Canonical, "Berlin", "0049 30 1234567", "+49 (30) 123 4567"},
		Case{"InternationalWithoutPlan", Op::Canonical, "Berlin", "0034 91 123 4567", "+34 911234567"},
		Case{"InternationalWithTrunkPrefix", Op::Canonical, "Berlin", "0039 06 1234 5678", "+39 (0) 0612345678"},
		Case{"PlusNumberWithoutPlan", Op::Canonical, "Berlin", "+34 91 123 4567", "+34 911234567"},
		// A calling code written apart is taken whole, though a shorter one begins it.
		Case{"PlusNumberSeparatedCallingCode", Op::Canonical, "Berlin", "+1242 5550100", "+1242 (1) 5550100"},
		Case{"PlusNumberUnknownCallingCode", Op::Canonical, "Berlin", "+999 1234567", "+999 1234567"},
		Case{"ExtensionAfterBarDropped", Op::Canonical, "Berlin", "030 1234567|12", "+49 (30) 123 4567"},
		Case{"ServiceCodeLosesLayout", Op::Canonical, "Berlin", "#31# 030-1234|9", "#31#0301234"},
		Case{"MarkedNumberByteForByte", Op::Canonical, "Berlin", " 030***1 x", " 030***1 x"},
		Case{"UnknownCallingCodeStaysDialled", Op::Canonical, "Madrid", "00999 1234567", "009991234567"},
		Case{"NationalWithoutTrunkPrefix", Op::Canonical, "Madrid", "911234567", "+34 911234567"},
		Case{"LocalOrNationalUnknown", Op::Canonical, "Lisbon", "211234567", "211234567"},
		Case{"LocalAndNationalAlikeIsNational", Op::Canonical, "Luxembourg", "12345678", "+352 12345678"},
		Case{"NoLongDistanceRuleWithoutLocalG", Op::Canonical, "Vaduz", "12345678", "12345678"},
		Case{"AbroadDropsCarrierCode", Op::Canonical, "Bogota", "005 34 91 123 4567", "+34 911234567"},
		Case{"ExtPrefixRemovedFirst", Op::CanonicalWithExtPrefix, "Berlin", "0030 1234567", "+49 (30) 123 4567"},
		Case{"WithoutExtPrefixKept", Op::CanonicalWithExtPrefix, "Berlin", "1234", "1234"},
		Case{"SiteWithoutExtPrefixInternal", Op::CanonicalWithExtPrefix, "BerlinDirect", "1234", ""},
		Case{"SiteWithoutExtPrefixPlusNumber", Op::CanonicalWithExtPrefix, "BerlinDirect", "+49 30 1234567", ""},
		// The German mask has laid the subscriber part out already, and that part is copied as it stands.
		Case{"GSMLaidOutSubscriber", Op::GSM, "Berlin", "030 1234567", "+4930123 4567"},
		Case{"GSMTrunkPrefixDropped", Op::GSM, "Rome", "0612345678", "+39612345678"},
		Case{"GSMInternal", Op::GSM, "Berlin", "1234", "1234"},
		Case{"TwoStarsAreNoMarker", Op::Canonical, "Berlin", " **21# ", "**21#"}),
	test::rowName);

// makePhoneNumber converts dialled numbers too, addExternalPrefix only cleans them.
INSTANTIATE_TEST_SUITE_P(Dialled,
	SiteCaseTest,
	::testing::Values(Case{"LocalArea", Op::Phone, "Berlin", "+49 (30) 1234567", "01234567"},
		Case{"LongDistance", Op::Phone, "Berlin", "+49 89 12345678", "008912345678"},
		Case{"International", Op::Phone, "Berlin", "+34 91 123 4567", "00034911234567"},
		Case{"DialledNational", Op::Phone, "Berlin", " 030 1234567", "01234567"},
		Case{"Extension", Op::Phone, "Berlin", "1234", "1234"},
		Case{"ServiceCodeOnlyCleaned", Op::Phone, "Berlin", "*21#", "*21#"},
		Case{"NoAreaIsLongDistance", Op::Phone, "Madrid", "+34 91 123 4567", "0911234567"},
		Case{"CleanedOutsideNumber", Op::Prefix, "Berlin", "030 1234567", "00301234567"},
		Case{"ExceptionNumber", Op::Prefix, "Berlin", "11833", "11833"},
		Case{"PlusNumberConverted", Op::Prefix, "Berlin", "+49 (30) 1234567", "01234567"},
		Case{"NoPrefixSiteTrims", Op::Prefix, "BerlinDirect", "  0612345678 ", "0612345678"},
		// Bogota's carrier 4 is dialled after the prefix; a carrier dialled abroad is dropped, one dialled towards
		// Colombia stays, and abroad the subscriber number is dialled twice.
		Case{"ColombiaAbroadWithCarrier", Op::Phone, "Bogota", "005 34 91 123 4567", "0004911234567911234567"},
		Case{"ColombiaOwnCountryWithCarrier", Op::Phone, "Bogota", "005 57 4 234 5678", "00442345678"},
		Case{"ColombiaMobile", Op::Phone, "Bogota", "+57 300 123 4567", "0033001234567"},
		Case{"DialPassesOnWithoutPlus", Op::Dial, "Berlin", " 49 (89) 123", "089123"},
		Case{"DialPassesOnDialled", Op::Dial, "Berlin", "0301234", "0301234"},
		Case{"DialNothingAfterArea", Op::Dial, "Berlin", "+49 (89) ", ""},
		Case{"DialUnconfiguredSite", Op::Dial, "Unconfigured", "+49 (89) 123", "+49 (89) 123"}),
	test::rowName);

/// A received number and the calling-line identity made of it.
struct ClidCase
{
	const char* name;
	const char* site;
	const char* input;
	const char* number;
	const ZelEnumOrigin* origin;
};

using MakeClidTest = numbering::test::WithRows<CanonicalSitesFixture, ClidCase>;

TEST_P(MakeClidTest, TellsWhereTheCallerIs)
{
	Poco::AutoPtr<ZelClid> clid(rules()->makeClid(site(GetParam().site), GetParam().input));
	ASSERT_FALSE(clid.isNull());
	EXPECT_EQ(GetParam().number, clid->getNumber());
	EXPECT_EQ(GetParam().origin->getName(), clid->getOrigin()->getName());
}

INSTANTIATE_TEST_SUITE_P(Origins,
	MakeClidTest,
	::testing::Values(ClidCase{"TrunkPrefixAsArea", "Rome", "0612345678", "612345678", &ZelEnumOrigin::NATIONAL},
		ClidCase{
			"AbroadTrunkPrefixDropped", "Berlin", "0039 06 1234 5678", "390612345678", &ZelEnumOrigin::INTERNATIONAL}),
	test::rowName);

using UnguardedOperationTest = CanonicalSitesFixture;

TEST_F(UnguardedOperationTest, GiveNullOrThrowAndDialableNumbersEndAtThirtyCharacters)
{
	EXPECT_EQ(nullptr, rules()->makeClid(site("Berlin"), "12x4"));
	EXPECT_THROW(rules()->makeClid(nullptr, "1234"), std::invalid_argument);
	EXPECT_THROW(rules()->makeClid(site("Berlin"), ""), std::invalid_argument);
	EXPECT_THROW(rules()->makeClid(site("Unconfigured"), "+49 30 1234567"), std::runtime_error);
	EXPECT_THROW(rules()->makeDialableNumber(site("Berlin"), ""), std::out_of_range);
	// makeDialableNumber reads no further than thirty characters.
	const std::string twentyDigits = "12345678901234567890";
	const std::string canonical = "+49 (89) " + twentyDigits;
	ASSERT_EQ(29u, canonical.size());
	EXPECT_EQ("089" + twentyDigits, rules()->makeDialableNumber(site("Berlin"), canonical));
	EXPECT_EQ("", rules()->makeDialableNumber(site("Berlin"), canonical + "1"));
}

/// A guarded operation's failure: "" and one error line with operation, cause, number and site.
struct FailureCase
{
	const char* name;
	Op op;
	const char* site;
	const char* input;
	const char* cause;
	const char* quoted = nullptr; ///< the number as the error line quotes it, when not the input
};

using GuardedFailureTest = numbering::test::WithRows<CanonicalSitesFixture, FailureCase>;

TEST_P(GuardedFailureTest, LogsOneErrorLineAndGivesNothing)
{
	const FailureCase& c = GetParam();
	EXPECT_EQ("", callFacade(c.op, site(c.site), c.input, "+C"));
	const char* operation = c.op == Op::Canonical ? "makeCanonicalNumber"
							: c.op == Op::Phone   ? "makePhoneNumber"
												  : "addExternalPrefix";
	const std::string pattern = c.op == Op::Canonical ? ", Pattern: '+C'" : "";
	const std::string dialRules = site(c.site) ? site(c.site)->ToString() : "";
	const std::vector<std::string> expected{std::string("ERROR N9numbering17ZelNumberingRulesE - ZelNumberingRules::") +
											operation + " exception: " + c.cause + " - PhoneNumber: '" +
											(c.quoted ? c.quoted : c.input) + "'" + pattern +
											"\n  DialRules: " + dialRules};
	EXPECT_EQ(expected, LogCapture::lines());
}

INSTANTIATE_TEST_SUITE_P(Operations,
	GuardedFailureTest,
	::testing::Values(FailureCase{"CanonicalBadCharacter", Op::Canonical, "Berlin", "030 12x4567",
						  "'strPhoneNumber' parameter is not a phone number"},
		FailureCase{"CanonicalLowerCaseKeypadLetter", Op::Canonical, "Berlin", "12a4",
			"'strPhoneNumber' parameter is not a phone number"},
		FailureCase{"CanonicalNoSite", Op::Canonical, "none", "1234", "'myZelDialRulesItem' parameter can not be null"},
		FailureCase{"CanonicalUnconfiguredSite", Op::Canonical, "Unconfigured", "0301234567",
			"Country code 'FR' is not supported"},
		FailureCase{"PhoneNumberEmpty", Op::Phone, "Berlin", "", "'strPhoneNumber' parameter can not be null"},
		FailureCase{"CanonicalBlanksAreEmptyOnceTrimmed", Op::Canonical, "Berlin", "   ",
			"'strPhoneNumber' parameter can not be null", ""},
		FailureCase{"PrefixNoSite", Op::Prefix, "none", "1234", "'myZelDialRulesItem' parameter can not be null"}),
	test::rowName);

using TracesTest = CanonicalSitesFixture;

TEST_F(TracesTest, DebugLinesAreWrittenOnlyWhenTracesAreOn)
{
	const auto debugLines = [this] {
		LogCapture::clear();
		rules()->makeCanonicalNumber(site("Berlin"), "089 1234567", "");
		rules()->makePhoneNumber(site("Bogota"), "+34 91 123 4567");
		return LogCapture::matching("DEBUG ");
	};
	EXPECT_EQ(std::vector<std::string>(), debugLines());
	Logger::m_Traces = true;
	EXPECT_EQ("DEBUG N9numbering17ZelNumberingRulesE - MakeCanonicalNumber with : 089 1234567", debugLines().at(0));
}

} // namespace
} // namespace numbering
