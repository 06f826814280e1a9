// ZelDialableManagerTest.cpp

#include "dialable/ZelDialableManager.h"

#include "dialable/ZelDialableFactory.h"
#include "dialable/ZelDialable_52.h"
#include "dialable/ZelDialable_54.h"
#include "dialable/ZelDialable_57.h"
#include "dialable/ZelDialable_61.h"
#include "dialable/ZelDialable_7.h"
#include "support/ConfigFixture.h"
#include "support/LogCapture.h"
#include "support/RowName.h"

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

struct FactoryCase
{
	const char* name;
	std::string countryNumber;
	const std::type_info& made;
};

class ZelDialableFactoryTest: public test::ConfigFixture, public ::testing::WithParamInterface<FactoryCase>
{
};

/// Variants are chosen by the whole country number: neighbours and padded forms get the generic maker.
TEST_P(ZelDialableFactoryTest, MakesTheClassOfTheExactCountryNumber)
{
	const FactoryCase& c = GetParam();
	Poco::AutoPtr<ZelDialable> maker(ZelDialableFactory::CreateInstance(c.countryNumber));
	ASSERT_FALSE(maker.isNull());
	EXPECT_EQ(c.made, typeid(*maker));
}

INSTANTIATE_TEST_SUITE_P(CountryNumbers,
	ZelDialableFactoryTest,
	::testing::Values(FactoryCase{"Australia", "61", typeid(ZelDialable_61)},
		FactoryCase{"Russia", "7", typeid(ZelDialable_7)},
		FactoryCase{"Mexico", "52", typeid(ZelDialable_52)},
		FactoryCase{"Argentina", "54", typeid(ZelDialable_54)},
		FactoryCase{"Colombia", "57", typeid(ZelDialable_57)},
		FactoryCase{"Empty", "", typeid(ZelDialable)},
		FactoryCase{"NorthAmerica", "1", typeid(ZelDialable)},
		FactoryCase{"NewZealand", "64", typeid(ZelDialable)},
		FactoryCase{"LongerNumber", "610", typeid(ZelDialable)},
		FactoryCase{"LeadingZero", "07", typeid(ZelDialable)},
		FactoryCase{"Padded", " 7", typeid(ZelDialable)}),
	numbering::test::RowName());

} // namespace
} // namespace numbering
