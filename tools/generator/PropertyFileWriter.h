// PropertyFileWriter.h
// Writes one property file of the sample configuration.

#ifndef Numbering_PropertyFileWriter_INCLUDED
#define Numbering_PropertyFileWriter_INCLUDED

#include "Poco/FileStream.h"

#include <string>

namespace numbering {
namespace generator {

/// "key=value" lines under a comment header, in the order they are added.
class PropertyFileWriter
{
public:
	/// Creates (or truncates) path and writes the header, one "# " line per line of comment.
	PropertyFileWriter(const std::string& path, const std::string& comment);

	void add(const std::string& key, const std::string& value);

	/// Adds the values under "<prefix>0000", "<prefix>0001", ... (the numbered keys of the plan files).
	template <typename Container>
	void addNumbered(const std::string& prefix, const Container& values)
	{
		int index = 0;
		for (const std::string& value : values)
			add(numberedKey(prefix, index++), value);
	}

	/// Number of properties added.
	int count() const;

private:
	static std::string numberedKey(const std::string& prefix, int index);

	Poco::FileOutputStream m_Stream;
	int m_Count = 0;
};

} // namespace generator
} // namespace numbering

#endif // Numbering_PropertyFileWriter_INCLUDED
