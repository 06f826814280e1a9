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

void infoUnlessEmpty(Logger* logger, const std::string& text)
{
	if (!text.empty()) logger->info(text);
}

/// Writes index into the four digits that end key: "AC_0000" becomes "AC_0042" for 42. Thousands of keys are
/// read per file, and rewriting four characters costs a fraction of formatting each key anew.
void setKeyIndex(std::string& key, int index)
{
	const std::string::size_type digits = 4;
	for (std::string::size_type i = key.size(); i-- > key.size() - digits; index /= 10)
		key[i] = static_cast<char>('0' + index % 10);
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
		infoUnlessEmpty(logger, missingText);
	}
	catch (const Poco::OpenFileException&)
	{
		infoUnlessEmpty(logger, unreadableText);
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
		setKeyIndex(key, index);
		visit(file.getString(key));
	}
}

} // namespace detail
} // namespace numbering
