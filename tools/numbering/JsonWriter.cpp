// JsonWriter.cpp

#include "JsonWriter.h"

#include "Poco/JSON/Object.h"
#include "Poco/TextConverter.h"
#include "Poco/UTF8Encoding.h"

namespace numbering {
namespace tool {

namespace {

/// value with every byte sequence that is not UTF-8 replaced by "?": JSON text must be UTF-8, and input lines
/// may hold anything.
std::string validUtf8(const std::string& value)
{
	Poco::UTF8Encoding utf8;
	std::string valid;
	Poco::TextConverter(utf8, utf8).convert(value, valid);
	return valid;
}

} // namespace

JsonWriter::JsonWriter(const std::vector<std::string>& columns, std::ostream& out):
	ResultWriter(columns, out)
{
	this->out() << '[';
}

void JsonWriter::write(const Row& row)
{
	Poco::JSON::Object object(Poco::JSON_PRESERVE_KEY_ORDER);
	for (std::size_t i = 0; i < columns().size() && i < row.values.size(); ++i)
		object.set(columns()[i], validUtf8(row.values[i]));
	out() << (m_First ? "\n" : ",\n");
	object.stringify(out());
	m_First = false;
}

void JsonWriter::finish()
{
	out() << (m_First ? "]\n" : "\n]\n");
	ResultWriter::finish();
}

} // namespace tool
} // namespace numbering
