// LintTextWriter.h
// Plain-text output of "numbering lint", in the form compilers and editors read.

#ifndef Numbering_LintTextWriter_INCLUDED
#define Numbering_LintTextWriter_INCLUDED

#include "ResultWriter.h"

namespace numbering {
namespace tool {

/// One finding a line: "file:line: level: text".
class LintTextWriter: public ResultWriter
{
public:
	LintTextWriter(const std::vector<std::string>& columns, std::ostream& out);

	void write(const Row& row) override;
};

} // namespace tool
} // namespace numbering

#endif // Numbering_LintTextWriter_INCLUDED
