// ThrowMessage.h
// Test helper: the text of the exception a call throws, for assertions on fixed exception messages.

#ifndef Numbering_ThrowMessage_INCLUDED
#define Numbering_ThrowMessage_INCLUDED

#include <string>

namespace numbering {
namespace test {

/// Runs call and returns what() of the Exception it throws, "no exception" when it throws nothing. Any other
/// exception passes through, so a wrong type fails the test with its own message.
/// EXPECT_EQ("Country code 'ZZ' is not supported", thrownMessage<ZelUnsupportedCountryException>([&] { ... }));
template <typename Exception, typename Call>
std::string thrownMessage(Call call)
{
	try
	{
		call();
	}
	catch (const Exception& exception)
	{
		return exception.what();
	}
	return "no exception";
}

} // namespace test
} // namespace numbering

#endif // Numbering_ThrowMessage_INCLUDED
