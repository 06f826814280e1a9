// TrunkPrefixPlansTest.cpp

#include "plans/MorePlansFixture.h"
#include "plans/ZelCNPFactory.h"
#include "support/LogCapture.h"

#include "Poco/AutoPtr.h"

#include <gtest/gtest.h>

namespace numbering {
namespace test {
namespace {

const SiteSetup NL20{"NL", "20", "0"};
const SiteSetup NL{"NL", "", ""};
const SiteSetup BE2{"BE", "2", "0"};
const SiteSetup BE{"BE", "", ""};
const SiteSetup AT1{"AT", "1", "0"};
const SiteSetup AT1EXT9{"AT", "1", "9"};
const SiteSetup AT{"AT", "", ""};
const SiteSetup GB20{"GB", "20", "9"};
const SiteSetup GB{"GB", "", ""};
const SiteSetup IE1{"IE", "1", "9"};
const SiteSetup IE1EXT0{"IE", "1", "0"};
const SiteSetup IE{"IE", "", ""};
const SiteSetup AU2{"AU", "2", "0"};
const SiteSetup AU{"AU", "", ""};

// Sites without external prefix or area code stand for the record of a "+" or international number.
const PlanRow NETHERLANDS[] = {
	{"TwoDigitArea", NL20, "0201234567", "+31 (20) 1234567"},
	{"ThreeDigitArea", NL20, "0346123456", "+31 (346) 123456"},
	{"Mobile", NL20, "0612345678", "+31 (0) 612345678"},
	{"FreephoneOfSevenDigits", NL20, "08001234", "+31 (0) 8001234"},
	{"ServiceNumber", NL20, "0851234567", "+31 (0) 851234567"},
	{"AreaMissingFromTable", NL20, "0221234567", "+31 (0) 221234567"},
	{"MachineToMachine", NL20, "097012345678", "+31 (0) 97012345678"},
	{"Local", NL20, "6123456", "+31 (20) 6123456"},
	{"ExtPrefixAndLocal", NL20, "02345678", "+31 (20) 2345678"},
	{"ExtPrefixAndNational", NL20, "00201234567", "+31 (20) 1234567"},
	{"WrongLengthKeepsCountry", NL20, "021234567", "+31 (0) 21234567"},
	{"ShortCode", NL20, "14020", "14020"},
	{"InternationalMobile", NL, "0612345678", "+31 (0) 612345678"},
	{"LocalWithoutTranslation", NL20, "6123456", "6123456", Setting::NoTranslate},
	{"InternationalOneDigitShort", NL, "020123456", "+31 (0) 20123456"},
	{"TooShort", NL20, "02", "02"},
};

const PlanRow BELGIUM[] = {
	{"Brussels", BE2, "022345678", "+32 (2) 2345678"},
	{"TwoDigitZone", BE2, "071123456", "+32 (71) 123456"},
	{"LiegeBesideMobiles", BE2, "042345678", "+32 (4) 2345678"},
	{"Mobile", BE2, "0475123456", "+32 (0) 475123456"},
	{"Zone80", BE2, "080223344", "+32 (80) 223344"},
	{"Freephone", BE2, "080012345", "+32 (0) 80012345"},
	{"Premium", BE2, "090012345", "+32 (0) 90012345"},
	{"NationalRate", BE2, "078153344", "+32 (0) 78153344"},
	{"WithoutTrunkPrefix", BE2, "2345678", "+32 (2) 2345678"},
	{"ExtPrefixAndLocal", BE2, "02234567", "+32 (2) 2234567"},
	{"Emergency", BE2, "112", "112"},
	{"InternationalMobile", BE, "0475123456", "+32 (0) 475123456"},
	{"InternationalOneDigitShort", BE, "02234567", "+32 (0) 2234567"},
};

const PlanRow AUSTRIA[] = {
	{"Vienna", AT1, "0158800", "+43 (1) 58800"},
	{"ExtensionAppended", AT1, "015880012", "+43 (1) 5880012"},
	{"Graz", AT1, "03161234567", "+43 (316) 1234567"},
	{"FourDigitArea", AT1, "0223612345", "+43 (2236) 12345"},
	{"Mobile", AT1, "06641234567", "+43 (664) 1234567"},
	{"Freephone", AT1, "0800123456", "+43 (800) 123456"},
	{"LocationIndependent", AT1, "0720123456", "+43 (720) 123456"},
	{"Local", AT1, "58800", "+43 (1) 58800"},
	{"ExtPrefixAndLocal", AT1, "058800", "+43 (1) 58800"},
	{"ExtPrefixAndNational", AT1, "00158800", "+43 (1) 58800"},
	{"Emergency", AT1, "112", "112"},
	{"InternationalMobile", AT, "06641234567", "+43 (664) 1234567"},
	{"EmptyTableKeepsCountry", AT1EXT9, "0158800", "+43 (0) 158800", Setting::NoTable},
	{"LocalReadAsNational", AT1, "02236123", "+43 (2236) 123"},
	{"InternationalAreaMissingFromTable", AT, "0225212345", "+43 (0) 225212345"},
	{"GeographicBesideMobiles", AT1, "06542123456", "+43 (6542) 123456"},
	{"TwoSubscriberDigitsKeepCountry", AT1EXT9, "0223612", "+43 (0) 223612"},
};

const PlanRow UNITED_KINGDOM[] = {
	{"London", GB20, "02079460123", "+44 (20) 79460123"},
	{"Birmingham", GB20, "01214960123", "+44 (121) 4960123"},
	{"FourDigitArea", GB20, "01223123456", "+44 (1223) 123456"},
	{"Dumfries", GB20, "01387123456", "+44 (1387) 123456"},
	{"LangholmInsideDumfries", GB20, "01387312345", "+44 (13873) 12345"},
	{"FiveDigitArea", GB20, "01697712345", "+44 (16977) 12345"},
	{"Mobile", GB20, "07911123456", "+44 (0) 7911123456"},
	{"FreephoneOfNineDigits", GB20, "0800123456", "+44 (0) 800123456"},
	{"GeographicRate", GB20, "03001234567", "+44 (0) 3001234567"},
	{"Local", GB20, "79460123", "+44 (20) 79460123"},
	{"ExtPrefixAndLocal", GB20, "979460123", "+44 (20) 79460123"},
	{"ExtPrefixAndNational", GB20, "902079460123", "+44 (20) 79460123"},
	{"SevenDigitSpecial", GB20, "08001111", "+44 (0) 8001111"},
	{"Emergency", GB20, "999", "999"},
	{"InternationalMobile", GB, "07911123456", "+44 (0) 7911123456"},
	{"ExtPrefixAndSevenDigitSpecial", GB20, "908001111", "+44 (0) 8001111"},
	{"InternationalSevenDigitSpecial", GB, "08001111", "+44 (0) 8001111"},
	{"NineDigitLondon", GB20, "0207946012", "+44 (20) 7946012"},
};

const PlanRow IRELAND[] = {
	{"Dublin", IE1, "012345678", "+353 (1) 2345678"},
	{"Cork", IE1, "0211234567", "+353 (21) 1234567"},
	{"ThreeDigitArea", IE1, "040212345", "+353 (402) 12345"},
	{"Galway", IE1, "091123456", "+353 (91) 123456"},
	{"Mobile", IE1, "0871234567", "+353 (87) 1234567"},
	{"NonGeographic", IE1, "0818123456", "+353 (818) 123456"},
	{"Local", IE1, "2345678", "+353 (1) 2345678"},
	{"ExtPrefixAndLocal", IE1, "92345678", "+353 (1) 2345678"},
	{"FreephoneDialledAtHome", IE1, "1800123456", "1800123456"},
	{"NorthernIreland", IE1, "04890123456", "+353 (0) 4890123456"},
	{"Emergency", IE1, "999", "999"},
	{"InternationalFreephone", IE, "01800123456", "+353 (1800) 123456"},
	{"InternationalMobile", IE, "0871234567", "+353 (87) 1234567"},
	{"InternationalAreaMissingFromTable", IE, "051123456", "+353 (0) 51123456"},
	{"ExtPrefixAndFreephone", IE1, "91800123456", "1800123456"},
	{"ExtPrefixZeroAndFreephone", IE1EXT0, "01800123456", "1800123456"},
	{"LocalOfFourDigits", IE1, "2345", "2345"},
};

const PlanRow AUSTRALIA[] = {
	{"Sydney", AU2, "0292345678", "+61 (2) 92345678"},
	{"Melbourne", AU2, "0390001234", "+61 (3) 90001234"},
	{"Mobile", AU2, "0412345678", "+61 (0) 412345678"},
	{"LocalRate1300", AU2, "1300123456", "+61 1300 123456"},
	{"Freephone1800", AU2, "1800123456", "+61 1800 123456"},
	{"LocalRate13", AU2, "131234", "+61 13 1234"},
	{"Local", AU2, "92345678", "+61 (2) 92345678"},
	{"ExtPrefixAndLocal", AU2, "092345678", "+61 (2) 92345678"},
	{"ExtPrefixAndNational", AU2, "00412345678", "+61 (0) 412345678"},
	{"ExtPrefixAnd1300", AU2, "01300123456", "+61 1300 123456"},
	{"Premium", AU2, "1900123456", "1900123456"},
	{"Emergency", AU2, "000", "000"},
	{"InternationalMobile", AU, "0412345678", "+61 (0) 412345678"},
	{"International1300", AU, "1300123456", "+61 1300 123456"},
	{"International1300FromAbroad", AU, "01300123456", "+61 1300 123456"},
	{"International13", AU, "0131234", "+61 13 1234"},
	{"InternationalOneDigitShort", AU, "021234567", "+61 (0) 21234567"},
	{"InternationalPremium", AU, "01900123456", "+61 (0) 1900123456"},
};

class ZelCNP31Test: public MorePlanTest
{
};

class ZelCNP32Test: public MorePlanTest
{
};

class ZelCNP43Test: public MorePlanTest
{
};

class ZelCNP44Test: public MorePlanTest
{
};

class ZelCNP353Test: public MorePlanTest
{
};

class ZelCNP61Test: public MorePlanTest
{
};

TEST_P(ZelCNP31Test, MakesCanonicalNumber)
{
	EXPECT_EQ(GetParam().canonical, canonical("31"));
}

TEST_P(ZelCNP32Test, MakesCanonicalNumber)
{
	EXPECT_EQ(GetParam().canonical, canonical("32"));
}

TEST_P(ZelCNP43Test, MakesCanonicalNumber)
{
	EXPECT_EQ(GetParam().canonical, canonical("43"));
}

TEST_P(ZelCNP44Test, MakesCanonicalNumber)
{
	EXPECT_EQ(GetParam().canonical, canonical("44"));
}

TEST_P(ZelCNP353Test, MakesCanonicalNumber)
{
	EXPECT_EQ(GetParam().canonical, canonical("353"));
}

TEST_P(ZelCNP61Test, MakesCanonicalNumber)
{
	EXPECT_EQ(GetParam().canonical, canonical("61"));
}

INSTANTIATE_TEST_SUITE_P(Netherlands, ZelCNP31Test, ::testing::ValuesIn(NETHERLANDS), planRowName);
INSTANTIATE_TEST_SUITE_P(Belgium, ZelCNP32Test, ::testing::ValuesIn(BELGIUM), planRowName);
INSTANTIATE_TEST_SUITE_P(Austria, ZelCNP43Test, ::testing::ValuesIn(AUSTRIA), planRowName);
INSTANTIATE_TEST_SUITE_P(UnitedKingdom, ZelCNP44Test, ::testing::ValuesIn(UNITED_KINGDOM), planRowName);
INSTANTIATE_TEST_SUITE_P(Ireland, ZelCNP353Test, ::testing::ValuesIn(IRELAND), planRowName);
INSTANTIATE_TEST_SUITE_P(Australia, ZelCNP61Test, ::testing::ValuesIn(AUSTRALIA), planRowName);

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

void PrintTo(const ConstructionRow& row, std::ostream* os)
{
	*os << row.callingCode;
}

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
