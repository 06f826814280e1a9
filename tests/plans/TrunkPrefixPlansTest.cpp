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

class TrunkPrefixPlanTracesTest: public MorePlansFixture
{
protected:
	/// The plan's result for number at site, with traces on and only the conversion's lines captured.
	std::string traced(const SiteSetup& setup, const char* callingCode, const std::string& number)
	{
		configure(Setting::Sample);
		const std::unique_ptr<ZelDialRulesItem> site = makeSite(setup);
		Poco::AutoPtr<ZelCNP> plan(ZelCNPFactory::CreateInstance(callingCode));
		Logger::m_Traces = true;
		LogCapture::clear();
		return plan->qap_Country_MakeCanonicalNumber(number, site.get());
	}
};

TEST_F(TrunkPrefixPlanTracesTest, IrishPlanTracesTableAndResult)
{
	traced(IE1, "353", "012345678");
	const std::vector<std::string> expected{
		"qap_Country_MakeCanonicalNumber('012345678', '" + makeSite(IE1)->ToString() + "')",
		"'12345678' isn't an area code, but begins with '1' which is an area code",
		"QapCountryMakeCanonicalNumber returns '+353 (1) 2345678'"};
	EXPECT_EQ(expected, LogCapture::messages());
}

TEST_F(TrunkPrefixPlanTracesTest, UnknownCodeIsTracedBeforeTheZeroForm)
{
	EXPECT_EQ("+31 (0) 612345678", traced(NL20, "31", "0612345678"));
	EXPECT_EQ(1, LogCapture::count("DEBUG N9numbering9ZelCNP_31E - '612345678' doesn't begin with a known area code"));
}

const char* const NO_FILE = "No specific dialing rules configuration file";

/// The info lines of a table plan built without its files: the first when the country file is missing, the
/// second when the default file is missing too.
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

class TablePlanConstructionTest: public MorePlansFixture, public ::testing::WithParamInterface<ConstructionRow>
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
