// ZelCNPManagerTest.cpp

#include "plans/ZelCNPManager.h"

#include "numbering/Logger.h"
#include "numbering/ZelNumberingConfig.h"

#include "plans/ZelCNPFactory.h"
#include "plans/ZelCNP_49.h"
#include "support/ConfigFixture.h"
#include "support/LogCapture.h"
#include "support/RowName.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <future>
#include <string>
#include <thread>
#include <vector>

using numbering::ZelCNP;
using numbering::ZelCNP_49;
using numbering::ZelCNPFactory;
using numbering::ZelCNPManager;
using numbering::test::LogCapture;

namespace {

const char* const DIALING_RULES = "DE=49:00:EFG:0FG:G:Germany:P\nES=34:00:EFG:0FG:G:Spain:P\n";

class ZelCNPManagerTest: public numbering::test::ConfigFixture
{
protected:
	void SetUp() override
	{
		ConfigFixture::SetUp();
		writeFile("dialingrules.properties", DIALING_RULES);
		writeFile("r7731cnp_49.properties", "AC_0000=89\nAC_0001=8031\n");
		Logger::m_Traces = true;
		manager = ZelCNPManager::getInstance();
		LogCapture::clear();
	}

	void TearDown() override
	{
		ZelCNPManager::resetInstance();
		ConfigFixture::TearDown();
	}

	/// Number of German plans built since the last LogCapture::clear().
	static int germanPlansBuilt()
	{
		return LogCapture::count("N9numbering9ZelCNP_49E - ZelCNP_49()");
	}

	ZelCNPManager* manager = nullptr;
};

TEST_F(ZelCNPManagerTest, BuildsAPlanOnceAndLendsTheSamePointer)
{
	const int plans = ZelCNP::_count;
	ZelCNP* first = manager->getCNP("DE");
	ASSERT_NE(nullptr, dynamic_cast<ZelCNP_49*>(first));
	EXPECT_EQ(first, manager->getCNP("DE"));
	EXPECT_EQ(1, germanPlansBuilt());
	EXPECT_EQ(plans + 1, ZelCNP::_count);
	ZelCNPManager::resetInstance();
	EXPECT_EQ(plans, ZelCNP::_count);
}

TEST_F(ZelCNPManagerTest, FailedKeyIsNotTriedAgainUntilReset)
{
	writeFile("dialingrules.properties", "ES=34:00:EFG:0FG:G:Spain:P\n");
	numbering::ZelNumberingConfig::resetInstance();
	EXPECT_EQ(nullptr, manager->getCNP("DE"));
	// Germany becomes known, but the manager answers from its not-found list.
	writeFile("dialingrules.properties", DIALING_RULES);
	numbering::ZelNumberingConfig::resetInstance();
	EXPECT_EQ(nullptr, manager->getCNP("DE"));
	EXPECT_EQ(1, LogCapture::count("loadCNPClass('DE')"));
	ZelCNPManager::resetInstance();
	EXPECT_NE(nullptr, ZelCNPManager::getInstance()->getCNP("DE"));
}

struct Failure
{
	const char* name;
	const char* key;
	const char* listedAs;
};

class ZelCNPManagerFailureTest: public ZelCNPManagerTest, public ::testing::WithParamInterface<Failure>
{
};

TEST_P(ZelCNPManagerFailureTest, AnswersNullAndListsTheKey)
{
	EXPECT_EQ(nullptr, manager->getCNP(GetParam().key));
	EXPECT_TRUE(manager->isCountryNotFound(GetParam().listedAs));
	EXPECT_EQ(0, germanPlansBuilt());
}

INSTANTIATE_TEST_SUITE_P(Keys,
	ZelCNPManagerFailureTest,
	::testing::Values(Failure{"OneCharacterUnchanged", "d", "d"},
		Failure{"Empty", "", ""},
		Failure{"UnknownCountry", "XX", "XX"},
		Failure{"CountryWithoutPlanUpperCased", "es", "ES"},
		Failure{"LongKeyUpperCased", "deu", "DEU"}),
	numbering::test::RowName());

TEST_F(ZelCNPManagerTest, LowerCaseKeyIsRebuiltOnEveryRequest)
{
	ZelCNP* stored = manager->getCNP("de");
	ASSERT_NE(nullptr, stored);
	EXPECT_EQ(stored, manager->getCNP("DE"));
	const int plans = ZelCNP::_count;
	// The cache already holds "DE": the plan built for "de" is not stored and is released at once, and the
	// stored one is lent in its place.
	EXPECT_EQ(stored, manager->getCNP("de"));
	EXPECT_EQ(plans, ZelCNP::_count);
	EXPECT_EQ(2, germanPlansBuilt());
	EXPECT_FALSE(manager->isCountryNotFound("de"));
	EXPECT_EQ(stored, manager->getCNP("DE"));
}

TEST_F(ZelCNPManagerTest, ConcurrentFirstRequestsBuildOnePlan)
{
	// A long table keeps the first construction busy while the other threads arrive.
	std::string table;
	for (int index = 0; index < 3000; ++index)
	{
		char line[32];
		std::snprintf(line, sizeof(line), "AC_%04d=%d\n", index, 2000 + index);
		table += line;
	}
	writeFile("r7731cnp_49.properties", table);
	numbering::ZelNumberingConfig::getInstance();
	std::promise<void> start;
	std::shared_future<void> started = start.get_future().share();
	std::vector<std::future<ZelCNP*>> results;
	for (int i = 0; i < 8; ++i)
	{
		results.push_back(std::async(std::launch::async, [this, started] {
			started.wait();
			return manager->getCNP("DE");
		}));
	}
	start.set_value();
	ZelCNP* first = results.front().get();
	ASSERT_NE(nullptr, first);
	for (auto result = results.begin() + 1; result != results.end(); ++result)
		EXPECT_EQ(first, result->get());
	EXPECT_EQ(1, germanPlansBuilt());
}

TEST_F(ZelCNPManagerTest, FactoryKnowsOnlyExactCallingCodes)
{
	for (const char* number : {"", "34", "490", "049", " 49", "4", "3530", "11"})
		EXPECT_EQ(nullptr, ZelCNPFactory::CreateInstance(number)) << number;
	// Through an object as well as through the class: hosts write either. Each calling code's plan class shows
	// in the worked examples of its country.
	ZelCNPFactory factory;
	Poco::AutoPtr<ZelCNP> plan(factory.CreateInstance("49"));
	EXPECT_NE(nullptr, dynamic_cast<ZelCNP_49*>(plan.get()));
}

} // namespace
