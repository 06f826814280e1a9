// ZelAreaCodeTreeTest.cpp

#include "trees/ZelAreaCodeTree.h"

#include "numbering/Logger.h"
#include "numbering/number_format_exception.h"

#include "support/LogCapture.h"
#include "support/RowName.h"
#include "support/ThrowMessage.h"
#include "trees/ZelCharsTreeElement.h"

#include <gtest/gtest.h>

#include <ostream>
#include <stdexcept>
#include <string>

using numbering::number_format_exception;
using numbering::ZelAreaCodeTree;
using numbering::ZelCharsTreeElement;
using numbering::test::LogCapture;
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
		Extraction{"UnknownFirstDigit", "987654321", ""},
		Extraction{"Empty", "", ""},
		Extraction{"Binary", "\x01\xff", ""}),
	numbering::test::RowName());

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

TEST_F(ZelAreaCodeTreeTest, TracesEachInsertionWhenSwitchedOn)
{
	const bool saved = Logger::m_Traces;
	Logger::m_Traces = true;
	LogCapture::clear();
	tree.insert("89");
	tree.insert("8");
	Logger::m_Traces = saved;
	const std::string prefix = "DEBUG N9numbering15ZelAreaCodeTreeE - ";
	const std::vector<std::string> expected{prefix + "Inserting '89' ...", prefix + "Insert successful for '89'",
		prefix + "Inserting '8' ...", prefix + "Insert failed for '8'"};
	EXPECT_EQ(expected, LogCapture::lines());
}

TEST(ZelAreaCodeTreeLifetimeTest, LastReleaseFreesTheTreeAndItsNodes)
{
	const int trees = ZelAreaCodeTree::_count;
	const int nodes = ZelCharsTreeElement::_count;
	auto* tree = new ZelAreaCodeTree;
	tree->insert("4711");
	tree->duplicate();
	tree->release();
	EXPECT_EQ(trees + 1, ZelAreaCodeTree::_count);
	tree->release();
	EXPECT_EQ(trees, ZelAreaCodeTree::_count);
	EXPECT_EQ(nodes, ZelCharsTreeElement::_count);
}

TEST(ZelAreaCodeTreeSelfTest, PrintsThreeExtractionsAndTheTree)
{
	::testing::internal::CaptureStdout();
	EXPECT_EQ(0, ZelAreaCodeTree::main(nullptr));
	const std::string output = ::testing::internal::GetCapturedStdout();
	const std::string head = "Extract area code from '123456789' : 123456"
							 "Extract area code from '123056789' : 123"
							 "Extract area code from '987654321' : Root : ";
	ASSERT_EQ(head, output.substr(0, head.size()));
	ZelAreaCodeTree expected;
	for (const char* code :
		{"123", "126", "1234", "235", "456", "789", "123456", "45698", "11234556", "7894614", "4711417"})
		expected.insert(code);
	EXPECT_EQ(expected.ToString(), output.substr(head.size() - std::string("Root : ").size()));
}

} // namespace
