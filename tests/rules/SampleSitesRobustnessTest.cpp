// SampleSitesRobustnessTest.cpp
// Conversions from eight threads on the sample configuration, at a site in every plan country and a few others;
// run under ThreadSanitizer by scripts/sanitize.sh.

#include "numbering/ZelClid.h"
#include "numbering/ZelEnumOrigin.h"
#include "numbering/ZelNumberingConfig.h"
#include "numbering/ZelNumberingRules.h"

#include "dialable/ZelDialableManager.h"
#include "plans/ZelCNPManager.h"
#include "support/ConfigFixture.h"

#include "Poco/AutoPtr.h"

#include <gtest/gtest.h>

#include <atomic>
#include <exception>
#include <memory>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace numbering {
namespace {

struct SiteRow
{
	const char* country;
	const char* extPrefix;
	const char* areaCode;
};

// The fifteen plan countries, a second country on a shared calling code, and two countries without a plan.
const SiteRow SITES[] = {{"US", "9", "212"}, {"RU", "9", "495"}, {"KZ", "9", "727"}, {"NL", "0", "20"},
	{"BE", "0", "2"}, {"FR", "0", "1"}, {"CH", "0", "44"}, {"AT", "0", "1"}, {"GB", "9", "20"}, {"DE", "0", "30"},
	{"MX", "0", "55"}, {"AR", "0", "11"}, {"CO", "0", "1"}, {"AU", "0", "2"}, {"NZ", "0", "9"}, {"IE", "9", "1"},
	{"ES", "0", ""}, {"IT", "0", ""}};

// International numbers to every plan country and two others, internal numbers and service codes.
const std::vector<std::string> SAMPLE_NUMBERS{"+1 212 555 0123", "+7 495 123 4567", "+7 727 123 4567",
	"+31 20 123 4567", "+32 2 123 45 67", "+33 1 23 45 67 89", "+41 44 123 45 67", "+43 1 234 5678", "+44 20 7946 0123",
	"+49 30 1234567", "+49 (89) 1234567", "+52 55 1234 5678", "+54 11 4321 5678", "+57 1 234 5678", "+61 2 9876 5432",
	"+64 9 123 4567", "+353 1 234 5678", "+34 912 345 678", "+39 06 1234 5678", "0049 30 1234567", "1234", "*21#"};

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

/// Every conversion of number at site joined by "|", exceptions of unguarded operations included.
std::string convertAll(ZelDialRulesItem* site, const std::string& number)
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

/// Reads the sample configuration of the repository, so that every plan and every table is the real one.
using SampleSitesTest = test::ConfigFixture;

TEST_F(SampleSitesTest, EightThreadsGetTheSingleThreadedResults)
{
	ZelNumberingConfig::setConfigDirectory(NUMBERING_SAMPLE_CONFIG);
	std::vector<std::unique_ptr<ZelDialRulesItem>> sites;
	std::vector<std::pair<ZelDialRulesItem*, std::string>> work;
	std::vector<std::string> expected;
	for (const SiteRow& row : SITES)
	{
		sites.push_back(std::make_unique<ZelDialRulesItem>(row.country, row.extPrefix, 5, row.areaCode, 0, ""));
		for (const std::string& number : SAMPLE_NUMBERS)
			work.emplace_back(sites.back().get(), number);
	}
	for (const auto& item : work)
		expected.push_back(convertAll(item.first, item.second));
	// What the README asks of a host before it goes concurrent, but with only every other site's plan built, so
	// that the threads race to build the others.
	resetLibrary();
	ZelNumberingRules::getInstance();
	ZelNumberingConfig* config = ZelNumberingConfig::getInstance();
	for (const std::string& name : config->getCountryList())
		ZelDialableManager::getInstance()->getDialable(config->getCountryNumber(config->getCountryCodeFromName(name)));
	for (std::size_t i = 0; i < std::size(SITES); i += 2)
		ZelCNPManager::getInstance()->getCNP(SITES[i].country);

	const int threadCount = 8;
	std::vector<std::vector<std::string>> results(threadCount, std::vector<std::string>(work.size()));
	std::atomic<int> waiting{threadCount};
	std::vector<std::thread> threads;
	for (int t = 0; t < threadCount; ++t)
	{
		threads.emplace_back([&, t] {
			// Start together, each at another place of the work, so that first uses of a plan collide.
			--waiting;
			while (waiting > 0)
				std::this_thread::yield();
			for (std::size_t n = 0; n < work.size(); ++n)
			{
				const std::size_t i = (n + t * work.size() / threadCount) % work.size();
				results[t][i] = convertAll(work[i].first, work[i].second);
			}
		});
	}
	for (std::thread& thread : threads)
		thread.join();
	for (int t = 0; t < threadCount; ++t)
		EXPECT_EQ(expected, results[t]) << "thread " << t;
}

} // namespace
} // namespace numbering
