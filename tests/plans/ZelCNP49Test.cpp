// ZelCNP49Test.cpp

#include "numbering/Logger.h"
#include "numbering/ZelDialRulesItem.h"
#include "numbering/ZelNumberingConfig.h"

#include "plans/ZelCNP_49.h"
#include "support/ConfigFixture.h"
#include "support/LogCapture.h"

#include "Poco/AutoPtr.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <iterator>
#include <ostream>
#include <string>
#include <vector>

using numbering::ZelCNP_49;
using numbering::ZelDialRulesItem;
using numbering::test::LogCapture;

namespace {

/// German area codes without the trunk prefix, in a realistic order: the short codes of the big cities
/// first, so that longer codes sharing their first digits (30 / 3301, 89 / 8031) come later.
const char* const GERMAN_AREA_CODES[] = {"30", "40", "69", "89", "201", "202", "203", "208", "209", "211", "212", "214",
	"221", "228", "231", "234", "241", "251", "261", "271", "281", "291", "331", "335", "340", "341", "345", "351",
	"355", "361", "365", "371", "375", "381", "385", "391", "395", "421", "431", "441", "451", "461", "471", "481",
	"491", "511", "521", "531", "541", "551", "561", "571", "581", "591", "611", "621", "631", "641", "651", "661",
	"671", "681", "711", "721", "731", "741", "751", "761", "771", "781", "791", "821", "831", "841", "851", "861",
	"871", "881", "906", "911", "921", "931", "941", "951", "961", "971", "981", "991", "2041", "2043", "2051", "2131",
	"2151", "2161", "2191", "2202", "2203", "2222", "2241", "2302", "2303", "2304", "2305", "2306", "2307", "2331",
	"2351", "2361", "2381", "2402", "2421", "2431", "2451", "3301", "3302", "3303", "3304", "3306", "3307", "3321",
	"3322", "3327", "3328", "3331", "3332", "3334", "3335", "3337", "3338", "3341", "3342", "3344", "3361", "3362",
	"3364", "3366", "3371", "3372", "3375", "3377", "3378", "3379", "3381", "3391", "3394", "3395", "3831", "3834",
	"3838", "3841", "3843", "6101", "6102", "6103", "6104", "6105", "6106", "6107", "6108", "6109", "6131", "6142",
	"6151", "6171", "6172", "6181", "6201", "6221", "6232", "6241", "6251", "6321", "6341", "7021", "7031", "7071",
	"7121", "7131", "7141", "7151", "7161", "7171", "7221", "7231", "7251", "7321", "7361", "7531", "7541", "7621",
	"7721", "7731", "7751", "7821", "8024", "8031", "8041", "8051", "8061", "8071", "8081", "8092", "8102", "8106",
	"8121", "8122", "8131", "8141", "8151", "8161", "8171", "8191", "8221", "8231", "8241", "8251", "8261", "8271",
	"8321", "8331", "8341", "8362", "8382", "8421", "8431", "8441", "8541", "8551", "8561", "8571", "8621", "8631",
	"8651", "8652", "8671", "8721", "8731", "8741", "8761", "8821", "8822", "8841", "8861", "33203", "33204", "33205",
	"33232", "33233", "33234", "39203", "39204", "39205", "39206", "39207", "39208", "39209"};

/// The table file: the codes above as "AC_%04d" entries, then entries as sites write them by hand: with
/// blanks and a dash, without any digit, and "33", a path of longer codes.
std::string germanTable(const std::string& translateLine)
{
	std::string text = translateLine;
	int index = 0;
	auto add = [&text, &index](const std::string& value) {
		char key[16];
		std::snprintf(key, sizeof(key), "AC_%04d", index++);
		text += std::string(key) + "=" + value + "\n";
	};
	for (const char* code : GERMAN_AREA_CODES)
		add(code);
	for (const char* value : {"30 - 1", "n/a", "33", "8 0 3 3"})
		add(value);
	return text;
}

const std::string PLAN_LOGGER = "N9numbering9ZelCNP_49E";

struct Conversion
{
	const char* name;
	const char* extPrefix;
	const char* siteArea;
	const char* number;
	const char* expected;
};

void PrintTo(const Conversion& conversion, std::ostream* os)
{
	*os << conversion.name;
}

class ZelCNP49Test: public numbering::test::ConfigFixture
{
protected:
	void SetUp() override
	{
		ConfigFixture::SetUp();
		writeFile("dialingrules.properties", "DE=49:00:EFG:0FG:G:Germany:P\n");
		// Loaded up front, so that its own lines about missing files are not mixed with the plan's.
		numbering::ZelNumberingConfig::getInstance();
		LogCapture::clear();
	}

	std::string convert(const char* extPrefix, const char* siteArea, const std::string& number)
	{
		ZelDialRulesItem rules("DE", extPrefix, 0, siteArea, 0, "");
		Poco::AutoPtr<ZelCNP_49> plan(new ZelCNP_49());
		return plan->qap_Country_MakeCanonicalNumber(number, &rules);
	}
};

class ZelCNP49TranslateTest: public ZelCNP49Test, public ::testing::WithParamInterface<Conversion>
{
};

TEST_P(ZelCNP49TranslateTest, MakesCanonicalNumber)
{
	writeFile("r7731cnp_49.properties", germanTable("Translate=1\n"));
	const Conversion& c = GetParam();
	EXPECT_EQ(c.expected, convert(c.extPrefix, c.siteArea, c.number));
}

INSTANTIATE_TEST_SUITE_P(Numbers,
	ZelCNP49TranslateTest,
	::testing::Values(Conversion{"TooShort", "0", "7731", "12", "12"},
		Conversion{"Berlin", "0", "7731", "0309876543", "+49 (30) 9876543"},
		Conversion{"LongerCodeWins", "0", "7731", "03012345", "+49 (301) 2345"},
		Conversion{"RosenheimSharesMunichsFirstDigit", "0", "7731", "080311234", "+49 (8031) 1234"},
		Conversion{"EntryWithBlanks", "0", "7731", "080331234", "+49 (8033) 1234"},
		Conversion{"FiveDigitCode", "0", "7731", "039209123", "+49 (39209) 123"},
		Conversion{"PathOfLongerCodesIsNoCode", "9", "7731", "03390123", "+49 (7731) 3390123"},
		Conversion{"UnknownCodeTakesSiteArea", "9", "7731", "0999123456", "+49 (7731) 999123456"},
		Conversion{"BehindZeroPrefix", "0", "7731", "00891234567", "+49 (89) 1234567"},
		Conversion{"BehindOtherPrefix", "9", "7731", "90891234567", "+49 (89) 1234567"},
		Conversion{"SixteenDigitsBehindPrefix", "0", "7731", "00891234567890123", "+49 (89) 1234567890123"},
		Conversion{
			"SeventeenDigitsBehindPrefixAreLocal", "0", "7731", "008912345678901234", "+49 (7731) 008912345678901234"},
		Conversion{"LocalWithoutPrefix", "0", "7731", "1234567", "+49 (7731) 1234567"},
		Conversion{"LocalBehindPrefix", "9", "7731", "91234567", "+49 (7731) 1234567"},
		Conversion{"LocalWithoutSiteArea", "9", "", "91234567", "91234567"},
		Conversion{"ShorterThanLongestCode", "9", "", "01234", "01234"},
		Conversion{"SubscriberTooShort", "9", "", "0803112", "0803112"},
		Conversion{"NothingBehindCode", "9", "", "039209", "039209"},
		Conversion{"InternationalNotBehindPrefix", "9", "", "0049891234", "0049891234"},
		Conversion{"BinaryNumber", "0", "", "0\x01\xff\x7f", "0\x01\xff\x7f"}),
	[](const ::testing::TestParamInfo<Conversion>& info) { return info.param.name; });

TEST_F(ZelCNP49Test, TranslateOtherThanOneKeepsLocalNumbers)
{
	writeFile("r7731cnp_49.properties", germanTable("Translate=yes\n"));
	EXPECT_EQ("1234567", convert("0", "7731", "1234567"));
	EXPECT_EQ("91234567", convert("9", "7731", "91234567"));
	EXPECT_EQ("+49 (89) 1234567", convert("9", "7731", "90891234567"));
}

TEST_F(ZelCNP49Test, FileWithoutTranslateKeepsTranslationOn)
{
	writeFile("r7731cnp_49.properties", germanTable(""));
	EXPECT_EQ("+49 (7731) 1234567", convert("0", "7731", "1234567"));
}

TEST_F(ZelCNP49Test, DefaultFileIsReadSilentlyWhenCountryFileIsMissing)
{
	writeFile("r7731cnp_49_default.properties", "Translate=0\nAC_0000=8031\n");
	EXPECT_EQ("+49 (8031) 12345", convert("0", "7731", "0803112345"));
	EXPECT_EQ("1234567", convert("0", "7731", "1234567"));
	EXPECT_EQ(0, LogCapture::count(PLAN_LOGGER));
}

TEST_F(ZelCNP49Test, DirectoryInPlaceOfCountryFileFallsBackToDefaultFile)
{
	std::filesystem::create_directory(configDir() + "r7731cnp_49.properties");
	writeFile("r7731cnp_49_default.properties", "AC_0000=8031\n");
	EXPECT_EQ("+49 (8031) 12345", convert("0", "7731", "0803112345"));
}

TEST_F(ZelCNP49Test, CountryFileHidesDefaultFile)
{
	writeFile("r7731cnp_49.properties", "AC_0000=89\n");
	writeFile("r7731cnp_49_default.properties", "AC_0000=8031\n");
	EXPECT_EQ("+49 (7731) 803112345", convert("0", "7731", "0803112345"));
}

TEST_F(ZelCNP49Test, WithoutAnyFileEveryNumberTakesTheSiteArea)
{
	EXPECT_EQ("+49 (7731) 891234567", convert("0", "7731", "0891234567"));
	EXPECT_EQ("+49 (7731) 1234567", convert("0", "7731", "1234567"));
	EXPECT_EQ(2, LogCapture::count("INFO N9numbering9ZelCNP_49E - No specific dialing rules configuration file"));
	EXPECT_EQ(2, LogCapture::count(PLAN_LOGGER));
}

TEST_F(ZelCNP49Test, TracesConstructionAndAreaCodeSearch)
{
	writeFile("r7731cnp_49.properties", germanTable("Translate=1\n"));
	Logger::m_Traces = true;
	ZelDialRulesItem rules("DE", "9", 0, "7731", 0, "");
	LogCapture::clear();
	Poco::AutoPtr<ZelCNP_49> plan(new ZelCNP_49());
	for (const char* number : {"0891234567", "0999123456", "039209"})
		plan->qap_Country_MakeCanonicalNumber(number, &rules);
	const std::string prefix = "DEBUG N9numbering9ZelCNP_49E - ";
	const std::vector<std::string> lines = LogCapture::lines();
	ASSERT_FALSE(lines.empty());
	EXPECT_EQ(prefix + "ZelCNP_49()", lines.front());
	const int stored = static_cast<int>(std::size(GERMAN_AREA_CODES)) + 3;
	for (const std::string& line : {"ZelCNP_49 :  max length areacode : 5 nb area code : " + std::to_string(stored),
			 std::string("qap_Country_MakeCanonicalNumber('0891234567', 'CountryCode : 'DE'"),
			 std::string("'891234567' isn't an area code, but begins with '89' which is an area code"),
			 std::string("'999123456' doesn't begin with a known area code"), std::string("'39209' is an area code")})
		EXPECT_EQ(1, LogCapture::count(prefix + line)) << line;
}

TEST_F(ZelCNP49Test, SelfTestPrintsTheFourConversions)
{
	writeFile("r7731cnp_49.properties", germanTable("Translate=1\n"));
	::testing::internal::CaptureStdout();
	EXPECT_EQ(0, ZelCNP_49::main(nullptr));
	EXPECT_EQ("Dialing rules : CountryCode : 'DE', External Prefix : '1', Local length : 9, AreaCode : '7711', "
			  "m_areaCodesList :  '7711', Except length : 0, Except begin : ''\n"
			  "Local 76985411 -> +49 (7711) 76985411\n"
			  "Local + prefixe 176985411 -> +49 (7711) 76985411\n"
			  "National 0771176985411 -> +49 (771) 176985411\n"
			  "National + prefixe 10771176985411 -> +49 (771) 176985411\n",
		::testing::internal::GetCapturedStdout());
}

} // namespace
