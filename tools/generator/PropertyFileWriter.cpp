// PropertyFileWriter.cpp

#include "PropertyFileWriter.h"

#include "Poco/Format.h"
#include "Poco/StringTokenizer.h"

namespace numbering {
namespace generator {

PropertyFileWriter::PropertyFileWriter(const std::string& path, const std::string& comment):
	m_Stream(path)
{
	Poco::StringTokenizer lines(comment, "\n");
	for (const std::string& line : lines)
		m_Stream << "# " << line << '\n';
}

void PropertyFileWriter::add(const std::string& key, const std::string& value)
{
	m_Stream << key << '=' << value << '\n';
	++m_Count;
}

int PropertyFileWriter::count() const
{
	return m_Count;
}

std::string PropertyFileWriter::numberedKey(const std::string& prefix, int index)
{
	return prefix + Poco::format("%04d", index);
}

} // namespace generator
} // namespace numbering
