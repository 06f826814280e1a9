// Text.cpp

#include "support/Text.h"

#include "Poco/Ascii.h"
#include "Poco/String.h"

#include <algorithm>

namespace numbering {
namespace detail {

void trimNumber(std::string& number)
{
	Poco::trimInPlace(number);
	if (isCanonical(number))
	{
		const auto kept =
			std::find_if_not(number.begin() + 1, number.end(), [](char c) { return Poco::Ascii::isSpace(c); });
		number.erase(number.begin() + 1, kept);
	}
}

bool isAllDigits(const std::string& text)
{
	return !text.empty() && std::all_of(text.begin(), text.end(), isDigit);
}

std::string::size_type skipDigits(const std::string& text, std::string::size_type from, std::string::size_type end)
{
	while (from < end && isDigit(text[from]))
		++from;
	return from;
}

std::string::size_type skipNonDigits(const std::string& text, std::string::size_type from, std::string::size_type end)
{
	while (from < end && !isDigit(text[from]))
		++from;
	return from;
}

std::string digitsOf(const std::string& text, std::string::size_type from, std::string::size_type end)
{
	// Sized for the whole range, filled from the front, and cut to the digits found: one buffer, no growth.
	std::string digits(end > from ? end - from : 0, '0');
	std::string::size_type kept = 0;
	for (; from < end; ++from)
		if (isDigit(text[from])) digits[kept++] = text[from];
	digits.resize(kept);
	return digits;
}

} // namespace detail
} // namespace numbering
