// ZelNumberingConfigTest.cpp

#include "numbering/ZelNumberingConfig.h"

#include "numbering/ZelCountryRuleItem.h"
#include "numbering/ZelDialRulesItem.h"
#include "numbering/ZelUnsupportedCountryException.h"

#include "support/ConfigFixture.h"
#include "support/LogCapture.h"
#include "support/TableRows.h"
#include "support/ThrowMessage.h"

#include "Poco/AutoPtr.h"

#include <gtest/gtest.h>

#include <filesystem>

using numbering::ZelCountryRuleItem;
using numbering::ZelDialRulesItem;
using numbering::ZelNumberingConfig;
using numbering::ZelUnsupportedCountryException;
using numbering::test::LogCapture;
using numbering::test::thrownMessage;

namespace {

const std::string LINE = "N9numbering18ZelNumberingConfigE - ";
const std::string NO_RULES_FILE = "INFO " + LINE + "No specific dialing rules configuration file";
const std::string NO_MASKS = "ERROR " + LINE + "ZelNumberingConfig::loadCountryMasks Exception : File not found";
const std::string NO_ACTIVATION_FILE = "INFO " + LINE + "No specific format activation configuration file";
const std::string NO_ACTIVATION =
	"ERROR " + LINE + "ZelNumberingConfig::loadSpecificFormatActivation Exception : File not found";

const char* const DIALING_RULES = R"(BE=32:00:EFG:0FG:G:Belgium:P
BS=1242:011:EFG:1F:G:Bahamas:P
CA=1:011:EFG:1F:G:Canada
CW=5999:00:EFG:0FG:G:Curacao:P
FR=33:00:EFG:0FG:G:France:P
IE=353:00:EFG:0FG:G:Ireland:P
US=1:011:EFG:1F:G:United States:P
XX=88888:00:EFG:0FG:G:Nowhere:P
)";

class ZelNumberingConfigTest: public numbering::test::ConfigFixture
{
protected:
	static ZelNumberingConfig& load()
	{
		return *ZelNumberingConfig::getInstance();
	}
};

TEST_F(ZelNumberingConfigTest, SiteFileHidesItsDefaultTwinEntirely)
{
	writeFile("dialingrules.properties", "FR=33:00:EFG:0FG:G:France:P\n");
	writeFile("dialingrules_default.properties", "DE=49:00:EFG:0FG:G:Germany:P\n");
	EXPECT_EQ("France", load().getCountryName("FR"));
	EXPECT_FALSE(load().validCountryCode("DE"));
	// The one notice comes from the masks loader, which reuses the dialing-rules text.
	const std::vector<std::string> expected{NO_RULES_FILE, NO_MASKS, NO_ACTIVATION_FILE, NO_ACTIVATION};
	EXPECT_EQ(expected, LogCapture::lines());
}

TEST_F(ZelNumberingConfigTest, DefaultTwinIsReadWhenSiteFileIsMissingAndNoDebugLineWithoutTraces)
{
	writeFile("dialingrules_default.properties", "DE=49:00:EFG:0FG:G:Germany:P\n");
	writeFile("specific_format_activation_default.properties", "cnp_49=off\n");
	EXPECT_EQ("DE", load().getCountryCodeFromNumber("49"));
	EXPECT_FALSE(load().isSpecificFormatActiveForCountry("0"));
	ZelNumberingConfig::resetInstance();
	const std::vector<std::string> expected{NO_RULES_FILE, NO_RULES_FILE, NO_MASKS, NO_ACTIVATION_FILE};
	EXPECT_EQ(expected, LogCapture::lines());
}

TEST_F(ZelNumberingConfigTest, WithoutDialingRulesTheTablesStayEmpty)
{
	writeFile("specific_format_activation.properties", "cnp_33=true\ncnp_9999=true\ncnp_=true\n");
	EXPECT_TRUE(load().getCountryList().empty());
	const std::vector<std::string> expected{NO_RULES_FILE,
		"ERROR " + LINE + "ZelNumberingConfig::loadDialingRules Exception : File not found", NO_RULES_FILE, NO_MASKS};
	EXPECT_EQ(expected, LogCapture::lines());
}

TEST_F(ZelNumberingConfigTest, FirstKeyWinsSharedNamesAndOnlyFlaggedNumbers)
{
	writeFile("dialingrules.properties", R"(CA=1:011:EFG:1F:G:Canada
FQ=33:00:EFG:0FG:G:France:P
FR=33::x:0FG:G:France:P
US=1:011:EFG:1F:G:United States:P:extra
)");
	ZelNumberingConfig& config = load();
	EXPECT_EQ("FQ", config.getCountryCodeFromName("France"));
	EXPECT_EQ("FQ", config.getCountryCodeFromNumber("33"));
	EXPECT_EQ("US", config.getCountryCodeFromNumber("1"));
	EXPECT_EQ("1", config.getCountryNumber("CA"));
	EXPECT_EQ("", config.getCountryRule("FR")->getInternatPfx());
	EXPECT_EQ("x", config.getCountryRule("FR")->getInternatRule());
	EXPECT_EQ((std::vector<std::string>{"Canada", "France", "United States"}), config.getCountryList());
}

struct MaskCase
{
	const char* name;
	std::string masks;
	const char* key;
	const char* pattern;
};

using ZelNumberingConfigMaskTest = numbering::test::WithRows<ZelNumberingConfigTest, MaskCase>;

TEST_P(ZelNumberingConfigMaskTest, StoresPatternUnderMaskKey)
{
	writeFile("qap_cnp_mask.properties", GetParam().masks);
	EXPECT_EQ(GetParam().pattern, load().getDefaultPattern(GetParam().key));
	EXPECT_EQ("", load().getDefaultPattern(""));
}

std::string manyMasks()
{
	std::string masks;
	for (int number = 100; number < 125; ++number)
		masks += "Mask_" + std::to_string(number) + "_1=+C x\n";
	return masks;
}

INSTANTIATE_TEST_SUITE_P(Masks,
	ZelNumberingConfigMaskTest,
	::testing::Values(MaskCase{"FirstOfTwoWinsBothCount", "Mask_33_2=B\nMask_33_1=A\n", "33", "A"},
		MaskCase{"NoSecondUnderscore", "Mask_33=A\n", "33", ""},
		MaskCase{"KeyTooLong", "Mask_1234_1=A\n", "1234", ""},
		MaskCase{"EmptyPatternNotCounted", "Mask_49_1=\nMask_1_1=A\n", "49", ""},
		MaskCase{"CutStartsAtFive", "ZZMask_7_1=P\n", "k", "P"},
		MaskCase{"MoreMasksThanLetters", manyMasks(), "124", "+C x"},
		MaskCase{"ThreeDigitCountry", "Mask_353_1=+C (A) x\n", "353", "+C (A) x"}),
	numbering::test::rowName);

/// The activation file, then whether the flag kept under 0 is on.
struct ActivationCase
{
	const char* name;
	const char* switches;
	bool active;
};

using ZelNumberingConfigActivationTest = numbering::test::WithRows<ZelNumberingConfigTest, ActivationCase>;

TEST_P(ZelNumberingConfigActivationTest, KeepsTheFlagUnderZeroSoRealNumbersReadActive)
{
	writeFile("dialingrules.properties", DIALING_RULES);
	writeFile("specific_format_activation.properties", GetParam().switches);
	EXPECT_EQ(GetParam().active, load().isSpecificFormatActiveForCountry("0"));
	EXPECT_TRUE(load().isSpecificFormatActiveForCountry("33"));
}

INSTANTIATE_TEST_SUITE_P(Values,
	ZelNumberingConfigActivationTest,
	::testing::Values(ActivationCase{"TRUE", "cnp_33=TRUE\n", true},
		ActivationCase{"On", "cnp_33=On\n", true},
		ActivationCase{"1", "cnp_33=1\n", true},
		ActivationCase{"False", "cnp_33=False\n", false},
		ActivationCase{"yes", "cnp_33=yes\n", true},
		ActivationCase{"0", "cnp_33=0\n", false},
		ActivationCase{"NumberLongerThanThreeDigitsIgnored", "cnp_1242=off\ncnp_=off\n", true},
		ActivationCase{"FirstSwitchReadStays", "cnp_32=on\ncnp_33=off\n", true},
		ActivationCase{"ThreeDigitCountry", "cnp_353=off\n", false}),
	numbering::test::rowName);

TEST_F(ZelNumberingConfigTest, QueriesMatchExactlyWithoutFoldingOrTrimming)
{
	writeFile("dialingrules.properties", DIALING_RULES);
	writeFile("specific_format_activation.properties", "cnp_1=maybe\ncnp_32=off\ncnp_33=on\n");
	ZelNumberingConfig& config = load();
	EXPECT_TRUE(config.validCountryCode("FR"));
	for (const char* code : {"fr", "FRA", "F", "", " F"})
	{
		EXPECT_FALSE(config.validCountryCode(code)) << code;
		EXPECT_EQ(nullptr, config.getCountryRule(code)) << code;
		EXPECT_EQ("", config.getCountryName(code)) << code;
	}
	EXPECT_EQ("", config.getCountryCodeFromNumber("331"));
	EXPECT_EQ("", config.getCountryCodeFromNumber(" 33"));
	EXPECT_EQ("", config.getCountryCodeFromName("france"));
	// The activation is looked up under the argument converted as strtol does.
	for (const char* zero : {"0", " 0", "-0", "abc", "0x1", "000"})
		EXPECT_FALSE(config.isSpecificFormatActiveForCountry(zero)) << zero;
	for (const char* other : {"", "33", "1", " 7x"})
		EXPECT_TRUE(config.isSpecificFormatActiveForCountry(other)) << other;
	// The country number is the shortest known prefix of up to four characters.
	const std::pair<const char*, const char*> numbers[] = {
		{"12425550100", "1"}, {"331234", "33"}, {"59991234", "5999"}, {"888881234", ""}, {"3", ""}, {"", ""}};
	for (const auto& [number, expected] : numbers)
		EXPECT_EQ(expected, config.extractCountryNumber(number)) << number;
}

struct BadFileCase
{
	const char* name;
	std::string content;
	const char* error;
	std::vector<std::string> countries;
};

using ZelNumberingConfigBadFileTest = numbering::test::WithRows<ZelNumberingConfigTest, BadFileCase>;

TEST_P(ZelNumberingConfigBadFileTest, LogsAndKeepsWhatCouldBeRead)
{
	writeFile("dialingrules.properties", GetParam().content);
	ZelNumberingConfig* config = nullptr;
	ASSERT_NO_THROW(config = ZelNumberingConfig::getInstance());
	EXPECT_EQ(GetParam().countries, config->getCountryList());
	const std::string error = "ERROR " + LINE + "ZelNumberingConfig::loadDialingRules Exception : ";
	const std::vector<std::string> expected =
		*GetParam().error ? std::vector<std::string>{error + GetParam().error} : std::vector<std::string>{};
	EXPECT_EQ(expected, LogCapture::matching(error));
}

INSTANTIATE_TEST_SUITE_P(DialingRules,
	ZelNumberingConfigBadFileTest,
	::testing::Values(BadFileCase{"Empty", "", "", {}},
		BadFileCase{"KeyWithDot", "AA=1:::::A\nFR.x=33:00:EFG:0FG:G:France:P\n", "Not found", {}},
		BadFileCase{"LineWithoutEquals", "FR\n", "", {""}},
		BadFileCase{"HugeValue", "FR=33:0:E:0F:G:" + std::string(100000, 'n') + "\n", "", {std::string(100000, 'n')}}),
	numbering::test::rowName);

TEST_F(ZelNumberingConfigTest, DirectoryOrEmptyPathInPlaceOfAFileCountsAsMissing)
{
	std::filesystem::create_directory(configDir() + "dialingrules.properties");
	ZelNumberingConfig::COUNTRY_MASKS_FILE = "";
	writeFile("dialingrules_default.properties", "FR=33:00:EFG:0FG:G:France:P\n");
	std::filesystem::create_directory(configDir() + "qap_cnp_mask_default.properties");
	EXPECT_EQ("FR", load().getCountryCodeFromName("France"));
	const std::vector<std::string> expected{NO_RULES_FILE, NO_RULES_FILE,
		"ERROR " + LINE + "ZelNumberingConfig::loadCountryMasks Exception : Cannot open file", NO_ACTIVATION_FILE,
		NO_ACTIVATION};
	EXPECT_EQ(expected, LogCapture::lines());
}

class ZelDialRulesItemTest: public numbering::test::ConfigFixture
{
protected:
	void SetUp() override
	{
		ConfigFixture::SetUp();
		writeFile("dialingrules.properties", "FR=33:00:EFG:0FG:G:France:P\nDE=49:00:EFG:0FG:G:Germany:P\n");
	}

	std::string unsupported(const std::string& code)
	{
		return thrownMessage<ZelUnsupportedCountryException>([&] { m_Item.setCountryId(code); });
	}

	std::string malformed(const std::string& code)
	{
		return thrownMessage<std::invalid_argument>([&] { m_Item.setCountryId(code); });
	}

	ZelDialRulesItem m_Item;
};

TEST_F(ZelDialRulesItemTest, SetCountryIdRejectsMalformedAndUnknownCodesAndKeepsThePreviousOne)
{
	const std::string malformedText =
		"'strCountryCode' parameter can not be null and must be an Alpha-2 ISO 3166 country code";
	EXPECT_EQ("no exception", unsupported("DE"));
	EXPECT_EQ(malformedText, malformed(""));
	EXPECT_EQ(malformedText, malformed("FRA"));
	EXPECT_EQ("Country code 'ZZ' is not supported", unsupported("ZZ"));
	EXPECT_EQ("Country code 'fr' is not supported", unsupported("fr"));
	EXPECT_EQ("DE", m_Item.getCountryId());
	EXPECT_THROW(ZelDialRulesItem("ZZ", "0", 5, "", 0, ""), ZelUnsupportedCountryException);
}

TEST_F(ZelDialRulesItemTest, NegativeLengthsAreClampedButSetExceptNbLengthTestsTheStoredOne)
{
	ZelDialRulesItem item("FR", "0", -5, "1", -4, "06");
	EXPECT_EQ(0, item.getLocalNbLength());
	EXPECT_EQ(0, item.getExceptNbLength());
	item.setLocalNbLength(-5);
	EXPECT_EQ(0, item.getLocalNbLength());
	item.setExceptNbLength(-5);
	EXPECT_EQ(-5, item.getExceptNbLength());
	item.setExceptNbLength(4);
	EXPECT_EQ(0, item.getExceptNbLength());
	item.setExceptNbLength(4);
	EXPECT_EQ(4, item.getExceptNbLength());
}

TEST_F(ZelDialRulesItemTest, SetAreaCodeSplitsTrimsDropsEmptiesAndEmptyTextKeepsTheList)
{
	m_Item.setAreaCode(" 1, 2,,3 ");
	EXPECT_EQ("1", m_Item.getAreaCode());
	EXPECT_EQ((std::vector<std::string>{"1", "2", "3"}), m_Item.getAreaCodesList());
	m_Item.setAreaCode("");
	EXPECT_EQ("", m_Item.getAreaCode());
	EXPECT_EQ((std::vector<std::string>{"1", "2", "3"}), m_Item.getAreaCodesList());
	m_Item.setAreaCode(" , ");
	EXPECT_TRUE(m_Item.getAreaCodesList().empty());
}

TEST_F(ZelDialRulesItemTest, LocalNumbersAreShorterThanTheLocalLengthAndExceptionsBeginAsConfigured)
{
	m_Item.setLocalNbLength(8);
	m_Item.setExceptNbBegin("0");
	m_Item.setExceptNbLength(4);
	EXPECT_TRUE(m_Item.isLocalNumber("1234567"));
	EXPECT_FALSE(m_Item.isLocalNumber("12345678"));
	EXPECT_TRUE(m_Item.isExceptionNumber("0123456"));
	EXPECT_FALSE(m_Item.isExceptionNumber("1000"));
	m_Item.setExceptNbBegin("");
	EXPECT_FALSE(m_Item.isExceptionNumber("0123"));
	m_Item.setLocalNbLength(0);
	EXPECT_FALSE(m_Item.isLocalNumber(""));
}

TEST_F(ZelDialRulesItemTest, ToStringListsEveryField)
{
	EXPECT_EQ("CountryCode : 'FR', External Prefix : '0', Local length : 5, AreaCode : '1', m_areaCodesList :  '1' "
			  "'2', Except length : 3, Except begin : '06'",
		ZelDialRulesItem("FR", "0", 5, "1,2", 3, "06").ToString());
}

struct RuleCase
{
	const char* name;
	const char* longDistRule;
	const char* localRule;
	const char* expectedLongDistRule;
	const char* expectedLongDistPrefix;
	const char* expectedLocalPrefix;
};

using ZelCountryRuleItemTest = ::testing::TestWithParam<RuleCase>;

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
	numbering::test::rowName);

} // namespace
