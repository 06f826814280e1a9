// ZelNumberingRulesTest.cpp

#include "numbering/ZelNumberingRules.h"

#include "dialable/ZelDialable.h"
#include "dialable/ZelDialableManager.h"
#include "support/ConfigFixture.h"
#include "support/LogCapture.h"
#include "support/RowName.h"

#include <gtest/gtest.h>

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

/// Counts the constructions by their trace line; the reset must also release the cached makers, and a host
/// holding the old pointer must see that it no longer names the instance.
TEST_F(ZelNumberingRulesTest, GetInstanceBuildsOneFacadeUntilReset)
{
	Logger::m_Traces = true;
	ZelNumberingRules* rules = ZelNumberingRules::getInstance();
	EXPECT_EQ(rules, ZelNumberingRules::getInstance());
	EXPECT_EQ(1, LogCapture::count("ZelNumberingRules()"));
	const int makers = ZelDialable::_count;
	ZelDialableManager::getInstance()->getDialable("33");
	ZelNumberingRules::resetInstance();
	EXPECT_EQ(makers, ZelDialable::_count);
	EXPECT_TRUE(LogCapture::contains("DEBUG N9numbering17ZelNumberingRulesE - Releasing resources"));
	EXPECT_NE(rules, ZelNumberingRules::getInstance());
	EXPECT_EQ(2, LogCapture::count("ZelNumberingRules()"));
}

TEST_F(ZelNumberingRulesTest, ResetMakesTheNextInstanceReadTheFilesAgain)
{
	ZelNumberingRules* rules = ZelNumberingRules::getInstance();
	EXPECT_EQ("France", rules->getCountryName("FR"));
	EXPECT_EQ("FR", rules->getCountryCode("France"));
	EXPECT_EQ("FR", rules->getCountryCodeFromNumber("33"));
	writeFile("dialingrules.properties", "FR = 33:00:EF:0F:0F:Frankreich:P\n");
	EXPECT_EQ(std::vector<std::string>{"France"}, ZelNumberingRules::getInstance()->getCountryList());
	ZelNumberingRules::resetInstance();
	EXPECT_EQ(std::vector<std::string>{"Frankreich"}, ZelNumberingRules::getInstance()->getCountryList());
}

struct PrefixCase
{
	const char* name;
	std::string number;
	bool expected;
};

class ZelNumberingRulesPrefixTest: public ZelNumberingRulesTest, public ::testing::WithParamInterface<PrefixCase>
{
};

TEST_P(ZelNumberingRulesPrefixTest, WantedFromTheLocalLengthOnUnlessException)
{
	ZelDialRulesItem site("FR", "0", 4, "1", 0, "18");
	EXPECT_EQ(GetParam().expected, ZelNumberingRules::getInstance()->isPrefixNeeded(&site, GetParam().number));
}

INSTANTIATE_TEST_SUITE_P(Lengths,
	ZelNumberingRulesPrefixTest,
	::testing::Values(PrefixCase{"Empty", "", false},
		PrefixCase{"OneShorterThanLocalLength", "123", false},
		PrefixCase{"AtLocalLength", "1234", true},
		PrefixCase{"LongerThanLocalLength", "0612345678", true},
		PrefixCase{"ExceptionNumber", "18765", false}),
	numbering::test::RowName());

TEST_F(ZelNumberingRulesTest, NoPrefixWithoutSite)
{
	EXPECT_FALSE(ZelNumberingRules::getInstance()->isPrefixNeeded(nullptr, "0612345678"));
}

} // namespace
} // namespace numbering
