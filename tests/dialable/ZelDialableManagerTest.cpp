// ZelDialableManagerTest.cpp

#include "dialable/ZelDialableManager.h"

#include "dialable/ZelDialableFactory.h"
#include "dialable/ZelDialable_7.h"
#include "support/ConfigFixture.h"
#include "support/LogCapture.h"

#include "Poco/AutoPtr.h"

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

TEST_F(ZelDialableManagerTest, EmptyCountryNumberGetsNoMaker)
{
	Logger::m_Traces = true;
	const int before = ZelDialable::_count;
	EXPECT_EQ(nullptr, ZelDialableManager::getInstance()->getDialable(""));
	EXPECT_EQ(nullptr, ZelDialableManager::getInstance()->getDialable(""));
	EXPECT_EQ(before, ZelDialable::_count);
	EXPECT_EQ(2, LogCapture::count("loadDialableClass('strCountryNumber=NULL')"));
}

TEST_F(ZelDialableManagerTest, FactoryChoosesAVariantByTheWholeCountryNumber)
{
	// Each variant's class shows in the worked examples of its country; neighbours and padded forms get the
	// generic maker.
	ZelDialableFactory factory;
	Poco::AutoPtr<ZelDialable> russian(factory.CreateInstance("7"));
	EXPECT_EQ(typeid(ZelDialable_7), typeid(*russian));
	for (const char* number : {"", "1", "64", "610", "07", " 7"})
	{
		Poco::AutoPtr<ZelDialable> maker(ZelDialableFactory::CreateInstance(number));
		ASSERT_FALSE(maker.isNull()) << number;
		EXPECT_EQ(typeid(ZelDialable), typeid(*maker)) << number;
	}
}

} // namespace
} // namespace numbering
