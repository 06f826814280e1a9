// PlansTest.cpp

#include "numbering/ZelDialRulesItem.h"
#include "numbering/ZelNumberingConfig.h"

#include "plans/ZelCNPFactory.h"
#include "plans/ZelCNPManager.h"
#include "plans/ZelCNP_49.h"
#include "plans/ZelCNP_54.h"
#include "support/ConfigFixture.h"
#include "support/LogCapture.h"
#include "support/PlanCountriesFixture.h"
#include "support/TableRows.h"

#include "Poco/AutoPtr.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>
#include <map>
#include <string>
#include <vector>

namespace numbering {
namespace test {
namespace {

const char* const DIALING_RULES = "DE=49:00:EFG:0FG:G:Germany:P\nES=34:00:EFG:0FG:G:Spain:P\n";

class ZelCNPManagerTest: public ConfigFixture
{
protected:
	void SetUp() override
	{
		ConfigFixture::SetUp();
		writeFile("dialingrules.properties", DIALING_RULES);
		writeFile("r7731cnp_49.properties", "AC_0000=89\nAC_0001=8031\n");
		manager = ZelCNPManager::getInstance();
	}

	ZelCNPManager* manager = nullptr;
};

TEST_F(ZelCNPManagerTest, LendsOnePlanPerKeyAndALowerCaseKeyTheUpperCaseOne)
{
	ZelCNP* stored = manager->getCNP("DE");
	ASSERT_NE(nullptr, dynamic_cast<ZelCNP_49*>(stored));
	EXPECT_EQ(stored, manager->getCNP("DE"));
	EXPECT_EQ(stored, manager->getCNP("de"));
	EXPECT_EQ(stored, manager->getCNP("de"));
	EXPECT_FALSE(manager->isCountryNotFound("de"));
}

TEST_F(ZelCNPManagerTest, FailedKeyIsNotTriedAgainUntilReset)
{
	writeFile("dialingrules.properties", "ES=34:00:EFG:0FG:G:Spain:P\n");
	ZelNumberingConfig::resetInstance();
	EXPECT_EQ(nullptr, manager->getCNP("DE"));
	// Germany becomes known, but the manager answers from its not-found list.
	writeFile("dialingrules.properties", DIALING_RULES);
	ZelNumberingConfig::resetInstance();
	EXPECT_EQ(nullptr, manager->getCNP("DE"));
	ZelCNPManager::resetInstance();
	EXPECT_NE(nullptr, ZelCNPManager::getInstance()->getCNP("DE"));
}

TEST_F(ZelCNPManagerTest, FailedKeyAnswersNullAndIsListedUpperCasedFromTwoCharactersOn)
{
	const std::pair<const char*, const char*> keys[] = {
		{"d", "d"}, {"", ""}, {"XX", "XX"}, {"es", "ES"}, {"deu", "DEU"}};
	for (const auto& [key, listedAs] : keys)
	{
		EXPECT_EQ(nullptr, manager->getCNP(key)) << key;
		EXPECT_TRUE(manager->isCountryNotFound(listedAs)) << key;
	}
}

TEST_F(ZelCNPManagerTest, FactoryKnowsOnlyExactCallingCodes)
{
	for (const char* number : {"", "34", "490", "049", " 49", "4", "3530", "11"})
		EXPECT_EQ(nullptr, ZelCNPFactory::CreateInstance(number)) << number;
	// Hosts call the factory through an object too; each plan class shows in its country's worked examples.
	ZelCNPFactory factory;
	Poco::AutoPtr<ZelCNP> plan(factory.CreateInstance("49"));
	EXPECT_NE(nullptr, dynamic_cast<ZelCNP_49*>(plan.get()));
}

/// Short codes of big cities before the longer codes that share their first digits (30 / 3301, 89 / 8031).
const char* const GERMAN_AREA_CODES[] = {"30", "40", "69", "89", "201", "771", "911", "3301", "3391", "3395", "7731",
	"8031", "8041", "33203", "39208", "39209"};

/// The codes above, then hand-written entries: blanks and a dash, no digit, and "33", a path of longer codes.
std::string germanTable(const std::string& translateLine)
{
	std::vector<std::string> codes(std::begin(GERMAN_AREA_CODES), std::end(GERMAN_AREA_CODES));
	codes.insert(codes.end(), {"30 - 1", "n/a", "33", "8 0 3 3"});
	return ConfigFixture::areaCodeTable(translateLine, codes);
}

const std::string TABLE = germanTable("Translate=1\n");
const std::string TABLE_TRANSLATE_YES = germanTable("Translate=yes\n");
const std::string DIRECTORY = "(a directory)";

class ZelCNP49Test: public ConfigFixture
{
protected:
	void SetUp() override
	{
		ConfigFixture::SetUp();
		writeFile("dialingrules.properties", "DE=49:00:EFG:0FG:G:Germany:P\n");
		// Loaded up front, so that its own lines about missing files are not mixed with the plan's.
		ZelNumberingConfig::getInstance();
		LogCapture::clear();
	}

	std::string convert(const char* extPrefix, const char* siteArea, const std::string& number)
	{
		ZelDialRulesItem rules("DE", extPrefix, 0, siteArea, 0, "");
		Poco::AutoPtr<ZelCNP_49> plan(new ZelCNP_49());
		return plan->qap_Country_MakeCanonicalNumber(number, &rules);
	}
};

struct GermanConversion
{
	const char* name;
	const char* extPrefix;
	const char* siteArea;
	const char* number;
	const char* expected;
};

using ZelCNP49TranslateTest = WithRows<ZelCNP49Test, GermanConversion>;

TEST_P(ZelCNP49TranslateTest, MakesCanonicalNumber)
{
	writeFile("r7731cnp_49.properties", TABLE);
	const GermanConversion& c = GetParam();
	EXPECT_EQ(c.expected, convert(c.extPrefix, c.siteArea, c.number));
}

INSTANTIATE_TEST_SUITE_P(Numbers,
	ZelCNP49TranslateTest,
	::testing::Values(GermanConversion{"TooShort", "0", "7731", "12", "12"},
		GermanConversion{"Berlin", "0", "7731", "0309876543", "+49 (30) 9876543"},
		GermanConversion{"LongerCodeWins", "0", "7731", "03012345", "+49 (301) 2345"},
		GermanConversion{"RosenheimSharesMunichsFirstDigit", "0", "7731", "080311234", "+49 (8031) 1234"},
		GermanConversion{"EntryWithBlanks", "0", "7731", "080331234", "+49 (8033) 1234"},
		GermanConversion{"PathOfLongerCodesIsNoCode", "9", "7731", "03390123", "+49 (7731) 3390123"},
		GermanConversion{"BehindZeroPrefix", "0", "7731", "00891234567", "+49 (89) 1234567"},
		GermanConversion{"SixteenDigitsBehindPrefix", "0", "7731", "00891234567890123", "+49 (89) 1234567890123"},
		GermanConversion{
			"SeventeenDigitsBehindPrefixAreLocal", "0", "7731", "008912345678901234", "+49 (7731) 008912345678901234"},
		GermanConversion{"LocalWithoutPrefix", "0", "7731", "1234567", "+49 (7731) 1234567"},
		GermanConversion{"LocalBehindPrefix", "9", "7731", "91234567", "+49 (7731) 1234567"},
		GermanConversion{"LocalWithoutSiteArea", "9", "", "91234567", "91234567"},
		GermanConversion{"ShorterThanLongestCode", "9", "", "01234", "01234"},
		GermanConversion{"SubscriberTooShort", "9", "", "0803112", "0803112"},
		GermanConversion{"NothingBehindCode", "9", "", "039209", "039209"},
		GermanConversion{"InternationalNotBehindPrefix", "9", "", "0049891234", "0049891234"},
		GermanConversion{"BinaryNumber", "0", "", "0\x01\xff\x7f", "0\x01\xff\x7f"},
		GermanConversion{"ThreeDigitsBehindPrefix", "9", "7731", "9234", "+49 (7731) 234"}),
	rowName);

TEST_F(ZelCNP49Test, ReadsAreaCodesUpToTheIndex9998)
{
	std::vector<std::string> codes;
	for (int i = 0; i <= 9999; ++i)
		codes.push_back(std::to_string(100000 + i));
	writeFile("r7731cnp_49.properties", areaCodeTable("", codes));
	EXPECT_EQ("+49 (109998) 123", convert("9", "7731", "0109998123"));
	EXPECT_EQ("+49 (7731) 109999123", convert("9", "7731", "0109999123"));
}

/// Table file and default twin ("": missing), one conversion at a site in 7731, info lines about missing files.
struct FileRow
{
	const char* name;
	std::string table;
	std::string defaultTable;
	const char* extPrefix;
	const char* number;
	const char* expected;
	int missingFileLines;
};

using ZelCNP49FileTest = WithRows<ZelCNP49Test, FileRow>;

TEST_P(ZelCNP49FileTest, ReadsTheSiteFileElseItsDefaultTwin)
{
	const FileRow& row = GetParam();
	if (row.table == DIRECTORY)
		std::filesystem::create_directory(configDir() + "r7731cnp_49.properties");
	else if (!row.table.empty())
		writeFile("r7731cnp_49.properties", row.table);
	if (!row.defaultTable.empty()) writeFile("r7731cnp_49_default.properties", row.defaultTable);
	EXPECT_EQ(row.expected, convert(row.extPrefix, "7731", row.number));
	const std::vector<std::string> infoLines(
		row.missingFileLines, "INFO N9numbering9ZelCNP_49E - No specific dialing rules configuration file");
	EXPECT_EQ(infoLines, LogCapture::lines());
}

INSTANTIATE_TEST_SUITE_P(Files,
	ZelCNP49FileTest,
	::testing::Values(FileRow{"TranslateOtherThanOneKeepsLocal", TABLE_TRANSLATE_YES, "", "0", "1234567", "1234567", 0},
		FileRow{"TranslateOtherThanOneStillReadsNational", TABLE_TRANSLATE_YES, "", "9", "90891234567",
			"+49 (89) 1234567", 0},
		FileRow{"NoTranslateLineKeepsTranslationOn", germanTable(""), "", "0", "1234567", "+49 (7731) 1234567", 0},
		FileRow{"DefaultTwinReadSilently", "", "Translate=0\nAC_0000=8031\n", "0", "0803112345", "+49 (8031) 12345", 0},
		FileRow{"DirectoryInPlaceOfSiteFile", DIRECTORY, "AC_0000=8031\n", "0", "0803112345", "+49 (8031) 12345", 0},
		FileRow{
			"SiteFileHidesDefaultTwin", "AC_0000=89\n", "AC_0000=8031\n", "0", "0803112345", "+49 (7731) 803112345", 0},
		FileRow{"NoFileNational", "", "", "0", "0891234567", "+49 (7731) 891234567", 1},
		FileRow{"NoFileLocal", "", "", "0", "1234567", "+49 (7731) 1234567", 1},
		FileRow{"ThreeDigitsAfterTrunkPrefix", "AC_0000=89\n", "", "9", "0301", "+49 (7731) 301", 0}),
	rowName);

/// The plan of a site's country, as the factory makes it.
ZelCNP* makePlan(const std::string& country)
{
	const std::map<std::string, std::string> callingCodes{{"US", "1"}, {"FR", "33"}, {"CH", "41"}, {"CO", "57"},
		{"NZ", "64"}, {"RU", "7"}, {"NL", "31"}, {"AT", "43"}, {"GB", "44"}, {"IE", "353"}, {"MX", "52"}};
	return ZelCNPFactory::CreateInstance(callingCodes.at(country));
}

/// A number dialled at a site of the plan's country; ruleMissing: a US site, and only US in the dialing rules.
struct Conversion
{
	const char* name;
	const char* country;
	const char* number;
	const char* expected;
	const char* extPrefix = "";
	const char* areaCode = "";
	int localNbLength = 0;
	const char* exceptNbBegin = "";
	bool ruleMissing = false;
};

using CountryPlansTest = WithRows<PlanCountriesFixture, Conversion>;

TEST_P(CountryPlansTest, MakesCanonicalNumber)
{
	const Conversion& row = GetParam();
	configure(Setting::Sample);
	if (row.ruleMissing) writeFile("dialingrules.properties", "US=1:011:EFG:1FG:G:United States:P\n");
	ZelDialRulesItem site(
		row.ruleMissing ? "US" : row.country, row.extPrefix, row.localNbLength, row.areaCode, 0, row.exceptNbBegin);
	Poco::AutoPtr<ZelCNP> plan(makePlan(row.country));
	EXPECT_EQ(row.expected, plan->qap_Country_MakeCanonicalNumber(row.number, &site));
}

// The plain national and local cases run end to end; these rows are the edges each plan must tell apart.
const Conversion CONVERSIONS[] = {
	{"UsTen", "US", "2125551234", "+1 (212) 5551234"},
	{"UsElevenWithLeadingZero", "US", "02125551234", "+1 (212) 5551234"},
	{"UsElevenWithOtherLeadingDigit", "US", "22125551234", "22125551234"},
	{"UsSevenWithoutSiteAreaCode", "US", "5551234", "+1 (?) 5551234"},
	{"UsEightWithLeadingOne", "US", "15551234", "+1 (212) 5551234", "", "212"},
	{"UsEightLeavingSevenBeginningWithOne", "US", "11551234", "11551234", "", "212"},
	{"UsSevenBeginningWithZero", "US", "0551234", "0551234", "", "212"},
	{"UsAreaCodeBeginningWithOne", "US", "1125551234", "1125551234"},
	{"UsExchangeCodeBeginningWithZero", "US", "2120551234", "2120551234"},
	{"UsNine", "US", "212555123", "212555123"},
	{"UsTwelve", "US", "121255512345", "121255512345"},
	{"FrAnyTenCharactersEvenBehindExternalPrefix", "FR", "9123456789", "+33 (9) 123456789", "9"},
	{"FrNineBeginningWithTrunkPrefix", "FR", "012345678", "012345678"},
	{"FrNineButLocal", "FR", "123456789", "123456789", "", "", 10},
	{"FrNineButExceptionNumber", "FR", "123456789", "123456789", "", "", 0, "12"},
	{"FrBehindExternalPrefixEvenIfLocal", "FR", "00123456789", "+33 (0) 123456789", "0", "", 12},
	{"FrElevenWithoutExternalPrefix", "FR", "00123456789", "00123456789", "9"},
	{"RuBehindExternalPrefix", "RU", "089161234567", "+7 (916) 1234567", "0"},
	{"FrWithoutRuleNoTrunkPrefix", "FR", "123456789", "123456789", "", "", 0, "", true},
	{"ChEightyIsNoFreephone", "CH", "0801234567", "+41 (80) 1234567"},
	{"ChNineNotZurich", "CH", "022345678", "022345678"},
	{"ChTenWithoutTrunkPrefix", "CH", "1441234567", "1441234567"},
	{"ChEight", "CH", "04412345", "04412345"},
	{"ChTenNotSearchedForExternalPrefix", "CH", "9012345678", "9012345678", "9"},
	{"ChElevenLosingExternalPrefix", "CH", "90012345678", "+41 (01) 2345678", "9"},
	{"ChZurichBehindLongExternalPrefix", "CH", "99012345678", "+41 (1) 2345678", "99"},
	{"ChElevenWithoutExternalPrefix", "CH", "80441234567", "80441234567", "9"},
	{"CoLocalWithoutSiteAreaCode", "CO", "2345678", "+57 () 2345678"},
	{"CoElevenWithThree", "CO", "03101234567", "+57 (101) 234567"},
	{"CoTenWithThree", "CO", "0310123456", "+57 (101) 23456"},
	{"CoEleven", "CO", "04561234567", "+57 (1) 234567"},
	{"CoTwelve", "CO", "045612345678", "+57 (1) 2345678"},
	{"CoEight", "CO", "12345678", "12345678", "", "1"},
	{"CoNine", "CO", "123456789", "123456789", "", "1"},
	{"CoTenWithoutTrunkDigit", "CO", "9912345678", "9912345678"},
	{"NzOneDigitAreaTooLong", "NZ", "0930712345", "0930712345", "", "9"},
	{"NzTwoDigitAreaNine", "NZ", "0211234567", "+64 (21) 1234567", "", "9"},
	{"NzTwoDigitAreaTooLong", "NZ", "02112345678", "02112345678", "", "9"},
	{"NzThreeDigitArea", "NZ", "0800123456", "+64 (800) 123456", "", "9"},
	{"NzUnknownFirstDigit", "NZ", "012345678", "012345678", "", "9"},
	{"NzSevenAfterTrunkDigitIsLocal", "NZ", "09307123", "+64 (9) 9307123", "", "9"},
	{"NzSixAfterTrunkDigitInAreaTwo", "NZ", "0307123", "+64 (24) 307123", "", "24"},
	{"NzSixAfterTrunkDigitElsewhere", "NZ", "0307123", "0307123", "", "9"},
	{"NzSixInAreaTwo", "NZ", "307123", "+64 (24) 307123", "", "24"},
	{"NzSixWithoutSiteAreaCode", "NZ", "307123", "307123"},
	{"NzFive", "NZ", "30712", "30712", "", "24"},
	{"NzBehindExternalPrefix", "NZ", "1093071234", "+64 (9) 3071234", "1", "9"},
	{"NzTwoZerosThenExternalPrefix", "NZ", "0093071234", "+64 (9) 3071234", "0", "9"},
	{"NzBehindExternalPrefixWithoutTrunk", "NZ", "1930712345", "1930712345", "1", "9"},
};

// Trunk-prefix plans: numbers the facade never hands over as they stand; a site without prefix or area is an
// international record.
const Conversion TRUNK_PREFIX_CONVERSIONS[] = {
	{"NlExtPrefixAndNational", "NL", "00201234567", "+31 (20) 1234567", "0", "20", 5},
	{"AtExtPrefixAndNational", "AT", "00158800", "+43 (1) 58800", "0", "1", 5},
	{"AtTwoSubscriberDigitsKeepCountry", "AT", "0223612", "+43 (0) 223612", "9", "1", 5},
	{"GbNineDigitLondon", "GB", "0207946012", "+44 (20) 7946012", "9", "20", 5},
	{"IeLocalOfFourDigits", "IE", "2345", "2345", "9", "1", 5},
	{"MxExtPrefixAndOneDigitShort", "MX", "901551234567", "+52 551234567", "9", "55", 5},
	{"MxNationalNumberBeginningWithOneKeepsCountry", "MX", "011234567890", "+52 1234567890", "9", "55", 5},
	{"MxTooShort", "MX", "123456", "123456", "9", "55", 5},
	{"MxTenDigitsAtSiteWithoutAreaAreNotLocal", "MX", "1234567890", "1234567890", "", "", 5},
	{"MxEightDigitsWithTrunkDigitAreNotLocal", "MX", "01234567", "+52 234567", "9", "55", 5},
	{"AtExtPrefixAndThreeDigits", "AT", "9234", "+43 (1) 234", "9", "1", 5},
	{"AtShortNumberBehindLongExtPrefixIsLocal", "AT", "9923", "+43 (1) 9923", "99", "1", 5},
	{"AtNumberAsLongAsTheLongestCode", "AT", "01234", "+43 (1) 234", "9", "1", 5},
};

INSTANTIATE_TEST_SUITE_P(TrunkPrefixPlans, CountryPlansTest, ::testing::ValuesIn(TRUNK_PREFIX_CONVERSIONS), rowName);

INSTANTIATE_TEST_SUITE_P(Plans, CountryPlansTest, ::testing::ValuesIn(CONVERSIONS), rowName);

const char* const NO_FILE = "No specific dialing rules configuration file";

/// The info lines of a table plan without its country file, then without its default file.
struct ConstructionRow
{
	const char* callingCode;
	const char* noCountryFile;
	const char* noDefaultFile = NO_FILE;
};

const ConstructionRow CONSTRUCTIONS[] = {
	{"31", "No specific configuration file for Netherlands"},
	{"32", "No specific configuration file for Belgium"},
	{"43", "No specific configuration file for Austria"},
	{"44", ""},
	{"353", "No specific dialing rules configuration for Ireland",
		"No specific dialing rules configuration for Irelandd"},
	{"61", "No specific configuration file for Australia"},
	{"54", "No specific configuration file for Argentina"},
};

class TablePlanConstructionTest: public PlanCountriesFixture, public ::testing::WithParamInterface<ConstructionRow>
{
protected:
	/// The info lines written while the plan is built.
	std::vector<std::string> infoLines()
	{
		LogCapture::clear();
		Poco::AutoPtr<ZelCNP> plan(ZelCNPFactory::CreateInstance(GetParam().callingCode));
		return LogCapture::matching("INFO ");
	}

	std::vector<std::string> expectedLines(bool defaultFileMissing)
	{
		const ConstructionRow& row = GetParam();
		const std::string className = std::string("ZelCNP_") + row.callingCode;
		const std::string head = "INFO N9numbering" + std::to_string(className.size()) + className + "E - ";
		std::vector<std::string> result;
		if (*row.noCountryFile != '\0') result.push_back(head + row.noCountryFile);
		if (defaultFileMissing) result.push_back(head + row.noDefaultFile);
		return result;
	}
};

TEST_P(TablePlanConstructionTest, NamesBothMissingFilesThenOnlyTheCountryFileWhenTheDefaultOpens)
{
	EXPECT_EQ(expectedLines(true), infoLines());
	writeFile(std::string("r7731cnp_") + GetParam().callingCode + "_default.properties", "Translate=1\n");
	EXPECT_EQ(expectedLines(false), infoLines());
}

INSTANTIATE_TEST_SUITE_P(TablePlans,
	TablePlanConstructionTest,
	::testing::ValuesIn(CONSTRUCTIONS),
	[](const ::testing::TestParamInfo<ConstructionRow>& info) { return std::string("Plan") + info.param.callingCode; });

/// A split: the number, the site area ("": no site), the record's text ("": none).
struct StripRow
{
	const char* name;
	const char* full;
	const char* siteArea;
	const char* record;
};

const StripRow STRIPS[] = {
	{"InternationalMobile", "91123456789", "351", "areaCode : '11', number : '23456789', mobile : true"},
	{"National", "1143211234", "11", "areaCode : '11', number : '43211234', mobile : false"},
	{"LocalMobile", "1523456789", "11", "areaCode : '11', number : '23456789', mobile : true"},
	{"Local", "43211234", "11", "areaCode : '11', number : '43211234', mobile : false"},
	{"NationalMobile", "0111523456789", "", "areaCode : '11', number : '23456789', mobile : true"},
	{"MobileMarkWithoutArea", "99991234567", "", ""},
	{"SubscriberTooShort", "0114321123", "", ""},
	{"TooShort", "01", "11", ""},
	{"UnknownAreaWithoutMobileMark", "0491234567", "", ""},
};

using ZelCNP54StripTest = WithRows<PlanCountriesFixture, StripRow>;

TEST_P(ZelCNP54StripTest, SplitsTheNumber)
{
	const StripRow& row = GetParam();
	configure(Setting::Sample);
	const std::unique_ptr<ZelDialRulesItem> site = makeSite(SiteSetup{"AR", row.siteArea, "0"});
	Poco::AutoPtr<ZelCNP_54> plan(new ZelCNP_54());
	const std::unique_ptr<StrippedNumber> stripped = plan->StripNbr(row.full, *row.siteArea ? site.get() : nullptr);
	EXPECT_EQ(row.record, stripped ? stripped->ToString() : "");
}

INSTANTIATE_TEST_SUITE_P(Argentina, ZelCNP54StripTest, ::testing::ValuesIn(STRIPS), numbering::test::rowName);

using BelgianServiceNumbersTest = PlanCountriesFixture;

// 070 and 078 numbers keep the trunk form even when the table holds a code they begin with.
TEST_F(BelgianServiceNumbersTest, AreNotSplitByAreaCodesOfTheTable)
{
	configure(Setting::Sample);
	writeFile("r7731cnp_32.properties", areaCodeTable("Translate=1\n", {"7", "78"}));
	Poco::AutoPtr<ZelCNP> plan(ZelCNPFactory::CreateInstance("32"));
	const std::unique_ptr<ZelDialRulesItem> site = makeSite(SiteSetup{"BE", "2", "0"});
	EXPECT_EQ("+32 (0) 70123456", plan->qap_Country_MakeCanonicalNumber("070123456", site.get()));
	EXPECT_EQ("+32 (0) 78123456", plan->qap_Country_MakeCanonicalNumber("078123456", site.get()));
}

// A table that cannot be read is reported under the plan's own name.
TEST_P(TablePlanConstructionTest, NamesItselfWhenItsTableCannotBeRead)
{
	const std::string className = std::string("ZelCNP_") + GetParam().callingCode;
	writeFile("r7731cnp_" + std::string(GetParam().callingCode) + ".properties", "AC_0000=${AC_0000}\n");
	const std::vector<std::string> expected{"INFO N9numbering" + std::to_string(className.size()) + className + "E - " +
											className + " : Circular reference"};
	EXPECT_EQ(expected, infoLines());
}

} // namespace
} // namespace test
} // namespace numbering
