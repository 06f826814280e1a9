// NumberingApp.h
// The numbering command-line tool: options, configuration, and the run of one command.

#ifndef Numbering_NumberingApp_INCLUDED
#define Numbering_NumberingApp_INCLUDED

#include "Command.h"
#include "SiteOptions.h"

#include "Poco/Util/Application.h"

#include <string>
#include <vector>

namespace numbering {
namespace tool {

/// "numbering COMMAND [OPTIONS] [NUMBER...]": runs one command on the numbers given, or on the lines of
/// standard input when none are, and writes the results on standard output and diagnostics on standard error.
class NumberingApp: public Poco::Util::Application
{
public:
	/// Exit statuses.
	enum Status
	{
		ALL_CONVERTED = 0,    ///< every number gave a result
		SOME_EMPTY = 1,       ///< at least one number gave an empty result
		USAGE_ERROR = 2,      ///< bad command line
		NO_CONFIGURATION = 3, ///< no dialing rules could be loaded; for lint: no configuration file at all
		LINT_CLEAN = 0,       ///< lint found no error
		LINT_ERRORS = 1       ///< lint found errors
	};

	NumberingApp();

	/// Writes the message and a hint to standard error; returns USAGE_ERROR.
	static int usageError(const std::string& message);

protected:
	void defineOptions(Poco::Util::OptionSet& options) override;

	void handleOption(const std::string& name, const std::string& value) override;

	int main(const std::vector<std::string>& args) override;

private:
	int execute(const Command& command, const std::vector<std::string>& numbers);

	/// Checks the configuration and, when a site is given, the round trip of its country's area codes.
	int lint();

	/// Where the sample configuration is installed, beside the tool.
	std::string installedSampleDirectory() const;

	void displayHelp() const;

	bool m_HelpRequested = false;
	bool m_VersionRequested = false;
	SiteOptions m_Site;
	std::string m_ConfigDirectory;
	std::string m_Pattern;
	std::string m_Format = "text";
};

} // namespace tool
} // namespace numbering

#endif // Numbering_NumberingApp_INCLUDED
