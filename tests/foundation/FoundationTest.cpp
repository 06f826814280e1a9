// FoundationTest.cpp

#include "numbering/Logger.h"
#include "numbering/ZelClid.h"
#include "numbering/ZelEnumOrigin.h"
#include "numbering/ZelUnsupportedCountryException.h"
#include "numbering/number_format_exception.h"

#include "support/LogCapture.h"

#include "Poco/AutoPtr.h"

#include <gtest/gtest.h>

#include <memory>

using numbering::number_format_exception;
using numbering::ZelClid;
using numbering::ZelEnumOrigin;
using numbering::ZelUnsupportedCountryException;
using numbering::test::LogCapture;

namespace {

TEST(ZelUnsupportedCountryExceptionTest, NamesTheCodeAndTheReasonWhenGiven)
{
	const std::runtime_error& plain = ZelUnsupportedCountryException("ZZ");
	EXPECT_STREQ("Country code 'ZZ' is not supported", plain.what());
	const std::runtime_error& withReason =
		ZelUnsupportedCountryException("ZZ", "Dialing rules configuration can not be loaded");
	EXPECT_STREQ(
		"Country code 'ZZ' is not supported : Dialing rules configuration can not be loaded", withReason.what());
}

TEST(NumberFormatExceptionTest, IsAnInvalidArgumentCarryingTheMessage)
{
	const std::invalid_argument& error = number_format_exception("Unexpected digit: x");
	EXPECT_STREQ("Unexpected digit: x", error.what());
}

TEST(LoggerTest, GivesAFreshLoggerEachCallThatWritesLevelNameSeparatorAndMessageAtLevelOne)
{
	// The library keeps its loggers for the life of the process; the test gives its own back.
	std::unique_ptr<Logger> first(Logger::getLogger("same"));
	std::unique_ptr<Logger> second(Logger::getLogger("same"));
	EXPECT_NE(first, second);
	EXPECT_EQ("same", second->getName());
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

TEST(ZelClidTest, DefaultIsEmptyFromAny)
{
	Poco::AutoPtr<ZelClid> clid(new ZelClid());
	EXPECT_EQ("", clid->getNumber());
	EXPECT_EQ(&ZelEnumOrigin::ANY, clid->getOrigin());
	EXPECT_EQ("Any", clid->getOrigin()->getName());
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
