// ZelNumberingRulesDialableTest.cpp

#include "numbering/ZelNumberingRules.h"

#include "support/ConfigFixture.h"
#include "support/FacadeCall.h"
#include "support/LogCapture.h"
#include "support/RowName.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace numbering {
namespace {

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
		DialCase{"TrunkPrefixDroppedAbroad", test::Op::Dial, "+44 (0) 2012345678", "00442012345678", 4, ""},
		DialCase{"NoParenthesesIsLongDistance", test::Op::Dial, "+34 123456789", "0123456789", 4, ""},
		DialCase{"BlankInPlaceOfPlus", test::Op::Dial, " 34 (1) 23456789", "23456789", 4, ""},
		DialCase{"DialledNotCanonical", test::Op::Dial, "0123", "0123", 4, ""},
		DialCase{"OutsideNumberGetsPrefix", test::Op::Prefix, "1234", "01234", 4, ""},
		DialCase{"ExceptionNumberWithoutPrefix", test::Op::Prefix, "1234", "1234", 4, "12"},
		DialCase{"PlusNumberKeepsPrefixEvenWhenShort", test::Op::Prefix, "+34 (1) 23456789", "023456789", 10, ""},
		DialCase{"MarkedNumberUntouched", test::Op::Prefix, " 12***3 ", " 12***3 ", 4, ""},
		DialCase{"PhoneNumberConvertsDialled", test::Op::Phone, "01 23 45 67 89", "00123456789", 4, ""},
		DialCase{"PhoneNumberOnlyCleansServiceCode", test::Op::Phone, "*12#", "0*12#", 4, ""},
		DialCase{"PhoneNumberPlusBlank", test::Op::Phone, " + 34 4 12 34 56 78", "00412345678", 4, ""}),
	numbering::test::RowName());

using ZelNumberingRulesCanonicalErrorTest = ZelNumberingRulesDialableTest;

/// A failure after the destination country was found quotes the trimmed number and that country's temporary
/// record, not the caller's site.
TEST_F(ZelNumberingRulesCanonicalErrorTest, QuotesTheTemporaryRecord)
{
	ZelDialRulesItem site("ES", "0", 4, "1", 0, "");
	ZelNumberingRules* rules = ZelNumberingRules::getInstance();
	test::LogCapture::clear();
	EXPECT_EQ("", rules->makeCanonicalNumber(&site, " + 57 ", "x"));
	const std::vector<std::string> errors = test::LogCapture::matching("ERROR ");
	ASSERT_EQ(1u, errors.size());
	const std::string& line = errors.front();
	EXPECT_EQ(
		0u, line.find("ERROR N9numbering17ZelNumberingRulesE - ZelNumberingRules::makeCanonicalNumber exception: "))
		<< line;
	const std::string tail =
		" - PhoneNumber: '+57', Pattern: 'x'\n  DialRules: CountryCode : 'CO', External Prefix : '', "
		"Local length : 0, AreaCode : '', m_areaCodesList : , Except length : 0, Except begin : ''";
	EXPECT_EQ(tail, line.substr(line.size() - std::min(line.size(), tail.size())));
}

} // namespace
} // namespace numbering
