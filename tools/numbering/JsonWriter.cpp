// JsonWriter.cpp

#include "JsonWriter.h"

#include "Poco/JSON/Object.h"

namespace numbering {
namespace tool {

JsonWriter::JsonWriter(const std::vector<std::string>& columns, std::ostream& out):
	ResultWriter(columns, out)
{
	this->out() << '[';
}

void JsonWriter::write(const Row& row)
{
	Poco::JSON::Object object(Poco::JSON_PRESERVE_KEY_ORDER);
	for (std::size_t i = 0; i < columns().size() && i < row.values.size(); ++i)
		object.set(columns()[i], row.values[i]);
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
