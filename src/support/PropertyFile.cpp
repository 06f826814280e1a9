// PropertyFile.cpp

#include "support/PropertyFile.h"

#include "Poco/Exception.h"
#include "Poco/File.h"

namespace numbering {
namespace detail {

namespace {

const int LAST_KEY_INDEX = 9998;

Poco::AutoPtr<Poco::Util::PropertyFileConfiguration> open(const std::string& path)
{
	// The property reader never sees the end of a stream that fails to read, as a directory's does. An empty
	// path is left to the reader, which reports it as a missing file.
	if (!path.empty() && Poco::File(path).isDirectory()) throw Poco::OpenFileException(path);
	return new Poco::Util::PropertyFileConfiguration(path);
}

} // namespace

Poco::AutoPtr<Poco::Util::PropertyFileConfiguration> openPropertyFile(const std::string& path,
	const std::string& defaultPath,
	Logger* logger,
	const std::string& missingText,
	const std::string& unreadableText)
{
	try
	{
		return open(path);
	}
	catch (const Poco::FileNotFoundException&)
	{
		if (!missingText.empty()) logger->info(missingText);
	}
	catch (const Poco::OpenFileException&)
	{
		if (!unreadableText.empty()) logger->info(unreadableText);
	}
	return open(defaultPath);
}

void forEachNumberedValue(const Poco::Util::AbstractConfiguration& file,
	const std::string& prefix,
	const std::function<void(const std::string&)>& visit)
{
	// Asking has() before each key would search every key twice: the missing key's exception ends the list.
	std::string key = prefix + "0000";
	for (int index = 0; index <= LAST_KEY_INDEX; ++index)
	{
		// Thousands of keys are read per file: rewriting the four digits at the end costs a fraction of
		// formatting each key anew.
		for (std::string::size_type i = key.size(), rest = index; i-- > prefix.size(); rest /= 10)
			key[i] = static_cast<char>('0' + rest % 10);
		visit(file.getString(key));
	}
}

} // namespace detail
} // namespace numbering
