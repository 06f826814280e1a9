// PropertyFile.h
// Reading of the library's property files: a site file with its "_default" twin, and lists of numbered keys.

#ifndef Numbering_PropertyFile_INCLUDED
#define Numbering_PropertyFile_INCLUDED

#include "numbering/Logger.h"

#include "Poco/AutoPtr.h"
#include "Poco/Util/PropertyFileConfiguration.h"

#include <functional>
#include <string>

namespace numbering {
namespace detail {

/// The property file at path or, when it is missing or cannot be opened (a directory included), the one at
/// defaultPath. Before falling back, writes missingText (path is missing) or unreadableText (path cannot be
/// opened) at info level on logger; an empty text is not written. Throws Poco::FileNotFoundException when
/// defaultPath is missing and Poco::OpenFileException when it cannot be opened.
Poco::AutoPtr<Poco::Util::PropertyFileConfiguration> openPropertyFile(const std::string& path,
	const std::string& defaultPath,
	Logger* logger,
	const std::string& missingText,
	const std::string& unreadableText);

/// Hands visit the values of prefix + "0000", prefix + "0001", ... up to prefix + "9998", in that order. The
/// first missing key ends the list by throwing Poco::NotFoundException; what visit throws ends it as well.
void forEachNumberedValue(const Poco::Util::AbstractConfiguration& file,
	const std::string& prefix,
	const std::function<void(const std::string&)>& visit);

} // namespace detail
} // namespace numbering

#endif // Numbering_PropertyFile_INCLUDED
