// ResultWriter.cpp

#include "ResultWriter.h"

#include "JsonWriter.h"
#include "TextWriter.h"
#include "TsvWriter.h"

#include "Poco/Exception.h"

namespace numbering {
namespace tool {

std::unique_ptr<ResultWriter> ResultWriter::create(
	const std::string& format, const std::vector<std::string>& columns, std::ostream& out)
{
	if (format == "text") return std::make_unique<TextWriter>(columns, out);
	if (format == "tsv") return std::make_unique<TsvWriter>(columns, out);
	if (format == "json") return std::make_unique<JsonWriter>(columns, out);
	throw Poco::InvalidArgumentException("unknown format '" + format + "' (text, tsv or json)");
}

ResultWriter::ResultWriter(const std::vector<std::string>& columns, std::ostream& out):
	m_Columns(columns),
	m_Out(out)
{
}

ResultWriter::~ResultWriter() = default;

void ResultWriter::finish()
{
	m_Out.flush();
}

const std::vector<std::string>& ResultWriter::columns() const
{
	return m_Columns;
}

std::ostream& ResultWriter::out()
{
	return m_Out;
}

} // namespace tool
} // namespace numbering
