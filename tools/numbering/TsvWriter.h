// TsvWriter.h
// Tab-separated output for scripts and spreadsheets.

#ifndef Numbering_TsvWriter_INCLUDED
#define Numbering_TsvWriter_INCLUDED

#include "ResultWriter.h"

namespace numbering {
namespace tool {

/// A header line of column names, then one line per row; tabs and line breaks inside values become blanks.
class TsvWriter: public ResultWriter
{
public:
	/// Writes the header at once.
	TsvWriter(const std::vector<std::string>& columns, std::ostream& out);

	void write(const Row& row) override;

private:
	void writeLine(const std::vector<std::string>& values);
};

} // namespace tool
} // namespace numbering

#endif // Numbering_TsvWriter_INCLUDED
