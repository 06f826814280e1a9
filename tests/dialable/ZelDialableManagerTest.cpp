// ZelDialableManagerTest.cpp

#include "dialable/ZelDialableManager.h"

#include "dialable/ZelDialableFactory.h"
#include "support/ConfigFixture.h"
#include "support/LogCapture.h"

#include <gtest/gtest.h>

#include <typeinfo>

using numbering::test::LogCapture;

namespace numbering {
namespace {

class ZelDialableManagerTest: public test::ConfigFixture
{
};

TEST_F(ZelDialableManagerTest, KeepsOneMakerPerCountryNumberUntilReset)
{
	const int before = ZelDialable::_count;
	ZelDialableManager* manager = ZelDialableManager::getInstance();
	ZelDialable* french = manager->getDialable("33");
	ASSERT_NE(nullptr, french);
	EXPECT_EQ(french, manager->getDialable("33"));
	EXPECT_NE(french, manager->getDialable("44"));
	EXPECT_EQ(before + 2, ZelDialable::_count);
	ZelDialableManager::resetInstance();
	EXPECT_EQ(before, ZelDialable::_count);
}

TEST_F(ZelDialableManagerTest, TracesLookupsAndBuildsOnlyOnce)
{
	Logger::m_Traces = true;
	ZelDialableManager* manager = ZelDialableManager::getInstance();
	LogCapture::clear();
	manager->getDialable("33");
	manager->getDialable("33");
	const std::string prefix = "DEBUG N9numbering18ZelDialableManagerE - ";
	const std::vector<std::string> expected{
		prefix + "getDialable('33')", prefix + "loadDialableClass('33')", prefix + "getDialable('33')"};
	EXPECT_EQ(expected, LogCapture::lines());
}

TEST_F(ZelDialableManagerTest, EmptyCountryNumberGetsNoMaker)
{
	Logger::m_Traces = true;
	const int before = ZelDialable::_count;
	EXPECT_EQ(nullptr, ZelDialableManager::getInstance()->getDialable(""));
	EXPECT_EQ(nullptr, ZelDialableManager::getInstance()->getDialable(""));
	EXPECT_EQ(before, ZelDialable::_count);
	EXPECT_EQ(2, LogCapture::count("loadDialableClass('strCountryNumber=NULL')"));
}

TEST(ZelDialableFactoryTest, CountriesWithoutVariantGetTheGenericMaker)
{
	for (const char* countryNumber : {"", "1", "33", "610", "077"})
	{
		ZelDialable* maker = ZelDialableFactory::CreateInstance(countryNumber);
		EXPECT_EQ(typeid(ZelDialable), typeid(*maker)) << "country number '" << countryNumber << "'";
		maker->release();
	}
}

} // namespace
} // namespace numbering
