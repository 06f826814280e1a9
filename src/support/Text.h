// Text.h
// Digit and text helpers of the library's own code.

#ifndef Numbering_Text_INCLUDED
#define Numbering_Text_INCLUDED

#include <string>

namespace numbering {
namespace detail {

/// True for the decimal digits 0 to 9 only, whatever the signedness of char.
inline bool isDigit(char c)
{
	return c >= '0' && c <= '9';
}

/// True when c is one of characters.
inline bool isOneOf(char c, const std::string& characters)
{
	return characters.find(c) != std::string::npos;
}

/// True when number begins with "+": the only test the library makes for a canonical number.
inline bool isCanonical(const std::string& number)
{
	return !number.empty() && number[0] == '+';
}

/// True when number holds the marker "***", which the conversions hand back untouched.
inline bool isMarked(const std::string& number)
{
	return number.find("***") != std::string::npos;
}

/// Trims number in place at both ends and, when it begins with "+", also right after the "+":
/// " + 33 1 " becomes "+33 1".
void trimNumber(std::string& number);

/// True when text is not empty and holds decimal digits only.
bool isAllDigits(const std::string& text);

/// Index of the first character in [from, end) that is not a digit, or end.
std::string::size_type skipDigits(const std::string& text, std::string::size_type from, std::string::size_type end);

/// Index of the first digit in [from, end), or end.
std::string::size_type skipNonDigits(const std::string& text, std::string::size_type from, std::string::size_type end);

/// The decimal digits of text in [from, end), every other character dropped.
std::string digitsOf(const std::string& text, std::string::size_type from, std::string::size_type end);

/// The decimal digits of text, every other character dropped: " 0 30-12" gives "03012".
inline std::string digitsOf(const std::string& text)
{
	return digitsOf(text, 0, text.size());
}

} // namespace detail
} // namespace numbering

#endif // Numbering_Text_INCLUDED
