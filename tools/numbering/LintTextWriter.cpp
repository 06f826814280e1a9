// LintTextWriter.cpp

#include "LintTextWriter.h"

namespace numbering {
namespace tool {

LintTextWriter::LintTextWriter(const std::vector<std::string>& columns, std::ostream& out):
	ResultWriter(columns, out)
{
}

void LintTextWriter::write(const Row& row)
{
	const std::vector<std::string>& v = row.values;
	out() << v.at(0) << ':' << v.at(1) << ": " << v.at(2) << ": " << v.at(3) << '\n';
}

} // namespace tool
} // namespace numbering
