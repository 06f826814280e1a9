// LoggerTest.cpp

#include "numbering/Logger.h"

#include "support/LogCapture.h"

#include <gtest/gtest.h>

using numbering::test::LogCapture;

namespace {

class LoggerTest: public ::testing::Test
{
protected:
	void SetUp() override
	{
		LogCapture::clear();
	}
};

TEST_F(LoggerTest, GetLoggerReturnsAFreshObjectEachCall)
{
	Logger* first = Logger::getLogger("same");
	Logger* second = Logger::getLogger("same");
	EXPECT_NE(first, second);
	EXPECT_EQ("same", second->getName());
}

TEST_F(LoggerTest, WritesLevelWordNameSeparatorAndMessageAtLevelOne)
{
	Logger* logger = Logger::getLogger("N9numbering18ZelNumberingConfigE");
	logger->debug("loadDialingRules()");
	logger->info("");
	logger->error("boom");
	const std::vector<std::string> expected{"DEBUG N9numbering18ZelNumberingConfigE - loadDialingRules()",
		"INFO N9numbering18ZelNumberingConfigE - ", "ERROR N9numbering18ZelNumberingConfigE - boom"};
	EXPECT_EQ(expected, LogCapture::lines());
	EXPECT_EQ((std::vector<short>{1, 1, 1}), LogCapture::levels());
}

} // namespace
