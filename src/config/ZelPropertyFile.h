// ZelPropertyFile.h
// Opens the library's property files.

#ifndef Numbering_ZelPropertyFile_INCLUDED
#define Numbering_ZelPropertyFile_INCLUDED

#include "Poco/AutoPtr.h"
#include "Poco/Util/PropertyFileConfiguration.h"

#include <string>

namespace numbering {

/// The one way the library opens a configuration or plan file.
class ZelPropertyFile
{
public:
	/// The property file at path. Throws Poco::FileNotFoundException for a missing file and
	/// Poco::OpenFileException for one that cannot be opened, a directory included.
	static Poco::AutoPtr<Poco::Util::PropertyFileConfiguration> open(const std::string& path);
};

} // namespace numbering

#endif // Numbering_ZelPropertyFile_INCLUDED
