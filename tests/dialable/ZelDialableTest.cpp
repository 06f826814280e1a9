// ZelDialableTest.cpp

#include "dialable/ZelDialable.h"

#include "numbering/ZelNumberingConfig.h"

#include "dialable/ZelDialableFactory.h"
#include "dialable/ZelDialableManager.h"
#include "dialable/ZelDialable_54.h"
#include "dialable/ZelDialable_57.h"
#include "dialable/ZelDialable_7.h"
#include "support/ConfigFixture.h"
#include "support/LogCapture.h"
#include "support/PlanCountriesFixture.h"
#include "support/TableRows.h"

#include "Poco/AutoPtr.h"
#include "Poco/Format.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>
#include <tuple>
#include <typeinfo>
#include <vector>

using numbering::test::LogCapture;

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
	numbering::test::rowName);

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

const char* const A_DIRECTORY = "(a directory)";
const std::string INFO_LINE = "INFO N9numbering14ZelDialable_57E - ";

/// France (trunk prefix 0) configured; the long-distance rule record has the trunk prefix 0.
class ZelDialable57Test: public test::ConfigFixture
{
protected:
	void SetUp() override
	{
		ConfigFixture::SetUp();
		writeFile("dialingrules.properties", "FR = 33:00:EF:0F::France:P\n");
	}

	/// Writes a plan file, or puts a directory in its place for A_DIRECTORY; nullptr leaves it missing.
	void place(const char* name, const char* content)
	{
		if (content == A_DIRECTORY)
			std::filesystem::create_directory(configDir() + name);
		else if (content)
			writeFile(name, content);
	}

	ZelCountryRuleItem m_Rule{"57", "00", "EF", "0F", "", "Colombia"};
};

struct LoadingCase
{
	const char* name;
	const char* siteFile;
	const char* defaultFile;
	std::string fixedLine; // what area 1 and number 2345678 dial as long distance
	std::vector<std::string> known;
	std::vector<std::string> unknown;
	std::string info;
};

using ZelDialable57LoadingTest = test::WithRows<ZelDialable57Test, LoadingCase>;

TEST_P(ZelDialable57LoadingTest, ReadsOperatorCodeAndPrefixesUpToTheFirstFailure)
{
	const LoadingCase& c = GetParam();
	place("r7731cnp_57.properties", c.siteFile);
	place("r7731cnp_57_default.properties", c.defaultFile);
	ZelDialable_57 maker;
	std::string area = "1";
	std::string dest = "2345678";
	EXPECT_EQ(c.fixedLine, maker.makeLongDistDialableNumber(area, dest, &m_Rule, nullptr));
	for (const std::string& prefix : c.known)
		EXPECT_EQ(prefix, maker.extractOperatorPrefix(prefix));
	for (const std::string& prefix : c.unknown)
		EXPECT_EQ("", maker.extractOperatorPrefix(prefix));
	EXPECT_EQ(c.info.empty() ? std::vector<std::string>() : std::vector<std::string>{INFO_LINE + c.info},
		LogCapture::matching(INFO_LINE));
}

const char* const FALLBACK = "OP_DEFAULT = 5\nOP_0000 = 07\n";
const char* const NO_SITE_FILE = "No specific configuration file for Colombia";

INSTANTIATE_TEST_SUITE_P(PlanFiles,
	ZelDialable57LoadingTest,
	::testing::Values(
		LoadingCase{"SiteFileHidesDefaultFile", "OP_DEFAULT = 7\nOP_0000 = 456\nOP_0001 = 45\nOP_0002 = 5-x\n",
			FALLBACK, "0712345678", {"456", "5"}, {"45", "07"}, ""},
		LoadingCase{"DefaultFileWithoutSiteFile", nullptr, FALLBACK, "0512345678", {"07"}, {}, NO_SITE_FILE},
		LoadingCase{"NoFileAtAll", nullptr, nullptr, "0912345678", {}, {"07"}, NO_SITE_FILE},
		LoadingCase{"SiteFileIsADirectory", A_DIRECTORY, FALLBACK, "0512345678", {"07"}, {},
			"No specific dialing rules configuration file"},
		LoadingCase{"GapEndsTheList", "OP_0000 = 456\nOP_0002 = 5\n", FALLBACK, "0912345678", {"456"}, {"5"}, ""},
		LoadingCase{"ValueWithoutDigitsEndsTheList", "OP_0000 = 456\nOP_0001 = none\nOP_0002 = 5\n", nullptr,
			"0912345678", {"456"}, {"5"}, ""}),
	numbering::test::rowName);

TEST_F(ZelDialable57Test, ReadsOperatorPrefixesUpToTheIndex9998)
{
	std::string file;
	for (int i = 0; i <= 9999; ++i)
		file += Poco::format("OP_%04d=%d\n", i, 100000 + i);
	writeFile("r7731cnp_57.properties", file);
	ZelDialable_57 maker;
	EXPECT_EQ("109998", maker.extractOperatorPrefix("109998"));
	EXPECT_EQ("", maker.extractOperatorPrefix("109999"));
}

struct PrefixCase
{
	const char* name;
	std::string number;
	std::string expected;
};

using ZelDialable57PrefixTest = test::WithRows<ZelDialable57Test, PrefixCase>;

TEST_P(ZelDialable57PrefixTest, ExtractsTheLongestKnownOperatorPrefix)
{
	const PrefixCase& c = GetParam();
	writeFile("r7731cnp_57.properties", "OP_0000 = 45\nOP_0001 = 456\n");
	ZelDialable_57 maker;
	EXPECT_EQ(c.expected, maker.extractOperatorPrefix(c.number));
}

INSTANTIATE_TEST_SUITE_P(Numbers,
	ZelDialable57PrefixTest,
	::testing::Values(PrefixCase{"WholePrefix", "456", "456"},
		PrefixCase{"NumberBehindPrefix", "4561234", "456"},
		PrefixCase{"PartOfPrefix", "4", ""},
		PrefixCase{"NotDigits", std::string("4\0\xff", 3), ""}),
	numbering::test::rowName);

struct DialCase
{
	const char* name;
	std::string internatRule;
	std::string countryNumber;
	std::string area;
	std::string dest;
	std::string expected;
	std::string areaAfter;
};

using ZelDialable57DialTest = test::WithRows<ZelDialable57Test, DialCase>;

TEST_P(ZelDialable57DialTest, DialsTheOperatorCodeAbroad)
{
	const DialCase& c = GetParam();
	// Operator code 4, so that the code read from the plan file shows in every number.
	writeFile("r7731cnp_57.properties", "OP_DEFAULT = 4\n");
	ZelDialable_57 maker;
	ZelCountryRuleItem rule("57", "00", c.internatRule, "0F", "", "Colombia");
	std::string country = c.countryNumber;
	std::string area = c.area;
	std::string dest = c.dest;
	EXPECT_EQ(c.expected, maker.makeInternationalDialableNumber(country, area, dest, &rule));
	EXPECT_EQ(c.areaAfter, area);
}

// The subscriber number stands where other countries dial the country number, so rule E dials it twice.
INSTANTIATE_TEST_SUITE_P(International,
	ZelDialable57DialTest,
	::testing::Values(DialCase{"SubscriberInPlaceOfCountry", "E", "33", "1", "23456789", "0042345678923456789", "1"},
		DialCase{"AreaPart", "F", "33", "1", "23456789", "004123456789", "1"},
		DialCase{"SubscriberAndAreaPart", "EF", "33", "1", "23456789", "00423456789123456789", "1"},
		DialCase{"TrunkPrefixDropped", "F", "33", "0", "23456789", "00423456789", ""},
		DialCase{"TrunkPrefixOfUnknownCountryKept", "F", "999", "0", "23456789", "004023456789", "0"}),
	numbering::test::rowName);

TEST_F(ZelDialable57DialTest, LongDistanceDialsTheMobileDigitInPlaceOfTheOperatorCode)
{
	writeFile("r7731cnp_57.properties", "OP_DEFAULT = 4\n");
	ZelDialable_57 maker;
	std::string area;
	std::string dest = "3001234567";
	EXPECT_EQ("033001234567", maker.makeLongDistDialableNumber(area, dest, &m_Rule, nullptr));
	EXPECT_THROW(maker.makeLongDistDialableNumber(area, area, &m_Rule, nullptr), std::out_of_range);
}

struct LongDistCase
{
	const char* name;
	std::string country;
	std::string siteArea;
	std::string area;
	std::string dest;
	std::string expected;
};

/// Russia's trunk prefix is "8" in the configuration, while the rule record handed to the makers has "01", which
/// only the Mexican maker may read.
class ZelDialableVariantsTest: public test::ConfigFixture, public ::testing::WithParamInterface<LongDistCase>
{
protected:
	void SetUp() override
	{
		ConfigFixture::SetUp();
		writeFile("dialingrules.properties", "RU = 7:810:EF:8F::Russia:P\n");
	}

	std::string dial(const std::string& country, const std::string& siteArea, std::string area, std::string dest)
	{
		Poco::AutoPtr<ZelDialable> maker(ZelDialableFactory::CreateInstance(country));
		ZelCountryRuleItem rule("52", "00", "EF", "01F", "", "Mexico");
		ZelDialRulesItem site;
		site.setAreaCode(siteArea);
		return maker->makeLongDistDialableNumber(area, dest, &rule, &site);
	}
};

TEST_P(ZelDialableVariantsTest, DialsLongDistance)
{
	const LongDistCase& c = GetParam();
	EXPECT_EQ(c.expected, dial(c.country, c.siteArea, c.area, c.dest));
}

INSTANTIATE_TEST_SUITE_P(Countries,
	ZelDialableVariantsTest,
	::testing::Values(LongDistCase{"MexicanMobileAtSiteWithoutArea", "52", "", "155", "12345678", "0455512345678"},
		LongDistCase{"MexicanBareMobileDigitAtSiteWithoutArea", "52", "", "1", "12345678", "04412345678"},
		LongDistCase{"MexicanFixedLine", "52", "55", "33", "12345678", "013312345678"},
		LongDistCase{"AustralianAreaWithoutTrunkDigit", "61", "", "2", "12345678", "0212345678"},
		LongDistCase{"AustralianAreaWithTrunkDigit", "61", "", "02", "12345678", "0212345678"},
		LongDistCase{"AustralianAreaBeginningWithOne", "61", "", "1", "800123456", "1800123456"},
		LongDistCase{"AustralianNothingToDial", "61", "", "", "", "0"},
		LongDistCase{"RussianTenDigits", "7", "", "495", "1234567", "84951234567"},
		LongDistCase{"RussianNineDigits", "7", "", "49", "1234567", "491234567"},
		LongDistCase{"RussianElevenDigits", "7", "", "4951", "1234567", "49511234567"}),
	numbering::test::rowName);

TEST_F(ZelDialableVariantsTest, RussianNumbersWithoutRussiaInTheConfigurationAreDialledAsTheyStand)
{
	writeFile("dialingrules.properties", "FR = 33:00:EF:0F::France:P\n");
	EXPECT_EQ("4951234567", dial("7", "", "495", "1234567"));
}

using ZelDialable54Test = test::PlanCountriesFixture;

// The worked examples dial the other Argentine cases back through the facade; these only the maker sees.
TEST_F(ZelDialable54Test, DialsLongDistanceAndLocalAlike)
{
	configure(test::Setting::Sample);
	Poco::AutoPtr<ZelDialable_54> maker(new ZelDialable_54());
	ZelCountryRuleItem* rule = ZelNumberingConfig::getInstance()->getCountryRule("AR");
	// Site area, area or trunk prefix, subscriber, dialled number.
	const std::tuple<const char*, const char*, const char*, const char*> rows[] = {
		{"11", "11", "43211234", "43211234"}, {"", "", "91123456789", "0111523456789"}};
	for (const auto& [siteArea, areaNatPfx, subscriber, dialled] : rows)
	{
		const std::unique_ptr<ZelDialRulesItem> site = test::makeSite(test::SiteSetup{"AR", siteArea, "0"});
		std::string area = areaNatPfx;
		std::string dest = subscriber;
		EXPECT_EQ(dialled, maker->makeLongDistDialableNumber(area, dest, rule, site.get())) << subscriber;
		EXPECT_EQ(dialled, maker->makeLocalDialableNumber(area, dest, rule, site.get())) << subscriber;
	}
}

TEST_F(ZelDialable54Test, DialsTheAreaForNoSite)
{
	configure(test::Setting::Sample);
	Poco::AutoPtr<ZelDialable_54> maker(new ZelDialable_54());
	std::string area = "11";
	std::string dest = "43211234";
	EXPECT_EQ("01143211234", maker->MakeLocalOrLongDistDialableNumber(
								 area, dest, ZelNumberingConfig::getInstance()->getCountryRule("AR"), nullptr));
}

TEST_F(ZelDialable54Test, DialsAreaAndNumberWithoutArgentinePlan)
{
	writeFile("dialingrules.properties", "FR=33:00:EFG:0FG:G:France:P\n");
	const std::unique_ptr<ZelDialRulesItem> site = test::makeSite(test::SiteSetup{"FR", "1", "0"});
	ZelCountryRuleItem* rule = ZelNumberingConfig::getInstance()->getCountryRule("FR");
	Poco::AutoPtr<ZelDialable_54> maker(new ZelDialable_54());
	std::string area = "911";
	std::string dest = "23456789";
	EXPECT_EQ("91123456789", maker->MakeLocalOrLongDistDialableNumber(area, dest, rule, site.get()));
}

} // namespace
} // namespace numbering
