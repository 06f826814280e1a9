// TextWriter.h
// Plain-text output for people.

#ifndef Numbering_TextWriter_INCLUDED
#define Numbering_TextWriter_INCLUDED

#include "ResultWriter.h"

#include <cstddef>

namespace numbering {
namespace tool {

/// A command with one result column prints only the result, one line per number, like a filter. Other
/// commands print a header and columns of fixed width (a longer value pushes the rest of its line on), so
/// that no row needs to be held back to align the table.
class TextWriter: public ResultWriter
{
public:
	TextWriter(const std::vector<std::string>& columns, std::ostream& out);

	void write(const Row& row) override;

private:
	void writeLine(const std::vector<std::string>& values);

	bool isFilter() const;

	std::vector<std::size_t> m_Widths;
	bool m_HeaderWritten = false;
};

} // namespace tool
} // namespace numbering

#endif // Numbering_TextWriter_INCLUDED
