// ZelDialable57Test.cpp

#include "dialable/ZelDialable_57.h"
#include "support/ConfigFixture.h"
#include "support/LogCapture.h"

#include "Poco/AutoPtr.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>
#include <vector>

using numbering::test::LogCapture;

namespace numbering {
namespace {

const char* const SITE_FILE = "r7731cnp_57.properties";
const char* const DEFAULT_FILE = "r7731cnp_57_default.properties";
const char* const LOGGER = "DEBUG N9numbering14ZelDialable_57E - ";
const char* const A_DIRECTORY = "(a directory)";

template <typename Case>
std::string caseName(const ::testing::TestParamInfo<Case>& info)
{
	return info.param.name;
}

/// Traces on, France (trunk prefix 0) and Colombia configured.
class ZelDialable57Test: public test::ConfigFixture
{
protected:
	void SetUp() override
	{
		ConfigFixture::SetUp();
		writeFile("dialingrules.properties", "CO = 57:00:EF:0F::Colombia:P\n"
											 "FR = 33:00:EF:0F::France:P\n");
		Logger::m_Traces = true;
	}

	/// Writes content to name, or makes name a directory for A_DIRECTORY; nullptr leaves name missing.
	void place(const char* name, const char* content)
	{
		if (content == A_DIRECTORY)
			std::filesystem::create_directory(configDir() + name);
		else if (content)
			writeFile(name, content);
	}

	/// The operator code the maker dials, read from a long-distance call under the trunk prefix "0".
	static std::string operatorCode(ZelDialable_57& maker)
	{
		ZelCountryRuleItem rule("57", "00", "EF", "0F", "", "Colombia");
		std::string area = "1";
		std::string dest = "2345678";
		const std::string dialled = maker.makeLongDistDialableNumber(area, dest, &rule, nullptr);
		return dialled.substr(1, dialled.size() - 1 - area.size() - dest.size());
	}
};

struct LoadingCase
{
	const char* name;
	const char* siteFile;
	const char* defaultFile;
	std::string operatorCode;
	std::vector<std::string> known;
	std::vector<std::string> unknown;
	std::string infoLine;
	std::string endOfListLine;
};

class ZelDialable57LoadingTest: public ZelDialable57Test, public ::testing::WithParamInterface<LoadingCase>
{
};

TEST_P(ZelDialable57LoadingTest, ReadsOperatorCodeAndPrefixesUpToTheFirstFailure)
{
	const LoadingCase& c = GetParam();
	place(SITE_FILE, c.siteFile);
	place(DEFAULT_FILE, c.defaultFile);
	ZelDialable_57 maker;
	EXPECT_EQ(c.operatorCode, operatorCode(maker));
	for (const std::string& prefix : c.known)
		EXPECT_EQ(prefix, maker.extractOperatorPrefix(prefix));
	for (const std::string& prefix : c.unknown)
		EXPECT_EQ("", maker.extractOperatorPrefix(prefix));
	const std::string info = "INFO N9numbering14ZelDialable_57E - ";
	const int infoLines = c.infoLine.empty() ? 0 : 1;
	EXPECT_EQ(infoLines, LogCapture::count(info));
	EXPECT_EQ(infoLines, LogCapture::count(info + c.infoLine));
	EXPECT_TRUE(LogCapture::contains(LOGGER + std::string("ZelDialable_57()")));
	EXPECT_TRUE(LogCapture::contains(LOGGER + c.endOfListLine)) << c.endOfListLine;
}

const char* const NO_SPECIFIC_FILE = "No specific configuration file for Colombia";
const char* const END_OF_LIST = "ZelDialable_57 : Not found";

INSTANTIATE_TEST_SUITE_P(PlanFiles,
	ZelDialable57LoadingTest,
	::testing::Values(LoadingCase{"SiteFileHidesDefaultFile", "OP_DEFAULT = 7\nOP_0000 = 456\nOP_0001 = 5\n",
						  "OP_DEFAULT = 1\nOP_0000 = 07\n", "7", {"456", "5"}, {"07"}, "", END_OF_LIST},
		LoadingCase{"DefaultFileWithoutSiteFile", nullptr, "OP_DEFAULT = 5\nOP_0000 = 07\n", "5", {"07"}, {},
			NO_SPECIFIC_FILE, END_OF_LIST},
		LoadingCase{
			"NoFileAtAll", nullptr, nullptr, "9", {}, {"456"}, NO_SPECIFIC_FILE, "ZelDialable_57 : File not found"},
		LoadingCase{"SiteFileIsADirectory", A_DIRECTORY, "OP_DEFAULT = 5\nOP_0000 = 07\n", "5", {"07"}, {},
			"No specific dialing rules configuration file", END_OF_LIST},
		LoadingCase{"DefaultFileIsADirectory", nullptr, A_DIRECTORY, "9", {}, {}, NO_SPECIFIC_FILE,
			"ZelDialable_57 : Cannot open file"},
		LoadingCase{"GapEndsTheList", "OP_DEFAULT = 7\nOP_0000 = 456\nOP_0002 = 5\n", nullptr, "7", {"456"}, {"5"}, "",
			END_OF_LIST},
		LoadingCase{"MissingOperatorCode", "OP_0000 = 456\n", nullptr, "9", {"456"}, {}, "", END_OF_LIST},
		LoadingCase{
			"NonDigitsDropped", "OP_0000 = 4-5 6\nOP_0001 = x07\n", nullptr, "9", {"456", "07"}, {}, "", END_OF_LIST},
		LoadingCase{"ValueWithoutDigitsEndsTheList", "OP_0000 = 456\nOP_0001 = none\nOP_0002 = 5\n", nullptr, "9",
			{"456"}, {"5"}, "", "ZelDialable_57 : strDigits empty"},
		LoadingCase{"RefusedPrefixDoesNotEndTheList", "OP_0000 = 456\nOP_0001 = 45\nOP_0002 = 456\nOP_0003 = 7\n",
			nullptr, "9", {"456", "7"}, {"45"}, "", END_OF_LIST}),
	caseName<LoadingCase>);

struct PrefixCase
{
	const char* name;
	std::string number;
	std::string expected;
	std::string trace;
};

class ZelDialable57OperatorPrefixTest: public ZelDialable57Test, public ::testing::WithParamInterface<PrefixCase>
{
};

TEST_P(ZelDialable57OperatorPrefixTest, FindsTheLongestKnownPrefix)
{
	const PrefixCase& c = GetParam();
	writeFile(SITE_FILE, "OP_0000 = 45\nOP_0001 = 456\n");
	ZelDialable_57 maker;
	LogCapture::clear();
	EXPECT_EQ(c.expected, maker.extractOperatorPrefix(c.number));
	const std::vector<std::string> expectedLines =
		c.trace.empty() ? std::vector<std::string>{} : std::vector<std::string>{LOGGER + c.trace};
	EXPECT_EQ(expectedLines, LogCapture::lines());
}

INSTANTIATE_TEST_SUITE_P(Numbers,
	ZelDialable57OperatorPrefixTest,
	::testing::Values(PrefixCase{"WholePrefix", "456", "456", "'456' is an Colombian operator prefix"},
		PrefixCase{"NumberBehindLongerPrefix", "4561234", "456",
			"'4561234' isn't an Colombian operator prefix, but begins with '456' which is an Colombian operator "
			"prefix"},
		PrefixCase{"NumberBehindShorterPrefix", "4571234", "45",
			"'4571234' isn't an Colombian operator prefix, but begins with '45' which is an Colombian operator "
			"prefix"},
		PrefixCase{"PartOfPrefix", "4", "", ""},
		PrefixCase{"UnknownPrefix", "0033123456789", "", ""},
		PrefixCase{"Empty", "", "", ""},
		PrefixCase{"NotDigits", std::string("4\0\xff", 3), "", ""}),
	caseName<PrefixCase>);

struct DialCase
{
	const char* name;
	std::string rule;
	std::string countryNumber;
	std::string area;
	std::string dest;
	std::string expected;
	std::string areaAfter;
};

/// Operator code "4", so that the code read from the file is seen in every number.
class ZelDialable57DialTest: public ZelDialable57Test, public ::testing::WithParamInterface<DialCase>
{
protected:
	void SetUp() override
	{
		ZelDialable57Test::SetUp();
		writeFile(SITE_FILE, "OP_DEFAULT = 4\nOP_0000 = 456\n");
		m_Maker = new ZelDialable_57();
		LogCapture::clear();
	}

	Poco::AutoPtr<ZelDialable_57> m_Maker;
};

class ZelDialable57LongDistTest: public ZelDialable57DialTest
{
};

TEST_P(ZelDialable57LongDistTest, PutsCarrierOrMobileDigitBehindTheTrunkPrefix)
{
	const DialCase& c = GetParam();
	ZelCountryRuleItem rule("57", "00", "EF", c.rule, "", "Colombia");
	std::string area = c.area;
	std::string dest = c.dest;
	EXPECT_EQ(c.expected, m_Maker->makeLongDistDialableNumber(area, dest, &rule, nullptr));
	EXPECT_EQ(c.areaAfter, area);
	EXPECT_EQ(c.dest, dest);
	EXPECT_TRUE(LogCapture::lines().empty());
}

INSTANTIATE_TEST_SUITE_P(Calls,
	ZelDialable57LongDistTest,
	::testing::Values(DialCase{"FixedLine", "0F", "", "1", "2345678", "0412345678", "1"},
		DialCase{"MobileWithoutArea", "0F", "", "", "3001234567", "033001234567", ""},
		DialCase{"MobileInAreaPart", "0F", "", "300", "1234567", "033001234567", "300"},
		DialCase{"ThreeBehindTheFirstDigit", "0F", "", "1", "3234567", "0413234567", "1"},
		DialCase{"NoTrunkPrefix", "F", "", "1", "2345678", "412345678", "1"}),
	caseName<DialCase>);

TEST_F(ZelDialable57DialTest, LongDistanceWithNothingToDialThrowsOutOfRange)
{
	ZelCountryRuleItem rule("57", "00", "EF", "0F", "", "Colombia");
	std::string area;
	std::string dest;
	EXPECT_THROW(m_Maker->makeLongDistDialableNumber(area, dest, &rule, nullptr), std::out_of_range);
}

class ZelDialable57InternationalTest: public ZelDialable57DialTest
{
};

TEST_P(ZelDialable57InternationalTest, DialsCarrierThenSubscriberWhereOthersDialTheCountry)
{
	const DialCase& c = GetParam();
	ZelCountryRuleItem rule("57", "00", c.rule, "0F", "", "Colombia");
	std::string country = c.countryNumber;
	std::string area = c.area;
	std::string dest = c.dest;
	EXPECT_EQ(c.expected, m_Maker->makeInternationalDialableNumber(country, area, dest, &rule));
	EXPECT_EQ(c.areaAfter, area);
	EXPECT_EQ(c.countryNumber, country);
	EXPECT_EQ(c.dest, dest);
}

INSTANTIATE_TEST_SUITE_P(Calls,
	ZelDialable57InternationalTest,
	::testing::Values(DialCase{"NoRuleLetter", "", "33", "1", "23456789", "00423456789", "1"},
		DialCase{"SubscriberInPlaceOfCountry", "E", "33", "1", "23456789", "0042345678923456789", "1"},
		DialCase{"AreaPart", "F", "33", "1", "23456789", "004123456789", "1"},
		DialCase{"SubscriberAndAreaPart", "EF", "33", "1", "23456789", "00423456789123456789", "1"},
		DialCase{"TrunkPrefixDropped", "F", "33", "0", "23456789", "00423456789", ""},
		DialCase{"TrunkPrefixOfUnknownCountryKept", "F", "999", "0", "23456789", "004023456789", "0"},
		DialCase{"TrunkPrefixKeptWithoutRuleF", "E", "33", "0", "23456789", "0042345678923456789", "0"}),
	caseName<DialCase>);

} // namespace
} // namespace numbering
