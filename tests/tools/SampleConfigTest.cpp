// SampleConfigTest.cpp
// The sample configuration as the library reads it; with the generator, also the number ranges its tables are
// generated from.

#include "numbering/ZelDialRulesItem.h"
#include "numbering/ZelNumberingConfig.h"
#include "numbering/ZelNumberingRules.h"

#include "support/ConfigFixture.h"
#include "support/TableRows.h"

#include "Poco/AutoPtr.h"
#include "Poco/Format.h"
#include "Poco/Util/PropertyFileConfiguration.h"

#ifdef NUMBERING_HAVE_GENERATOR
#include "NonGeographicWalker.h"

using i18n::phonenumbers::PhoneNumber;
using i18n::phonenumbers::PhoneNumberUtil;
#endif

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <map>
#include <set>
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

	/// External prefix 9: no national number begins with it, and 0 would make numbers with a trunk prefix ambiguous
	/// in the open plans.
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
	numbering::test::rowName);

#ifdef NUMBERING_HAVE_GENERATOR

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
class SampleNumberRangeTest: public SampleConfigTest, public ::testing::WithParamInterface<TableCountry>
{
protected:
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
};

TEST_P(SampleNumberRangeTest, KeepsTheCodeOfEveryNumberAndDialsItBackFromAbroad)
{
	const TableCountry& country = GetParam();
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
		const std::string canonical = rules()->makeCanonicalNumber(&at, "0" + number, "");
		if (country.splitsWithTable(number) &&
			(digitsOf(canonical) != callingCode + number || canonical.find("(0)") != std::string::npos))
			codeLost.push_back(number + " -> " + canonical);
		const std::string dialled = rules()->makePhoneNumber(&paris, canonical);
		// The dialled number carries the site's external prefix.
		const std::string back = rules()->makeCanonicalNumber(&paris, dialled, "", true);
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
	numbering::test::rowName);

#endif

} // namespace
