// ZelCharsTreeTest.cpp

#include "trees/ZelCharsTree.h"

#include "support/ThrowMessage.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

using numbering::ZelCharsTree;
using numbering::ZelCharsTreeElement;

namespace {

class ZelCharsTreeTest: public ::testing::Test
{
protected:
	void SetUp() override
	{
		for (const char* code : {"123", "126", "1234"})
			tree.insert(code);
	}

	ZelCharsTree tree;
};

TEST_F(ZelCharsTreeTest, IsPresentGivesTheLongestPathIgnoringMarks)
{
	EXPECT_EQ("12", tree.isPresent("1299"));
	EXPECT_EQ("1234", tree.isPresent("123456"));
	EXPECT_EQ("", tree.isPresent("9123"));
	EXPECT_EQ("", tree.isPresent(""));
}

TEST_F(ZelCharsTreeTest, IsAreaCodeNeedsAMarkedEndOfAWholePath)
{
	EXPECT_TRUE(tree.isAreaCode("123"));
	EXPECT_TRUE(tree.isAreaCode("1234"));
	EXPECT_FALSE(tree.isAreaCode("12"));
	EXPECT_FALSE(tree.isAreaCode("12345"));
	EXPECT_FALSE(tree.isAreaCode(""));
}

TEST_F(ZelCharsTreeTest, RefusesAnEmptyString)
{
	EXPECT_EQ(" Unexpected value:", numbering::test::thrownMessage<std::invalid_argument>([this] { tree.insert(""); }));
}

TEST_F(ZelCharsTreeTest, AssignmentMergesOnlySubtreesUnderNewKeys)
{
	tree.insert("45");
	ZelCharsTree other;
	other.insert("125");
	other = tree;
	EXPECT_TRUE(other.isAreaCode("45"));
	EXPECT_TRUE(other.isAreaCode("125"));
	EXPECT_FALSE(other.isAreaCode("123"));
}

TEST(ZelCharsTreeElementTest, StoringAPathKeepsTheMarksItFinds)
{
	ZelCharsTreeElement root('\0');
	root.insert(std::string("123"));
	root.insert(std::string("1234"));
	root.insert(std::string("12"));
	ZelCharsTreeElement* two = root.get('1')->get('2');
	EXPECT_FALSE(two->isAreaCode());
	EXPECT_TRUE(two->get('3')->isAreaCode());
	EXPECT_TRUE(two->get('3')->get('4')->isAreaCode());
	root.insert(std::string("126"));
	EXPECT_EQ(3, root.numberOfStoredCodes());
}

TEST(ZelCharsTreeElementTest, RendersEveryDescendantAtTheSameIndent)
{
	ZelCharsTreeElement root('\0');
	EXPECT_EQ("Root : ", root.ToString());
	root.insert(std::string("12"));
	root.insert(std::string("123"));
	EXPECT_EQ("Root : \n1\n2 (true)\n3 (true)", root.ToString());
	EXPECT_EQ("Root : \n  1\n  2 (true)\n  3 (true)", root.ToString(2));
}

TEST(ZelCharsTreeLifetimeTest, DeletingATreeFreesEveryNode)
{
	const int before = ZelCharsTreeElement::_count;
	{
		ZelCharsTree tree;
		for (const char* code : {"30", "301", "3012", "89", "8031", "30"})
			tree.insert(code);
		ZelCharsTree copy;
		copy = tree;
		EXPECT_LT(before, ZelCharsTreeElement::_count);
	}
	EXPECT_EQ(before, ZelCharsTreeElement::_count);
}

} // namespace
