// ConcurrencyTest.cpp

#include "numbering/ZelNumberingConfig.h"
#include "numbering/ZelNumberingRules.h"

#include "SampleSitesFixture.h"
#include "dialable/ZelDialable.h"
#include "dialable/ZelDialableManager.h"
#include "plans/ZelCNPManager.h"

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <utility>
#include <vector>

using numbering::ZelCNPManager;
using numbering::ZelDialable;
using numbering::ZelDialableManager;
using numbering::ZelDialRulesItem;
using numbering::ZelNumberingConfig;
using numbering::ZelNumberingRules;
using numbering::test::SampleSitesFixture;

namespace {

const int threadCount = 8;

/// Does what the README asks of a host before it goes concurrent: the facade and the plan manager exist and
/// every country's dialable maker is made. Only the plans of every other site country are built, so that
/// the threads race to build the others under the plan manager's lock.
void prepareAsAHost(const std::vector<std::string>& siteCountries)
{
	ZelNumberingRules::getInstance();
	ZelNumberingConfig* config = ZelNumberingConfig::getInstance();
	for (const std::string& name : config->getCountryList())
		ZelDialableManager::getInstance()->getDialable(config->getCountryNumber(config->getCountryCodeFromName(name)));
	for (std::size_t i = 0; i < siteCountries.size(); i += 2)
		ZelCNPManager::getInstance()->getCNP(siteCountries[i]);
}

using ConcurrencyTest = SampleSitesFixture;

TEST_F(ConcurrencyTest, EightThreadsGetTheSingleThreadedResults)
{
	const std::vector<std::pair<ZelDialRulesItem*, std::string>> work = workload();
	std::vector<std::string> expected;
	for (const auto& item : work)
		expected.push_back(convertAll(item.first, item.second));
	resetLibrary();
	prepareAsAHost(siteCountries());

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
	{
		for (std::size_t i = 0; i < work.size(); ++i)
		{
			EXPECT_EQ(expected[i], results[t][i]) << "thread " << t << ", site " << work[i].first->getCountryId()
												  << ", number '" << work[i].second << "'";
		}
	}
}

// The README's advice to hosts: one makePhoneNumber per configured country before going concurrent.
TEST_F(ConcurrencyTest, WarmUpOfTheReadmeLeavesNoDialableMakerToBuild)
{
	const std::vector<std::pair<ZelDialRulesItem*, std::string>> work = workload();
	ZelNumberingRules* rules = ZelNumberingRules::getInstance();
	ZelNumberingConfig* config = ZelNumberingConfig::getInstance();
	for (const std::string& name : rules->getCountryList())
	{
		rules->makePhoneNumber(
			work.front().first, "+" + config->getCountryNumber(rules->getCountryCode(name)) + " 1234567");
	}
	const int makers = ZelDialable::_count;
	for (const auto& item : work)
		convertAll(item.first, item.second);
	EXPECT_EQ(makers, ZelDialable::_count);
}

} // namespace
