// ZelEnumOriginTest.cpp

#include "numbering/ZelEnumOrigin.h"

#include "support/RowName.h"

#include <gtest/gtest.h>

using numbering::ZelEnumOrigin;

namespace {

struct OriginCase
{
	const ZelEnumOrigin* origin;
	const char* name;
	int id;
};

class ZelEnumOriginTest: public ::testing::TestWithParam<OriginCase>
{
};

TEST_P(ZelEnumOriginTest, HasItsNameAndTheIdOfItsPlaceInTheList)
{
	EXPECT_EQ(GetParam().name, GetParam().origin->getName());
	EXPECT_EQ(GetParam().id, GetParam().origin->getId());
}

INSTANTIATE_TEST_SUITE_P(Origins,
	ZelEnumOriginTest,
	::testing::Values(OriginCase{&ZelEnumOrigin::ANY, "Any", 1},
		OriginCase{&ZelEnumOrigin::INTERNATIONAL, "International", 2},
		OriginCase{&ZelEnumOrigin::NATIONAL, "National", 3},
		OriginCase{&ZelEnumOrigin::PRIVATE_1, "Private", 4},
		OriginCase{&ZelEnumOrigin::PUBLIC_1, "Public", 5}),
	numbering::test::RowName());

TEST(TypesafeEnumTest, ComparesByIdOnly)
{
	EXPECT_TRUE(ZelEnumOrigin::NATIONAL == ZelEnumOrigin::NATIONAL);
	EXPECT_FALSE(ZelEnumOrigin::NATIONAL != ZelEnumOrigin::NATIONAL);
	EXPECT_TRUE(ZelEnumOrigin::NATIONAL != ZelEnumOrigin::PUBLIC_1);
	EXPECT_FALSE(ZelEnumOrigin::NATIONAL == ZelEnumOrigin::PUBLIC_1);
	EXPECT_TRUE(ZelEnumOrigin::PRIVATE_1 < ZelEnumOrigin::PUBLIC_1);
	EXPECT_FALSE(ZelEnumOrigin::PUBLIC_1 < ZelEnumOrigin::PRIVATE_1);
	EXPECT_FALSE(ZelEnumOrigin::ANY < ZelEnumOrigin::ANY);
}

} // namespace
