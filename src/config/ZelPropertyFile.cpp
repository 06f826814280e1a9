// ZelPropertyFile.cpp

#include "config/ZelPropertyFile.h"

#include "Poco/Exception.h"
#include "Poco/File.h"

namespace numbering {

Poco::AutoPtr<Poco::Util::PropertyFileConfiguration> ZelPropertyFile::open(const std::string& path)
{
	// The property reader never sees the end of a stream that fails to read, as a directory's does. An empty
	// path is left to the reader, which reports it as a missing file.
	if (!path.empty() && Poco::File(path).isDirectory()) throw Poco::OpenFileException(path);
	return new Poco::Util::PropertyFileConfiguration(path);
}

} // namespace numbering
