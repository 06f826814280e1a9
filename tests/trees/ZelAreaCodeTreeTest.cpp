// ZelAreaCodeTreeTest.cpp

#include "trees/ZelAreaCodeTree.h"

#include "numbering/number_format_exception.h"

#include "support/TableRows.h"
#include "support/ThrowMessage.h"
#include "trees/ZelCharsTree.h"
#include "trees/ZelCharsTreeElement.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

using numbering::number_format_exception;
using numbering::ZelAreaCodeTree;
using numbering::ZelCharsTree;
using numbering::ZelCharsTreeElement;
using numbering::test::thrownMessage;

namespace {

struct Extraction
{
	const char* name;
	const char* number;
	const char* expected;
};

class ZelAreaCodeTreeTest: public ::testing::TestWithParam<Extraction>
{
protected:
	void SetUp() override
	{
		for (const char* code : {"123", "126", "1234", "123456", "30", "301", "3012"})
			tree.insert(code);
	}

	ZelAreaCodeTree tree;
};

TEST_P(ZelAreaCodeTreeTest, ExtractsTheLongestStoredPrefix)
{
	EXPECT_EQ(GetParam().expected, tree.extractAreaCode(GetParam().number));
}

INSTANTIATE_TEST_SUITE_P(Numbers,
	ZelAreaCodeTreeTest,
	::testing::Values(Extraction{"LongestWins", "123456789", "123456"},
		Extraction{"FallsBackPastAnUnmarkedPath", "12345", "1234"},
		Extraction{"ShorterCodeWhenLongerDiverges", "1235", "123"},
		Extraction{"PathWithoutMarkIsNoCode", "12", ""},
		Extraction{"WholeNumberIsACode", "301", "301"},
		Extraction{"StopsAtANonDigit", "30-12", "30"},
		Extraction{"Empty", "", ""},
		Extraction{"Binary", "\x01\xff", ""}),
	numbering::test::rowName);

TEST_F(ZelAreaCodeTreeTest, RefusesAPathAlreadyPresent)
{
	EXPECT_FALSE(tree.insert("123"));
	EXPECT_FALSE(tree.insert("12"));
	EXPECT_EQ("", tree.extractAreaCode("12"));
	EXPECT_TRUE(tree.insert("127"));
}

TEST_F(ZelAreaCodeTreeTest, RejectsEmptyAndNonDigitInputUnchanged)
{
	const std::string before = tree.ToString();
	const auto formatError = [this](const std::string& digits) {
		return thrownMessage<number_format_exception>([&] { tree.insert(digits); });
	};
	EXPECT_EQ("strDigits empty", thrownMessage<std::invalid_argument>([this] { tree.insert(""); }));
	EXPECT_EQ("Unexpected digit:a at position: 2 in :12a4", formatError("12a4"));
	EXPECT_EQ("Unexpected digit:  at position: 1 in :1 2", formatError("1 2"));
	EXPECT_EQ(before, tree.ToString());
}

TEST(ZelCharsTreeTest, FindsTheLongestPathIgnoringMarksButACodeNeedsAMark)
{
	ZelCharsTree tree;
	for (const char* code : {"123", "126", "1234"})
		tree.insert(code);
	EXPECT_EQ("12", tree.isPresent("1299"));
	EXPECT_EQ("1234", tree.isPresent("123456"));
	EXPECT_EQ("", tree.isPresent("9123"));
	EXPECT_EQ("", tree.isPresent(""));
	EXPECT_TRUE(tree.isAreaCode("123"));
	EXPECT_TRUE(tree.isAreaCode("1234"));
	EXPECT_FALSE(tree.isAreaCode("12"));
	EXPECT_FALSE(tree.isAreaCode("12345"));
	EXPECT_FALSE(tree.isAreaCode(""));
	EXPECT_EQ(" Unexpected value:", thrownMessage<std::invalid_argument>([&tree] { tree.insert(""); }));
	// Assignment merges only the subtrees under keys the target lacks.
	tree.insert("45");
	ZelCharsTree other;
	other.insert("125");
	other = tree;
	EXPECT_TRUE(other.isAreaCode("45"));
	EXPECT_TRUE(other.isAreaCode("125"));
	EXPECT_FALSE(other.isAreaCode("123"));
}

TEST(ZelCharsTreeElementTest, StoringAPathKeepsTheMarksItFindsAndRendersEveryDescendantAtOneIndent)
{
	ZelCharsTreeElement root('\0');
	EXPECT_EQ("Root : ", root.ToString());
	root.insert(std::string("12"));
	root.insert(std::string("123"));
	EXPECT_EQ("Root : \n1\n2 (true)\n3 (true)", root.ToString());
	EXPECT_EQ("Root : \n  1\n  2 (true)\n  3 (true)", root.ToString(2));
	ZelCharsTreeElement other('\0');
	for (const char* code : {"123", "1234", "12"})
		other.insert(std::string(code));
	ZelCharsTreeElement* two = other.get('1')->get('2');
	EXPECT_FALSE(two->isAreaCode());
	EXPECT_TRUE(two->get('3')->isAreaCode());
	EXPECT_TRUE(two->get('3')->get('4')->isAreaCode());
	other.insert(std::string("126"));
	EXPECT_EQ(3, other.numberOfStoredCodes());
}

TEST_F(ZelAreaCodeTreeTest, RejectsANonDigitInFirstOrLastPlace)
{
	EXPECT_EQ("Unexpected digit:a at position: 2 in :12a",
		thrownMessage<number_format_exception>([this] { tree.insert("12a"); }));
	EXPECT_EQ("Unexpected digit:a at position: 0 in :a12",
		thrownMessage<number_format_exception>([this] { tree.insert("a12"); }));
	EXPECT_EQ("", tree.extractAreaCode("12a"));
}

TEST(ZelCharsTreeTest, StoresAnyCharacterEvenNul)
{
	ZelCharsTree tree;
	tree.insert(std::string("1\0", 2));
	EXPECT_EQ("1", tree.isPresent("1"));
	EXPECT_TRUE(tree.isAreaCode(std::string("1\0", 2)));
	tree.insert("1");
	EXPECT_FALSE(tree.isAreaCode("1"));
}

// Freeing the merged children too, or not freeing the head, shows in the sanitized run.
TEST(ZelCharsTreeElementTest, MergesASubtreeUnderAnExistingNodeAndFreesOnlyItsHead)
{
	ZelCharsTreeElement root('\0');
	root.insert(std::string("12"));
	auto* head = new ZelCharsTreeElement('1');
	auto* five = new ZelCharsTreeElement('5');
	five->setAreaCode(true);
	head->insert(five);
	root.insert(head);
	ZelCharsTreeElement* one = root.get('1');
	EXPECT_TRUE(one->get('2')->isAreaCode());
	EXPECT_TRUE(one->get('5')->isAreaCode());
	EXPECT_FALSE(one->isAreaCode());
}

} // namespace
