// ZelCharsTreeTest.cpp

#include "trees/ZelCharsTree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

using numbering::ZelCharsTree;
using numbering::ZelCharsTreeElement;

namespace {

/// The rendering's lines after "Root : ", sorted, since children come in the hash map's order.
std::vector<std::string> sortedLines(const std::string& text)
{
	std::vector<std::string> lines;
	std::string::size_type start = 0;
	for (std::string::size_type end; (end = text.find('\n', start)) != std::string::npos; start = end + 1)
		lines.push_back(text.substr(start, end - start));
	lines.push_back(text.substr(start));
	EXPECT_EQ("Root : ", lines.front());
	lines.erase(lines.begin());
	std::sort(lines.begin(), lines.end());
	return lines;
}

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
	try
	{
		tree.insert("");
		FAIL() << "no exception";
	}
	catch (const std::invalid_argument& e)
	{
		EXPECT_STREQ(" Unexpected value:", e.what());
	}
}

TEST_F(ZelCharsTreeTest, RendersOneUnindentedLinePerNode)
{
	const std::vector<std::string> expected{"1", "2", "3 (true)", "4 (true)", "6 (true)"};
	EXPECT_EQ(expected, sortedLines(tree.ToString()));
	EXPECT_EQ("Root : ", ZelCharsTree().ToString());
}

TEST_F(ZelCharsTreeTest, AssignmentMergesCodesIntoTheTarget)
{
	tree.insert("45");
	ZelCharsTree other;
	other.insert("789");
	other.insert("125");
	other = tree;
	EXPECT_TRUE(other.isAreaCode("45"));
	EXPECT_TRUE(other.isAreaCode("789"));
	// Only whole subtrees under new keys are copied: the existing "1" subtree is kept as it was.
	EXPECT_TRUE(other.isAreaCode("125"));
	EXPECT_FALSE(other.isAreaCode("123"));
}

class ZelCharsTreeElementTest: public ::testing::Test
{
protected:
	ZelCharsTreeElement root{'\0'};
};

TEST_F(ZelCharsTreeElementTest, ExtendingACodeKeepsItsMark)
{
	root.insert(std::string("123"));
	root.insert(std::string("1234"));
	ZelCharsTreeElement* three = root.get('1')->get('2')->get('3');
	EXPECT_TRUE(three->isAreaCode());
	EXPECT_TRUE(three->get('4')->isAreaCode());
}

TEST_F(ZelCharsTreeElementTest, MergeKeepsTheExistingNodesMark)
{
	root.insert(std::string("123"));
	root.insert(std::string("12"));
	EXPECT_FALSE(root.get('1')->get('2')->isAreaCode());
	EXPECT_EQ(1, root.numberOfStoredCodes());
}

TEST_F(ZelCharsTreeElementTest, CountsMarkedNodesBelowItself)
{
	for (const char* code : {"123", "126", "1234"})
		root.insert(std::string(code));
	root.setAreaCode(true);
	EXPECT_EQ(3, root.numberOfStoredCodes());
	EXPECT_EQ(1, root.get('1')->get('2')->get('3')->numberOfStoredCodes());
}

TEST_F(ZelCharsTreeElementTest, EmptyStringChangesNothing)
{
	const int before = ZelCharsTreeElement::_count;
	root.insert(std::string());
	EXPECT_EQ(before, ZelCharsTreeElement::_count);
	EXPECT_EQ("Root : ", root.ToString());
}

TEST_F(ZelCharsTreeElementTest, IndentIsTheDepthForEveryDescendant)
{
	root.insert(std::string("12"));
	EXPECT_EQ("Root : \n  1\n  2 (true)", root.ToString(2));
}

TEST_F(ZelCharsTreeElementTest, ReleaseAtZeroDeletesTheSubtree)
{
	const int before = ZelCharsTreeElement::_count;
	auto* node = new ZelCharsTreeElement('5');
	node->insert(std::string("55"));
	node->duplicate();
	node->release();
	EXPECT_EQ(before + 3, ZelCharsTreeElement::_count);
	node->release();
	EXPECT_EQ(before, ZelCharsTreeElement::_count);
}

TEST(ZelCharsTreeLifetimeTest, DeletingATreeFreesEveryNode)
{
	const int before = ZelCharsTreeElement::_count;
	{
		auto tree = std::make_unique<ZelCharsTree>();
		for (const char* code : {"30", "301", "3012", "89", "8031", "30"})
			tree->insert(code);
		ZelCharsTree copy;
		copy = *tree;
		EXPECT_LT(before, ZelCharsTreeElement::_count);
	}
	EXPECT_EQ(before, ZelCharsTreeElement::_count);
}

} // namespace
