// CanonicalNumber.h
// Where the country, the area and the rest of a number written "+C (A) rest" lie.

#ifndef Numbering_CanonicalNumber_INCLUDED
#define Numbering_CanonicalNumber_INCLUDED

#include <string>

namespace numbering {
namespace detail {

/// A view of a number written "+C (A) rest": it finds once where the country, the area and the rest lie and
/// copies a part only when asked for it. It refers to its text, which must outlive it unchanged.
///
/// The facade's operations read a number that is not well laid out (a bracket missing, blanks, letters, empty
/// parts) each in its own way, and hosts rely on every one of these readings; hence the factories below. On a
/// number in the layout that validNumber gives, they all find the same parts.
class CanonicalNumber
{
public:
	using Index = std::string::size_type;

	/// The reading by runs of digits, which validNumber lays out: the country is the run of digits at index 1
	/// (empty when no digit stands there), the area the next run of digits, and the rest begins at the next
	/// digit after it. text must not be empty.
	static CanonicalNumber byRuns(const std::string& text);

	/// The reading of makeDialableNumber: as byRuns, but only the first bound characters are read, the country
	/// is the first run of digits after index 0, and there is an area run only when text holds both "(" and ")".
	/// text must not be empty.
	static CanonicalNumber forDialling(const std::string& text, Index bound);

	/// The reading by brackets, which the extract operations use: it finds the first "(" and the first ")".
	static CanonicalNumber byBrackets(const std::string& text);

	/// The reading of patterns: by brackets, and when both are there, the country runs from index 1 to the first
	/// blank, the area from the first "(" to the next ")", and the rest begins two characters after the first
	/// ")"; see requireParts.
	static CanonicalNumber forPattern(const std::string& text);

	/// The country's characters.
	std::string country() const
	{
		return m_Text.substr(m_CountryBegin, m_CountryEnd - m_CountryBegin);
	}

	/// The area's characters; "" for a dialling reading of a number without brackets.
	std::string area() const
	{
		return m_Text.substr(m_AreaBegin, m_AreaEnd - m_AreaBegin);
	}

	/// The digits of the rest, every other character dropped.
	std::string restDigits() const;

	/// Where the rest begins; for a pattern this may lie beyond the end of the text.
	Index restBegin() const
	{
		return m_RestBegin;
	}

	/// By runs: true when a character follows the area run, which closes the area even when no digit follows.
	bool hasClosedArea() const
	{
		return m_AreaEnd < m_End;
	}

	/// By runs: true when the text reads "+C (A) rest" already, without a blank in rest, so that laidOut would
	/// give it back unchanged. Call only when hasClosedArea().
	bool isLaidOut() const;

	/// By runs: "+C (A) rest" with the blanks of rest dropped (rest may be empty) when the area is closed,
	/// "+C A" when the area runs to the end, "+C" without an area.
	std::string laidOut() const;

	/// By runs: the country when a character follows it, else "": "+" and digits alone have no country of their
	/// own, the configuration must split them.
	std::string separatedCountry() const
	{
		return m_CountryEnd < m_End ? country() : std::string();
	}

	/// By brackets: true when the text holds both "(" and ")".
	bool hasBrackets() const
	{
		return m_Open != std::string::npos && m_Close != std::string::npos;
	}

	/// For a pattern: throws std::out_of_range, as reading past the end of the text does, when the text has no
	/// blank after index 0 or no ")" after the first "(". Call only when hasBrackets().
	void requireParts() const;

	/// For a pattern: the text between "+" and the first "(", trimmed: the key of the country's default pattern.
	std::string countryBeforeBrackets() const;

	/// By brackets: the text between the first "(" and the first ")", or "" unless both exist, the "(" stands
	/// after index 0 and the ")" after it with at least one character between them.
	std::string bracketedArea() const;

	/// By brackets: the digits after the first ")" or, without one, after the first blank; "" without either.
	std::string digitsAfterArea() const;

private:
	/// A view of text that reads [0, end); the factories find the parts.
	CanonicalNumber(const std::string& text, Index end);

	/// Reads the run of digits at countryBegin as the country, the next run as the area when withArea, and
	/// finds the rest's first digit after them.
	void readRuns(Index countryBegin, bool withArea);

	const std::string& m_Text;
	Index m_End;
	Index m_CountryBegin = 1;
	Index m_CountryEnd = std::string::npos;
	Index m_AreaBegin = std::string::npos;
	Index m_AreaEnd = std::string::npos;
	Index m_RestBegin = std::string::npos;
	Index m_Open = std::string::npos;
	Index m_Close = std::string::npos;
};

} // namespace detail
} // namespace numbering

#endif // Numbering_CanonicalNumber_INCLUDED
