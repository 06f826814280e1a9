// LoggerTest.cpp

#include "numbering/Logger.h"

#include "support/LogCapture.h"

#include <gtest/gtest.h>

#include <memory>

using numbering::test::LogCapture;

namespace {

TEST(LoggerTest, GetLoggerReturnsAFreshObjectEachCall)
{
	// The library keeps its loggers for the life of the process; the test gives its own back.
	std::unique_ptr<Logger> first(Logger::getLogger("same"));
	std::unique_ptr<Logger> second(Logger::getLogger("same"));
	EXPECT_NE(first, second);
	EXPECT_EQ("same", second->getName());
}

TEST(LoggerTest, WritesLevelWordNameSeparatorAndMessageAtLevelOne)
{
	LogCapture::clear();
	std::unique_ptr<Logger> logger(Logger::getLogger("N9numbering18ZelNumberingConfigE"));
	logger->debug("loadDialingRules()");
	logger->info("");
	logger->error("boom");
	const std::vector<std::string> expected{"DEBUG N9numbering18ZelNumberingConfigE - loadDialingRules()",
		"INFO N9numbering18ZelNumberingConfigE - ", "ERROR N9numbering18ZelNumberingConfigE - boom"};
	EXPECT_EQ(expected, LogCapture::lines());
	EXPECT_EQ((std::vector<short>{1, 1, 1}), LogCapture::levels());
}

} // namespace
