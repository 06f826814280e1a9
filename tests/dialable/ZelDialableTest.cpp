// ZelDialableTest.cpp

#include "dialable/ZelDialable.h"

#include "dialable/ZelDialableFactory.h"
#include "dialable/ZelDialableManager.h"
#include "dialable/ZelDialable_7.h"
#include "support/ConfigFixture.h"
#include "support/TableRows.h"

#include "Poco/AutoPtr.h"

#include <gtest/gtest.h>

#include <typeinfo>

namespace numbering {
namespace {

enum class Call
{
	Local,
	LongDist,
	International
};

/// A maker call with the rule under test; areaAfter "-" means the area stays as it was.
struct RuleCase
{
	const char* name;
	Call call;
	std::string rule;
	std::string area;
	std::string dest;
	std::string expected;
	std::string countryNumber = "44";
	std::string areaAfter = "-";
};

/// France, the United Kingdom (trunk prefix 0) and the United States.
class ZelDialableTest: public test::ConfigFixture, public ::testing::WithParamInterface<RuleCase>
{
protected:
	void SetUp() override
	{
		ConfigFixture::SetUp();
		writeFile("dialingrules.properties", "FR = 33:00:EF:0F:0F:France:P\n"
											 "GB = 44:00:EF:0F:F:United Kingdom:P\n"
											 "US = 1:011:EF:F:G:United States:P\n");
	}
};

/// The other rule fields hold decoys ("9F", "EF") that show up if a maker reads the wrong rule.
TEST_P(ZelDialableTest, AppliesOnlyTheLettersOfItsOwnRule)
{
	const RuleCase& c = GetParam();
	ZelCountryRuleItem rule("33", "00", c.call == Call::International ? c.rule : "EF",
		c.call == Call::LongDist ? c.rule : "9F", c.call == Call::Local ? c.rule : "9F", "France");
	ZelDialable maker;
	std::string country = c.countryNumber;
	std::string area = c.area;
	std::string dest = c.dest;
	EXPECT_EQ(c.expected, c.call == Call::Local ? maker.makeLocalDialableNumber(area, dest, &rule)
						  : c.call == Call::LongDist
							  ? maker.makeLongDistDialableNumber(area, dest, &rule, nullptr)
							  : maker.makeInternationalDialableNumber(country, area, dest, &rule));
	EXPECT_EQ(c.areaAfter == "-" ? c.area : c.areaAfter, area);
	EXPECT_EQ(c.countryNumber, country);
	EXPECT_EQ(c.dest, dest);
}

INSTANTIATE_TEST_SUITE_P(Rules,
	ZelDialableTest,
	::testing::Values(RuleCase{"LocalEmptyRuleDialsDestAsItIs", Call::Local, "", "1", "23456789", "23456789"},
		RuleCase{"LocalLowerCaseLettersDoNotCount", Call::Local, "0f", "1", "23456789", "23456789"},
		RuleCase{"LocalIKeepsDestWithPrefix", Call::Local, "0I", "1", "0612345678", "0612345678"},
		RuleCase{"LocalIAddsMissingPrefix", Call::Local, "0I", "1", "612345678", "0612345678"},
		RuleCase{"LocalFFoundAfterOtherLetters", Call::Local, "0FG", "1", "23456789", "0123456789"},
		RuleCase{"LocalAreaAlreadyCarriesPrefix", Call::Local, "0F", "01", "23", "0123"},
		RuleCase{"LocalPartOfPrefixPresent", Call::Local, "00I", "", "0612", "00612"},
		RuleCase{"LocalMergeNeverLooksBack", Call::Local, "012I", "", "02", "012"},
		RuleCase{"LocalPrefixLongerThanDest", Call::Local, "00I", "", "0", "00"},
		RuleCase{"LongDistEmptyRuleDialsDest", Call::LongDist, "", "1", "23456789", "23456789"},
		RuleCase{"LongDistFAddsAreaAndPrefix", Call::LongDist, "0F", "1", "23456789", "0123456789"},
		RuleCase{"LongDistIAddsOnlyPrefix", Call::LongDist, "0I", "1", "23456789", "023456789"},
		RuleCase{"CountryAndArea", Call::International, "EF", "20", "12345678", "00442012345678"},
		RuleCase{"CountryOnlyLeavesAreaOut", Call::International, "E", "20", "12345678", "004412345678"},
		RuleCase{"AreaOnly", Call::International, "F", "20", "12345678", "002012345678"},
		RuleCase{"NeitherLetterDialsPrefixAndDest", Call::International, "I", "20", "12345678", "0012345678"},
		RuleCase{"LettersFoundAnywhere", Call::International, "XEYF", "20", "12345678", "00442012345678"},
		RuleCase{
			"TrunkPrefixAsAreaIsDropped", Call::International, "EF", "0", "2012345678", "00442012345678", "44", ""},
		RuleCase{"AreaOnlyStartingWithTrunkIsKept", Call::International, "EF", "020", "12345678", "004402012345678"},
		RuleCase{"UnknownCountryKeepsArea", Call::International, "EF", "0", "12", "00999012", "999"},
		RuleCase{"TrunkKeptWithoutLetterF", Call::International, "E", "0", "2012345678", "00442012345678"}),
	numbering::test::RowName());

using ZelDialableManagerTest = test::ConfigFixture;

TEST_F(ZelDialableManagerTest, KeepsOneMakerPerCountryNumberAndNoneForAnEmptyOne)
{
	ZelDialableManager* manager = ZelDialableManager::getInstance();
	ZelDialable* french = manager->getDialable("33");
	ASSERT_NE(nullptr, french);
	EXPECT_EQ(french, manager->getDialable("33"));
	EXPECT_NE(french, manager->getDialable("44"));
	EXPECT_EQ(nullptr, manager->getDialable(""));
}

TEST_F(ZelDialableManagerTest, FactoryChoosesAVariantByTheWholeCountryNumber)
{
	// Each variant's class shows in its country's worked examples; neighbours get the generic maker.
	ZelDialableFactory factory;
	Poco::AutoPtr<ZelDialable> russian(factory.CreateInstance("7"));
	EXPECT_EQ(typeid(ZelDialable_7), typeid(*russian));
	for (const char* number : {"", "1", "64", "610", "07", " 7"})
	{
		Poco::AutoPtr<ZelDialable> maker(ZelDialableFactory::CreateInstance(number));
		ASSERT_FALSE(maker.isNull()) << number;
		EXPECT_EQ(typeid(ZelDialable), typeid(*maker)) << number;
	}
}

} // namespace
} // namespace numbering
