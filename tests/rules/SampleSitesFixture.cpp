// SampleSitesFixture.cpp

#include "SampleSitesFixture.h"

#include "numbering/ZelClid.h"
#include "numbering/ZelEnumOrigin.h"
#include "numbering/ZelNumberingConfig.h"
#include "numbering/ZelNumberingRules.h"

#include "Poco/AutoPtr.h"

#include <exception>

namespace numbering {
namespace test {

namespace {

struct SiteRow
{
	const char* country;
	const char* extPrefix;
	const char* areaCode;
	std::vector<std::string> nationalNumbers;
};

// The fifteen plan countries, a second country on a shared calling code, and two countries without a plan.
const std::vector<SiteRow>& siteRows()
{
	static const std::vector<SiteRow> rows{{"US", "9", "212", {"212 555 0123", "1 415 555 0123", "011 49 30 1234567"}},
		{"RU", "9", "495", {"8 495 123 4567", "8 10 49 30 1234567"}}, {"KZ", "9", "727", {"8 727 123 4567"}},
		{"NL", "0", "20", {"020 123 4567", "06 12345678"}}, {"BE", "0", "2", {"02 123 45 67", "0470 12 34 56"}},
		{"FR", "0", "1", {"01 23 45 67 89", "06 12 34 56 78"}}, {"CH", "0", "44", {"044 123 45 67", "079 123 45 67"}},
		{"AT", "0", "1", {"01 234 5678", "0316 123456"}}, {"GB", "9", "20", {"020 7946 0123", "07700 900123"}},
		{"DE", "0", "30", {"030 1234567", "089 1234567", "0151 12345678"}},
		{"MX", "0", "55", {"55 1234 5678", "044 55 1234 5678"}},
		{"AR", "0", "11", {"011 15 4321 5678", "0221 456 7890"}},
		{"CO", "0", "1", {"09 1 2345678", "3001234567", "005 49 30 123456"}},
		{"AU", "0", "2", {"02 9876 5432", "0412 345 678"}}, {"NZ", "0", "9", {"09 123 4567", "021 123 4567"}},
		{"IE", "9", "1", {"01 234 5678", "087 123 4567"}}, {"ES", "0", "", {"912 345 678"}},
		{"IT", "0", "", {"06 1234 5678"}}};
	return rows;
}

// International numbers to every plan country and two others, internal numbers and service codes.
const std::vector<std::string> sampleNumbers{"+1 212 555 0123", "+7 495 123 4567", "+7 727 123 4567", "+31 20 123 4567",
	"+32 2 123 45 67", "+33 1 23 45 67 89", "+41 44 123 45 67", "+43 1 234 5678", "+44 20 7946 0123", "+49 30 1234567",
	"+49 (89) 1234567", "+52 55 1234 5678", "+54 11 4321 5678", "+57 1 234 5678", "+61 2 9876 5432", "+64 9 123 4567",
	"+353 1 234 5678", "+34 912 345 678", "+39 06 1234 5678", "0049 30 1234567", "1234", "*21#"};

template <typename Call>
std::string orWhatItThrows(Call call)
{
	try
	{
		return call();
	}
	catch (const std::exception& exception)
	{
		return std::string("throws ") + exception.what();
	}
}

} // namespace

void SampleSitesFixture::SetUp()
{
	ConfigFixture::SetUp();
	ZelNumberingConfig::setConfigDirectory(NUMBERING_SAMPLE_CONFIG);
	for (const SiteRow& row : siteRows())
		m_Sites.push_back(std::make_unique<ZelDialRulesItem>(row.country, row.extPrefix, 5, row.areaCode, 0, ""));
}

void SampleSitesFixture::TearDown()
{
	m_Sites.clear();
	ConfigFixture::TearDown();
}

std::vector<std::pair<ZelDialRulesItem*, std::string>> SampleSitesFixture::workload()
{
	std::vector<std::pair<ZelDialRulesItem*, std::string>> work;
	for (std::size_t i = 0; i < m_Sites.size(); ++i)
	{
		for (const std::string& number : sampleNumbers)
			work.emplace_back(m_Sites[i].get(), number);
		for (const std::string& number : siteRows()[i].nationalNumbers)
			work.emplace_back(m_Sites[i].get(), number);
	}
	return work;
}

std::vector<std::string> SampleSitesFixture::siteCountries()
{
	std::vector<std::string> countries;
	for (const SiteRow& row : siteRows())
		countries.push_back(row.country);
	return countries;
}

std::string SampleSitesFixture::convertAll(ZelDialRulesItem* site, const std::string& number)
{
	ZelNumberingRules* rules = ZelNumberingRules::getInstance();
	const std::string canonical = rules->makeCanonicalNumber(site, number, "");
	const std::string clid = orWhatItThrows([&] {
		Poco::AutoPtr<ZelClid> made(rules->makeClid(site, number));
		if (made.isNull()) return std::string("no clid");
		return made->getNumber() + " " + (made->getOrigin() == nullptr ? "no origin" : made->getOrigin()->getName());
	});
	return canonical + "|" + rules->makePhoneNumber(site, number) + "|" + rules->makePhoneNumber(site, canonical) +
		   "|" + rules->addExternalPrefix(site, number) + "|" +
		   orWhatItThrows([&] { return rules->makeGSMCanonicalNumber(site, number, true); }) + "|" + clid;
}

} // namespace test
} // namespace numbering
