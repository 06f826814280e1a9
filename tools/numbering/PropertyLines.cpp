// PropertyLines.cpp

#include "PropertyLines.h"

#include "Poco/Ascii.h"
#include "Poco/String.h"

namespace numbering {
namespace tool {

namespace {

const int END = std::char_traits<char>::eof();

/// Reads characters and counts lines: "\n", "\r\n" and a lone "\r" each end one.
class CountingReader
{
public:
	explicit CountingReader(std::istream& in):
		m_In(in)
	{
	}

	int get()
	{
		const int c = m_In.get();
		if (c == '\n' || (c == '\r' && m_In.peek() != '\n')) ++m_Line;
		return c;
	}

	int peek()
	{
		return m_In.peek();
	}

	int line() const
	{
		return m_Line;
	}

private:
	std::istream& m_In;
	int m_Line = 1;
};

/// Reads one value character as the property reader does and returns it (an escape's second character), or 0
/// at the end of the line. A backslash before a line end joins the next line.
int valueChar(CountingReader& reader)
{
	for (;;)
	{
		int c = reader.get();
		if (c != '\\') return c == '\n' || c == '\r' ? 0 : c;
		c = reader.get();
		if (c == '\r' && reader.peek() == '\n') reader.get();
		if (c != '\r' && c != '\n') return c;
	}
}

void skipValue(CountingReader& reader)
{
	int c = valueChar(reader);
	while (c != END && c != 0)
		c = valueChar(reader);
}

} // namespace

PropertyLines::PropertyLines(std::istream& in)
{
	CountingReader reader(in);
	for (int c = reader.get(); c != END; c = reader.get())
	{
		if (Poco::Ascii::isSpace(c)) continue;
		const int line = reader.line();
		if (c == '#' || c == '!')
		{
			while (c != END && c != '\n' && c != '\r')
				c = reader.get();
			continue;
		}
		std::string key;
		for (; c != END && c != '=' && c != ':' && c != '\r' && c != '\n'; c = reader.get())
			key += static_cast<char>(c);
		if (c == '=' || c == ':') skipValue(reader);
		m_Lines[Poco::trim(key)].push_back(line);
	}
}

int PropertyLines::lineOf(const std::string& key) const
{
	auto found = m_Lines.find(key);
	if (found != m_Lines.end()) return found->second.back();
	const std::string parent = key + ".";
	auto child = m_Lines.lower_bound(parent);
	return child != m_Lines.end() && child->first.compare(0, parent.size(), parent) == 0 ? child->second.front() : 0;
}

std::vector<std::string> PropertyLines::keys() const
{
	std::vector<std::string> all;
	for (const auto& entry : m_Lines)
		all.push_back(entry.first);
	return all;
}

std::map<std::string, std::vector<int>> PropertyLines::repeatedKeys() const
{
	std::map<std::string, std::vector<int>> repeated;
	for (const auto& [key, lines] : m_Lines)
		if (lines.size() > 1) repeated.emplace(key, lines);
	return repeated;
}

} // namespace tool
} // namespace numbering
