// TrunkPrefixPlansTest.cpp

#include "plans/MorePlansFixture.h"
#include "plans/ZelCNPFactory.h"
#include "support/LogCapture.h"
#include "support/RowName.h"

#include "Poco/AutoPtr.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace numbering {
namespace test {
namespace {

const SiteSetup NL20{"NL", "20", "0"};
const SiteSetup AT1EXT9{"AT", "1", "9"};
const SiteSetup AT1{"AT", "1", "0"};
const SiteSetup GB20{"GB", "20", "9"};
const SiteSetup IE1{"IE", "1", "9"};
const SiteSetup MX55{"MX", "55", "9"};
const SiteSetup MX{"MX", "", ""};

// Plan-level rows that the end-to-end worked examples cannot reach: numbers the facade never hands over as
// they stand. A site without external prefix or area code stands for the record of an international number.
const PlanRow PLAN_ONLY[] = {
	{"NlExtPrefixAndNational", NL20, "00201234567", "+31 (20) 1234567"},
	{"NlTooShort", NL20, "02", "02"},
	{"AtExtPrefixAndNational", AT1, "00158800", "+43 (1) 58800"},
	{"AtTwoSubscriberDigitsKeepCountry", AT1EXT9, "0223612", "+43 (0) 223612"},
	{"GbNineDigitLondon", GB20, "0207946012", "+44 (20) 7946012"},
	{"IeLocalOfFourDigits", IE1, "2345", "2345"},
	{"MxOneDigitShortKeepsCountry", MX, "01551234567", "+52 551234567"},
	{"MxExtPrefixAndOneDigitShort", MX55, "901551234567", "+52 551234567"},
	{"MxNationalNumberBeginningWithOneKeepsCountry", MX55, "011234567890", "+52 1234567890"},
	{"MxTooShort", MX55, "123456", "123456"},
};

const std::map<std::string, std::string> CALLING_CODES{
	{"NL", "31"}, {"AT", "43"}, {"GB", "44"}, {"IE", "353"}, {"MX", "52"}};

class TrunkPrefixPlansTest: public MorePlanTest
{
};

TEST_P(TrunkPrefixPlansTest, MakesCanonicalNumber)
{
	EXPECT_EQ(GetParam().canonical, canonical(CALLING_CODES.at(GetParam().site.country)));
}

INSTANTIATE_TEST_SUITE_P(PlanOnly, TrunkPrefixPlansTest, ::testing::ValuesIn(PLAN_ONLY), RowName());

/// Debug lines of one conversion, without the logger names.
std::vector<std::string> messages()
{
	std::vector<std::string> result;
	for (const std::string& line : LogCapture::lines())
		result.push_back(line.substr(line.find(" - ") + 3));
	return result;
}

class TrunkPrefixPlanTracesTest: public MorePlansFixture
{
};

TEST_F(TrunkPrefixPlanTracesTest, IrishPlanTracesTableAndResult)
{
	configure(Setting::Sample);
	const std::unique_ptr<ZelDialRulesItem> site = makeSite(IE1);
	Poco::AutoPtr<ZelCNP> plan(ZelCNPFactory::CreateInstance("353"));
	Logger::m_Traces = true;
	LogCapture::clear();
	plan->qap_Country_MakeCanonicalNumber("012345678", site.get());
	const std::vector<std::string> expected{"qap_Country_MakeCanonicalNumber('012345678', '" + site->ToString() + "')",
		"'12345678' isn't an area code, but begins with '1' which is an area code",
		"QapCountryMakeCanonicalNumber returns '+353 (1) 2345678'"};
	EXPECT_EQ(expected, messages());
}

TEST_F(TrunkPrefixPlanTracesTest, UnknownCodeIsTracedBeforeTheZeroForm)
{
	configure(Setting::Sample);
	const std::unique_ptr<ZelDialRulesItem> site = makeSite(NL20);
	Poco::AutoPtr<ZelCNP> plan(ZelCNPFactory::CreateInstance("31"));
	Logger::m_Traces = true;
	LogCapture::clear();
	EXPECT_EQ("+31 (0) 612345678", plan->qap_Country_MakeCanonicalNumber("0612345678", site.get()));
	EXPECT_EQ(1, LogCapture::count("DEBUG N9numbering9ZelCNP_31E - '612345678' doesn't begin with a known area code"));
}

/// The info lines of a table plan built without its files: text A when the country file is missing, text B
/// when the default file is missing too.
struct ConstructionRow
{
	const char* callingCode;
	const char* loggerName;
	const char* noCountryFile;
	const char* noDefaultFile;
};

const ConstructionRow CONSTRUCTIONS[] = {
	{"31", "N9numbering9ZelCNP_31E", "No specific configuration file for Netherlands",
		"No specific dialing rules configuration file"},
	{"32", "N9numbering9ZelCNP_32E", "No specific configuration file for Belgium",
		"No specific dialing rules configuration file"},
	{"43", "N9numbering9ZelCNP_43E", "No specific configuration file for Austria",
		"No specific dialing rules configuration file"},
	{"44", "N9numbering9ZelCNP_44E", "", "No specific dialing rules configuration file"},
	{"353", "N9numbering10ZelCNP_353E", "No specific dialing rules configuration for Ireland",
		"No specific dialing rules configuration for Irelandd"},
	{"61", "N9numbering9ZelCNP_61E", "No specific configuration file for Australia",
		"No specific dialing rules configuration file"},
	{"54", "N9numbering9ZelCNP_54E", "No specific configuration file for Argentina",
		"No specific dialing rules configuration file"},
};

class TablePlanConstructionTest: public MorePlansFixture, public ::testing::WithParamInterface<ConstructionRow>
{
protected:
	/// The info lines written while the plan is built.
	std::vector<std::string> infoLines()
	{
		LogCapture::clear();
		Poco::AutoPtr<ZelCNP> plan(ZelCNPFactory::CreateInstance(GetParam().callingCode));
		std::vector<std::string> result;
		for (const std::string& line : LogCapture::lines())
		{
			if (line.rfind("INFO ", 0) == 0) result.push_back(line);
		}
		return result;
	}

	std::vector<std::string> expectedLines(bool defaultFileMissing)
	{
		const ConstructionRow& row = GetParam();
		std::vector<std::string> result;
		const std::string head = std::string("INFO ") + row.loggerName + " - ";
		if (*row.noCountryFile != '\0') result.push_back(head + row.noCountryFile);
		if (defaultFileMissing) result.push_back(head + row.noDefaultFile);
		return result;
	}
};

TEST_P(TablePlanConstructionTest, NamesBothMissingFiles)
{
	EXPECT_EQ(expectedLines(true), infoLines());
}

TEST_P(TablePlanConstructionTest, NamesOnlyTheCountryFileWhenTheDefaultOpens)
{
	writeFile(std::string("r7731cnp_") + GetParam().callingCode + "_default.properties", "Translate=1\n");
	EXPECT_EQ(expectedLines(false), infoLines());
}

INSTANTIATE_TEST_SUITE_P(TablePlans,
	TablePlanConstructionTest,
	::testing::ValuesIn(CONSTRUCTIONS),
	[](const ::testing::TestParamInfo<ConstructionRow>& info) { return std::string("Plan") + info.param.callingCode; });

} // namespace
} // namespace test
} // namespace numbering
