// SampleNumberRangeTest.cpp

#include "numbering/ZelDialRulesItem.h"
#include "numbering/ZelNumberingConfig.h"
#include "numbering/ZelNumberingRules.h"

#include "NonGeographicWalker.h"
#include "support/ConfigFixture.h"
#include "support/TableRows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <set>
#include <string>
#include <vector>

using i18n::phonenumbers::PhoneNumber;
using i18n::phonenumbers::PhoneNumberUtil;
using numbering::ZelDialRulesItem;
using numbering::ZelNumberingConfig;
using numbering::ZelNumberingRules;

namespace {

/// A table country, two of its areas (a number of the first is made canonical at a site of the second), the
/// lengths of the national numbers its plan splits with its table and the beginnings of the numbers its plan
/// writes in a form of its own. The plan writes the other numbers without the table: they are only dialled.
struct TableCountry
{
	const char* name;
	const char* region;
	const char* area;
	const char* otherArea;
	std::size_t shortest;
	std::size_t longest;
	std::vector<std::string> writtenByPlan;

	bool splitsWithTable(const std::string& number) const
	{
		return number.size() >= shortest && number.size() <= longest &&
			   std::none_of(writtenByPlan.begin(), writtenByPlan.end(), [&number](const std::string& beginning) {
				   return number.compare(0, beginning.size(), beginning) == 0;
			   });
	}
};

std::string digitsOf(const std::string& text)
{
	std::string digits;
	std::copy_if(text.begin(), text.end(), std::back_inserter(digits), [](unsigned char c) { return std::isdigit(c); });
	return digits;
}

/// Numbers of the sample configuration's table countries, drawn from the metadata the tables are generated
/// from: the example number of every type, and numbers of every non-geographic range.
class SampleNumberRangeTest: public numbering::test::ConfigFixture, public ::testing::WithParamInterface<TableCountry>
{
protected:
	void SetUp() override
	{
		ConfigFixture::SetUp();
		ZelNumberingConfig::setConfigDirectory(NUMBERING_SAMPLE_CONFIG);
	}

	static std::set<std::string> numbers(const std::string& region)
	{
		const PhoneNumberUtil& util = *PhoneNumberUtil::GetInstance();
		std::set<std::string> all = numbering::generator::NonGeographicWalker(util).numbers(region);
		std::set<PhoneNumberUtil::PhoneNumberType> types;
		util.GetSupportedTypesForRegion(region, &types);
		for (PhoneNumberUtil::PhoneNumberType type : types)
		{
			PhoneNumber example;
			std::string national;
			if (util.GetExampleNumberForType(region, type, &example))
				util.GetNationalSignificantNumber(example, &national);
			all.insert(national);
		}
		all.erase("");
		return all;
	}

	/// External prefix 9: no national number begins with it.
	static ZelDialRulesItem site(const std::string& country, const std::string& areaCode)
	{
		return ZelDialRulesItem(country, "9", 5, areaCode, 0, "");
	}
};

TEST_P(SampleNumberRangeTest, KeepsTheCodeOfEveryNumberAndDialsItBackFromAbroad)
{
	const TableCountry& country = GetParam();
	ZelNumberingRules* rules = ZelNumberingRules::getInstance();
	const std::string callingCode = ZelNumberingConfig::getInstance()->getCountryNumber(country.region);
	ZelDialRulesItem here = site(country.region, country.area);
	ZelDialRulesItem elsewhere = site(country.region, country.otherArea);
	ZelDialRulesItem paris = site("FR", "1");
	std::vector<std::string> codeLost;
	std::vector<std::string> notDialledBack;
	for (const std::string& number : numbers(country.region))
	{
		// A site of an area the number is not in: the site's area code in the result shows a missing code.
		ZelDialRulesItem& at =
			number.compare(0, std::string(country.area).size(), country.area) == 0 ? elsewhere : here;
		const std::string canonical = rules->makeCanonicalNumber(&at, "0" + number, "");
		if (country.splitsWithTable(number) &&
			(digitsOf(canonical) != callingCode + number || canonical.find("(0)") != std::string::npos))
			codeLost.push_back(number + " -> " + canonical);
		const std::string dialled = rules->makePhoneNumber(&paris, canonical);
		// The dialled number carries the site's external prefix.
		const std::string back = rules->makeCanonicalNumber(&paris, dialled, "", true);
		if (back != canonical) notDialledBack.push_back(canonical + " -> " + dialled + " -> " + back);
	}
	EXPECT_EQ(std::vector<std::string>(), codeLost);
	EXPECT_EQ(std::vector<std::string>(), notDialledBack);
}

INSTANTIATE_TEST_SUITE_P(TablePlans,
	SampleNumberRangeTest,
	// Shorter German and Austrian numbers leave fewer than three digits behind their code; the Dutch, Belgian and
	// British plans write numbers of other lengths "+CC (0) ...", as the Belgian plan writes mobile (nine digits)
	// and service numbers and the Argentine plan eleven-digit freephone numbers; Argentine mobile numbers have
	// eleven digits with their "9"; Australian service numbers begin with 1.
	::testing::Values(TableCountry{"Netherlands", "NL", "20", "10", 9, 9, {}},
		TableCountry{"Belgium", "BE", "2", "9", 8, 8, {"70", "78", "800", "90"}},
		TableCountry{"Austria", "AT", "1", "316", 6, 13, {}},
		TableCountry{"UnitedKingdom", "GB", "20", "121", 9, 10, {}},
		TableCountry{"Germany", "DE", "30", "89", 6, 13, {}},
		TableCountry{"Argentina", "AR", "11", "351", 10, 11, {"800"}},
		TableCountry{"Australia", "AU", "2", "3", 9, 9, {"1"}},
		TableCountry{"Ireland", "IE", "1", "21", 5, 13, {}}),
	numbering::test::RowName());

} // namespace
