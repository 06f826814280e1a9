// JsonWriter.h
// JSON output: one array of objects, written as the rows come.

#ifndef Numbering_JsonWriter_INCLUDED
#define Numbering_JsonWriter_INCLUDED

#include "ResultWriter.h"

namespace numbering {
namespace tool {

/// "[" at once, one object per row on its own line, keyed by column name in column order, and "]" at finish.
class JsonWriter: public ResultWriter
{
public:
	JsonWriter(const std::vector<std::string>& columns, std::ostream& out);

	void write(const Row& row) override;

	void finish() override;

private:
	bool m_First = true;
};

} // namespace tool
} // namespace numbering

#endif // Numbering_JsonWriter_INCLUDED
