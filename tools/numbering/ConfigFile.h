// ConfigFile.h
// One configuration file of the library with its "_default" twin.

#ifndef Numbering_ConfigFile_INCLUDED
#define Numbering_ConfigFile_INCLUDED

#include "LintReport.h"
#include "PropertyLines.h"

#include "Poco/AutoPtr.h"
#include "Poco/Util/PropertyFileConfiguration.h"

#include <functional>
#include <string>

namespace numbering {
namespace tool {

/// The file of a pair that the library reads: the site's own file when it can be opened, else its default
/// twin. Holds that file's properties, as the library's property reader gives them, and the lines of its keys.
class ConfigFile
{
public:
	/// Called with each key; reads the value through valueOf where the loader reads it.
	using Visit = std::function<void(const std::string& key)>;

	ConfigFile(const std::string& sitePath, const std::string& defaultPath);

	/// True when one of the two files can be opened.
	bool exists() const;

	/// The file in force, or "" when neither can be opened.
	const std::string& path() const;

	/// The site file's path, whether or not it exists.
	const std::string& sitePath() const;

	/// Tells report the site file and then its default twin, so that findings come in that order.
	void addFilesTo(LintReport& report) const;

	/// The file in force's properties; call only when exists().
	const Poco::Util::AbstractConfiguration& properties() const;

	/// Every key of the file in force as written, "." and all, in key order (the loaders see only the part
	/// before a ".", a plan sees whole keys).
	std::vector<std::string> keys() const;

	/// The value of key as the library reads it; throws Poco::NotFoundException when there is none.
	std::string valueOf(const std::string& key) const;

	/// The line of key in the file in force, 0 when it has none.
	int lineOf(const std::string& key) const;

	/// Adds the findings about the pair itself (a default the site's file shadows, a site file with no default)
	/// and about keys written twice, of which only the last entry is read.
	void reportFiles(LintReport& report) const;

	/// Walks the top-level keys in the order the configuration loaders do and hands each to visit. A key whose
	/// value cannot be read (one with a "." is seen only up to it) ends the walk as it ends the loaders': that
	/// is reported with the number of keys left unread, and false returned.
	bool walkAsLoader(LintReport& report, const Visit& visit) const;

	/// Adds one finding at key's line.
	void add(LintReport& report, const std::string& key, LintReport::Effect effect, const std::string& text) const;

private:
	std::string m_SitePath;
	std::string m_DefaultPath;
	std::string m_Path;
	Poco::AutoPtr<Poco::Util::PropertyFileConfiguration> m_Properties;
	PropertyLines m_Lines;
};

} // namespace tool
} // namespace numbering

#endif // Numbering_ConfigFile_INCLUDED
