// ZelNumberingRulesParsingTest.cpp

#include "numbering/ZelNumberingRules.h"

#include "support/ConfigFixture.h"
#include "support/LogCapture.h"

#include <gtest/gtest.h>

#include <string>

namespace numbering {
namespace {

using Reader = std::string (ZelNumberingRules::*)(std::string);

/// One reader of canonical numbers applied to one input.
struct ReaderCase
{
	const char* name;
	Reader reader;
	const char* input;
	const char* expected;
};

class ZelNumberingRulesParsingTest: public test::ConfigFixture, public ::testing::WithParamInterface<ReaderCase>
{
};

TEST_P(ZelNumberingRulesParsingTest, ReadsThePartOfTheNumber)
{
	const ReaderCase& c = GetParam();
	EXPECT_EQ(c.expected, (ZelNumberingRules::getInstance()->*c.reader)(c.input));
}

const Reader VALID = &ZelNumberingRules::validNumber;
const Reader COUNTRY = &ZelNumberingRules::extractCountryNumberFromCanonicalNumber;
const Reader AREA = &ZelNumberingRules::extractAreaCodeOrNatPrefixFromCanonicalNumber;
const Reader EXTENSION = &ZelNumberingRules::extractExtensionFromCanonicalNumber;

INSTANTIATE_TEST_SUITE_P(Readers,
	ZelNumberingRulesParsingTest,
	::testing::Values(ReaderCase{"ValidRebuildsLayout", VALID, "  +33  1-2345 6789 ", "+33 (1) 23456789"},
		ReaderCase{"ValidKeepsBarAndKeypad", VALID, "+33 (1) 23 45|1*2", "+33 (1) 2345|1*2"},
		ReaderCase{"ValidOnlyTrimsDialled", VALID, " 01 23 ", "01 23"},
		ReaderCase{"ValidCountryDigitsAlone", VALID, "+3312345", "+3312345"},
		ReaderCase{"ValidPlusAlone", VALID, " + ", "+"},
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
		ReaderCase{"ExtensionOfNothing", EXTENSION, "+33 (1) ", ""}),
	[](const ::testing::TestParamInfo<ReaderCase>& info) { return std::string(info.param.name); });

} // namespace
} // namespace numbering
