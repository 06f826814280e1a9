// SampleConfigTest.cpp

#include "numbering/ZelNumberingConfig.h"
#include "numbering/ZelNumberingRules.h"

#include "support/ConfigFixture.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

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

} // namespace
