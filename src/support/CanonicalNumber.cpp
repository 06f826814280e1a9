// CanonicalNumber.cpp

#include "support/CanonicalNumber.h"

#include "support/Text.h"

#include "Poco/String.h"

#include <algorithm>
#include <iterator>

namespace numbering {
namespace detail {

CanonicalNumber::CanonicalNumber(const std::string& text, Index end):
	m_Text(text),
	m_End(end)
{
}

CanonicalNumber CanonicalNumber::byRuns(const std::string& text)
{
	CanonicalNumber number(text, text.size());
	number.readRuns(1, true);
	return number;
}

CanonicalNumber CanonicalNumber::forDialling(const std::string& text, Index bound)
{
	CanonicalNumber number(text, std::min(text.size(), bound));
	const bool bracketed = text.find('(') != std::string::npos && text.find(')') != std::string::npos;
	number.readRuns(skipNonDigits(text, 1, number.m_End), bracketed);
	return number;
}

CanonicalNumber CanonicalNumber::byBrackets(const std::string& text)
{
	CanonicalNumber number(text, text.size());
	number.m_Open = text.find('(');
	number.m_Close = text.find(')');
	return number;
}

CanonicalNumber CanonicalNumber::forPattern(const std::string& text)
{
	CanonicalNumber number = byBrackets(text);
	if (number.hasBrackets())
	{
		number.m_CountryEnd = text.find(' ', 1);
		number.m_AreaBegin = number.m_Open + 1;
		// The first ")" closes the area unless it stands before the "(".
		number.m_AreaEnd = number.m_Close > number.m_Open ? number.m_Close : text.find(')', number.m_AreaBegin);
		number.m_RestBegin = number.m_Close + 2;
	}
	return number;
}

void CanonicalNumber::readRuns(Index countryBegin, bool withArea)
{
	m_CountryBegin = countryBegin;
	m_CountryEnd = skipDigits(m_Text, countryBegin, m_End);
	m_AreaBegin = skipNonDigits(m_Text, m_CountryEnd, m_End);
	m_AreaEnd = withArea ? skipDigits(m_Text, m_AreaBegin, m_End) : m_AreaBegin;
	m_RestBegin = skipNonDigits(m_Text, m_AreaEnd, m_End);
}

std::string CanonicalNumber::restDigits() const
{
	return digitsOf(m_Text, m_RestBegin, m_End);
}

bool CanonicalNumber::isLaidOut() const
{
	return m_AreaBegin == m_CountryEnd + 2 && m_Text.compare(m_CountryEnd, 2, " (") == 0 &&
		   m_RestBegin == m_AreaEnd + 2 && m_Text.compare(m_AreaEnd, 2, ") ") == 0 &&
		   m_Text.find(' ', m_RestBegin) == std::string::npos;
}

std::string CanonicalNumber::laidOut() const
{
	std::string built;
	// Room for the blanks and parentheses that the layout may add.
	built.reserve(m_End + 4);
	built.append(m_Text, 0, m_CountryEnd);
	if (hasClosedArea())
	{
		built.append(" (").append(m_Text, m_AreaBegin, m_AreaEnd - m_AreaBegin).append(") ");
		std::remove_copy(m_Text.begin() + m_RestBegin, m_Text.begin() + m_End, std::back_inserter(built), ' ');
	}
	else if (m_AreaBegin < m_End)
	{
		built.append(" ").append(m_Text, m_AreaBegin, m_AreaEnd - m_AreaBegin);
	}
	return built;
}

void CanonicalNumber::requireParts() const
{
	// Reading on to a blank or a ")" that is not there runs off the end: the same exception, with the same text.
	if (m_CountryEnd == std::string::npos || m_AreaEnd == std::string::npos) static_cast<void>(m_Text.at(m_End));
}

std::string CanonicalNumber::countryBeforeBrackets() const
{
	std::string country = m_Text.substr(1, m_Open - 1);
	Poco::trimInPlace(country);
	return country;
}

std::string CanonicalNumber::bracketedArea() const
{
	if (m_Open == std::string::npos || m_Open == 0 || m_Close == std::string::npos || m_Close < m_Open + 2) return "";
	return m_Text.substr(m_Open + 1, m_Close - m_Open - 1);
}

std::string CanonicalNumber::digitsAfterArea() const
{
	const Index separator = m_Close != std::string::npos ? m_Close : m_Text.find(' ');
	return separator == std::string::npos ? std::string() : digitsOf(m_Text, separator + 1, m_End);
}

} // namespace detail
} // namespace numbering
