// TextWriter.cpp

#include "TextWriter.h"

#include <algorithm>
#include <map>

namespace numbering {
namespace tool {

namespace {

// Room for the usual values of each column; unknown columns get their header's width.
const std::map<std::string, std::size_t> USUAL_WIDTHS = {
	{"number", 18},
	{"check", 16},
	{"canonical", 24},
	{"gsm", 18},
	{"dial", 17},
	{"prefix", 17},
	{"clid", 14},
	{"origin", 13},
	{"country", 7},
	{"area", 6},
	{"extension", 12},
	{"name", 44},
	{"code", 4},
};

const std::string COLUMN_GAP = "  ";

} // namespace

TextWriter::TextWriter(const std::vector<std::string>& columns, std::ostream& out):
	ResultWriter(columns, out)
{
	for (const std::string& column : columns)
	{
		auto usual = USUAL_WIDTHS.find(column);
		m_Widths.push_back(std::max(column.size(), usual == USUAL_WIDTHS.end() ? 0 : usual->second));
	}
}

void TextWriter::write(const Row& row)
{
	if (isFilter())
	{
		out() << row.values.back() << '\n';
		return;
	}
	if (!m_HeaderWritten)
	{
		writeLine(columns());
		m_HeaderWritten = true;
	}
	writeLine(row.values);
}

void TextWriter::writeLine(const std::vector<std::string>& values)
{
	std::string line;
	for (std::size_t i = 0; i < values.size(); ++i)
	{
		line += values[i];
		if (i + 1 < values.size())
			line += std::string(m_Widths[i] > values[i].size() ? m_Widths[i] - values[i].size() : 0, ' ') + COLUMN_GAP;
	}
	out() << line << '\n';
}

bool TextWriter::isFilter() const
{
	// The first column of a number command is the number as given; one more column is the result itself.
	return columns().size() == 2 && columns().front() == "number";
}

} // namespace tool
} // namespace numbering
