// SampleConfigTest.cpp

#include "numbering/ZelDialRulesItem.h"
#include "numbering/ZelNumberingConfig.h"
#include "numbering/ZelNumberingRules.h"

#include "support/ConfigFixture.h"
#include "support/TableRows.h"

#include "Poco/AutoPtr.h"
#include "Poco/Format.h"
#include "Poco/Util/PropertyFileConfiguration.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

using numbering::ZelDialRulesItem;
using numbering::ZelNumberingConfig;
using numbering::ZelNumberingRules;

namespace {

/// The library reads the committed sample configuration itself, not a copy.
class SampleConfigTest: public numbering::test::ConfigFixture
{
protected:
	void SetUp() override
	{
		ConfigFixture::SetUp();
		ZelNumberingConfig::setConfigDirectory(NUMBERING_SAMPLE_CONFIG);
	}

	static ZelNumberingRules* rules()
	{
		return ZelNumberingRules::getInstance();
	}

	/// External prefix 9: 0 would make numbers with a trunk prefix ambiguous in the open plans.
	static ZelDialRulesItem site(const std::string& country, const std::string& areaCode)
	{
		return ZelDialRulesItem(country, "9", 5, areaCode, 0, "");
	}
};

TEST_F(SampleConfigTest, NamesEveryCountryWithACallingCodeAndResolvesEachPlanCallingCodeToItsMainCountry)
{
	const std::vector<std::string>& names = rules()->getCountryList();
	EXPECT_EQ(245u, names.size());
	for (const std::string& name : names)
		EXPECT_NE("", ZelNumberingConfig::getInstance()->getCountryNumber(rules()->getCountryCode(name))) << name;
	const std::map<std::string, std::string> mainCountries{{"1", "US"}, {"7", "RU"}, {"31", "NL"}, {"32", "BE"},
		{"33", "FR"}, {"41", "CH"}, {"43", "AT"}, {"44", "GB"}, {"49", "DE"}, {"52", "MX"}, {"54", "AR"}, {"57", "CO"},
		{"61", "AU"}, {"64", "NZ"}, {"353", "IE"}};
	for (const auto& [number, country] : mainCountries)
		EXPECT_EQ(country, rules()->getCountryCodeFromNumber(number)) << number;
}

/// One area-code table: "0" + code + subscriber keeps the code as its area, for every code of the file.
struct Table
{
	const char* name;
	const char* country;
	const char* callingCode;
	const char* siteArea;
	std::size_t codeCount;
	/// Length of area code and subscriber together for the closed plans, 0 for a 6-digit subscriber number.
	std::size_t nationalLength;
};

class SampleAreaCodeTableTest: public SampleConfigTest, public ::testing::WithParamInterface<Table>
{
protected:
	static std::vector<std::string> codes(const std::string& callingCode)
	{
		Poco::AutoPtr<Poco::Util::PropertyFileConfiguration> file(new Poco::Util::PropertyFileConfiguration(
			std::string(NUMBERING_SAMPLE_CONFIG) + "r7731cnp_" + callingCode + "_default.properties"));
		std::vector<std::string> all;
		for (int i = 0; file->has(Poco::format("AC_%04d", i)); ++i)
			all.push_back(file->getString(Poco::format("AC_%04d", i)));
		return all;
	}

	/// Subscriber digits after code that do not begin another, longer code of the table.
	static std::string subscriber(const std::string& code, std::size_t length, const std::vector<std::string>& all)
	{
		for (char first = '2'; first <= '8'; ++first)
		{
			const std::string candidate = first + std::string(length - 1, '3');
			bool extendsAnother = false;
			for (const std::string& other : all)
				extendsAnother =
					extendsAnother || (other.size() > code.size() && (code + candidate).rfind(other, 0) == 0);
			if (!extendsAnother) return candidate;
		}
		return std::string(length, '3');
	}
};

TEST_P(SampleAreaCodeTableTest, ReadsEveryCodeAsTheAreaOfANationalNumber)
{
	const Table& table = GetParam();
	const std::vector<std::string> all = codes(table.callingCode);
	ZelDialRulesItem at = site(table.country, table.siteArea);
	EXPECT_EQ(table.codeCount, all.size());
	std::vector<std::string> misread;
	for (const std::string& code : all)
	{
		const std::string sub = subscriber(code, table.nationalLength ? table.nationalLength - code.size() : 6, all);
		const std::string expected = std::string("+") + table.callingCode + " (" + code + ") " + sub;
		if (rules()->makeCanonicalNumber(&at, "0" + code + sub, "") != expected) misread.push_back(code);
	}
	EXPECT_EQ(std::vector<std::string>(), misread);
}

INSTANTIATE_TEST_SUITE_P(TablePlans,
	SampleAreaCodeTableTest,
	::testing::Values(Table{"Netherlands", "NL", "31", "20", 152, 9},
		Table{"Belgium", "BE", "32", "2", 40, 8},
		Table{"Austria", "AT", "43", "1", 1096, 0},
		Table{"UnitedKingdom", "GB", "44", "20", 1488, 10},
		Table{"Germany", "DE", "49", "30", 5307, 0},
		Table{"Argentina", "AR", "54", "11", 322, 10},
		Table{"Australia", "AU", "61", "2", 89, 9},
		Table{"Ireland", "IE", "353", "1", 59, 0}),
	numbering::test::RowName());

} // namespace
