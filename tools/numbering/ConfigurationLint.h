// ConfigurationLint.h
// Checks every file of a configuration directory as the library would read it.

#ifndef Numbering_ConfigurationLint_INCLUDED
#define Numbering_ConfigurationLint_INCLUDED

#include "numbering/ZelDialRulesItem.h"
#include "numbering/ZelNumberingRules.h"

#include "AreaCodeTableLint.h"
#include "ConfigFile.h"
#include "DialingRulesLint.h"
#include "LintReport.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace numbering {
namespace tool {

/// The library's files in the order it reads them: dialing rules, masks, activation switches, then the plan
/// files of the table countries and the Colombian operator file in the order of the plan factory. Each is
/// the site's own file or, when it is missing, its "_default" twin.
class ConfigurationLint
{
public:
	/// The files in directory, which ends with "/" (ZelNumberingConfig::getConfigDirectory()).
	explicit ConfigurationLint(const std::string& directory);

	/// True when the directory holds any of the library's files.
	bool foundAny() const;

	/// Adds the findings of every file to report.
	void check(LintReport& report);

	/// After check: the round trip of every area code of the site's country, when it has a table. rules must
	/// have read the same directory.
	void checkRoundTrip(ZelNumberingRules& rules, ZelDialRulesItem& site, LintReport& report) const;

private:
	void checkPlanFile(const std::string& callingCode, const ConfigFile& file, LintReport& report);

	std::string m_Directory;
	ConfigFile m_DialingRules;
	ConfigFile m_Masks;
	ConfigFile m_Activation;
	/// The plan files by calling code, and the order to read them in.
	std::map<std::string, ConfigFile> m_PlanFiles;
	std::vector<std::string> m_PlanOrder;
	std::unique_ptr<DialingRulesLint> m_DialingRulesLint;
	std::map<std::string, std::unique_ptr<AreaCodeTableLint>> m_Tables;
};

} // namespace tool
} // namespace numbering

#endif // Numbering_ConfigurationLint_INCLUDED
