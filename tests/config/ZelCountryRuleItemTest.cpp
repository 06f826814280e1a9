// ZelCountryRuleItemTest.cpp

#include "numbering/ZelCountryRuleItem.h"

#include "support/RowName.h"

#include "Poco/AutoPtr.h"

#include <gtest/gtest.h>

using numbering::ZelCountryRuleItem;

namespace {

struct RuleCase
{
	const char* name;
	const char* longDistRule;
	const char* localRule;
	const char* expectedLongDistRule;
	const char* expectedLongDistPrefix;
	const char* expectedLocalPrefix;
};

class ZelCountryRuleItemTest: public ::testing::TestWithParam<RuleCase>
{
};

TEST_P(ZelCountryRuleItemTest, DerivesPrefixesFromRules)
{
	const RuleCase& rule = GetParam();
	Poco::AutoPtr<ZelCountryRuleItem> item(
		new ZelCountryRuleItem("33", "00", "EFG", rule.longDistRule, rule.localRule, "France"));
	EXPECT_EQ(rule.expectedLongDistRule, item->getLongDistRule());
	EXPECT_EQ(rule.localRule, item->getLocalRule());
	EXPECT_EQ(rule.expectedLongDistPrefix, item->getLongDistPrefix());
	EXPECT_EQ(rule.expectedLocalPrefix, item->getLocalDistPrefix());
}

INSTANTIATE_TEST_SUITE_P(Rules,
	ZelCountryRuleItemTest,
	::testing::Values(RuleCase{"TrimmedLongDistanceRule", " 0F ", "G", "0F", "0", ""},
		RuleCase{"UntrimmedLocalRule", "0FG", " 0F", "0FG", "0", " 0"},
		RuleCase{"IWhenNoF", "1IG", "9I", "1IG", "1", "9"},
		RuleCase{"FBeatsEarlierI", "0IF", "0IF", "0IF", "0I", "0I"},
		RuleCase{"LeadingF", "FG", "F", "FG", "", ""},
		RuleCase{"LowerCaseIgnored", "0fi", "0g", "0fi", "", ""},
		RuleCase{"Empty", "", "", "", "", ""}),
	numbering::test::RowName());

TEST(ZelCountryRuleItemCountTest, CountsLiveRecords)
{
	const int before = ZelCountryRuleItem::_count;
	ZelCountryRuleItem* first = new ZelCountryRuleItem("33", "00", "EFG", "0FG", "G", "France");
	ZelCountryRuleItem* second = new ZelCountryRuleItem("49", "00", "EFG", "0FG", "G", "Germany");
	first->release();
	EXPECT_EQ(before + 1, ZelCountryRuleItem::_count);
	second->duplicate();
	second->release();
	EXPECT_EQ(before + 1, ZelCountryRuleItem::_count);
	second->release();
	EXPECT_EQ(before, ZelCountryRuleItem::_count);
}

} // namespace
