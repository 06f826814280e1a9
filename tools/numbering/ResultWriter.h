// ResultWriter.h
// Writes the rows of one command in the chosen output format.

#ifndef Numbering_ResultWriter_INCLUDED
#define Numbering_ResultWriter_INCLUDED

#include "Row.h"

#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace numbering {
namespace tool {

/// Streams rows as they come, so that any number of rows goes through in constant memory.
class ResultWriter
{
public:
	/// The writer for format "text", "tsv" or "json"; throws Poco::InvalidArgumentException for another name.
	static std::unique_ptr<ResultWriter> create(
		const std::string& format, const std::vector<std::string>& columns, std::ostream& out);

	virtual ~ResultWriter();

	virtual void write(const Row& row) = 0;

	/// Ends the output; call once, after the last row.
	virtual void finish();

protected:
	ResultWriter(const std::vector<std::string>& columns, std::ostream& out);

	const std::vector<std::string>& columns() const;

	std::ostream& out();

private:
	std::vector<std::string> m_Columns;
	std::ostream& m_Out;
};

} // namespace tool
} // namespace numbering

#endif // Numbering_ResultWriter_INCLUDED
