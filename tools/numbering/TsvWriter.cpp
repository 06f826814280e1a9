// TsvWriter.cpp

#include "TsvWriter.h"

#include <algorithm>

namespace numbering {
namespace tool {

TsvWriter::TsvWriter(const std::vector<std::string>& columns, std::ostream& out):
	ResultWriter(columns, out)
{
	writeLine(columns);
}

void TsvWriter::write(const Row& row)
{
	writeLine(row.values);
}

void TsvWriter::writeLine(const std::vector<std::string>& values)
{
	for (std::size_t i = 0; i < values.size(); ++i)
	{
		std::string value = values[i];
		std::replace_if(
			value.begin(), value.end(), [](char c) { return c == '\t' || c == '\n' || c == '\r'; }, ' ');
		out() << (i > 0 ? "\t" : "") << value;
	}
	out() << '\n';
}

} // namespace tool
} // namespace numbering
