// ExceptionsTest.cpp

#include "numbering/ZelUnsupportedCountryException.h"
#include "numbering/number_format_exception.h"

#include <gtest/gtest.h>

using numbering::number_format_exception;
using numbering::ZelUnsupportedCountryException;

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

} // namespace
