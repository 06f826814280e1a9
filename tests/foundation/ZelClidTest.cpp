// ZelClidTest.cpp

#include "numbering/ZelClid.h"

#include "Poco/AutoPtr.h"

#include <gtest/gtest.h>

using numbering::ZelClid;
using numbering::ZelEnumOrigin;

namespace {

/// Records its own destruction, so that tests can see when release() deletes it.
class TrackedClid: public ZelClid
{
public:
	explicit TrackedClid(bool& destroyed):
		m_Destroyed(destroyed)
	{
	}

	~TrackedClid() override
	{
		m_Destroyed = true;
	}

private:
	bool& m_Destroyed;
};

TEST(ZelClidTest, DefaultIsEmptyFromAnyAndEveryConstructionCountsEvenAfterRelease)
{
	const int before = ZelClid::_count;
	Poco::AutoPtr<ZelClid> clid(new ZelClid());
	EXPECT_EQ("", clid->getNumber());
	EXPECT_EQ(&ZelEnumOrigin::ANY, clid->getOrigin());
	(new ZelClid("+33 (1) 23456789", &ZelEnumOrigin::NATIONAL))->release();
	EXPECT_EQ(before + 2, ZelClid::_count);
}

TEST(ZelClidTest, DuplicateKeepsRecordAliveUntilLastRelease)
{
	bool destroyed = false;
	ZelClid* clid = new TrackedClid(destroyed);
	clid->duplicate();
	clid->release();
	EXPECT_FALSE(destroyed);
	clid->release();
	EXPECT_TRUE(destroyed);
}

} // namespace
