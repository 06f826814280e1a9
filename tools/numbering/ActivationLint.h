// ActivationLint.h
// Checks the specific-format activation file.

#ifndef Numbering_ActivationLint_INCLUDED
#define Numbering_ActivationLint_INCLUDED

#include "ConfigFile.h"
#include "DialingRulesLint.h"
#include "LintReport.h"

#include <string>

namespace numbering {
namespace tool {

/// Reports switches the loader skips (keys that are not "cnp_" and a country number of 1 to 3 characters,
/// numbers no country owns, empty or unknown values), switches turned on for a country without numbering plan,
/// and plan countries switched on whose area-code table is missing.
class ActivationLint
{
public:
	/// Checks file, which must exist; dialingRules (null when there are none) resolves country numbers, and
	/// directory is where the plans' tables are.
	ActivationLint(
		const ConfigFile& file, const DialingRulesLint* dialingRules, const std::string& directory, LintReport& report);

private:
	void checkSwitch(const std::string& key);

	void checkSwitchedOn(const std::string& key, const std::string& number);

	const ConfigFile& m_File;
	const DialingRulesLint* m_DialingRules;
	std::string m_Directory;
	LintReport& m_Report;
};

} // namespace tool
} // namespace numbering

#endif // Numbering_ActivationLint_INCLUDED
