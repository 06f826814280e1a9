// MaskLint.h
// Checks the mask file.

#ifndef Numbering_MaskLint_INCLUDED
#define Numbering_MaskLint_INCLUDED

#include "ConfigFile.h"
#include "DialingRulesLint.h"
#include "LintReport.h"

#include <map>
#include <string>

namespace numbering {
namespace tool {

/// Reports mask keys the loader skips or reads under a country number other than the one written, masks of
/// country numbers that no dialing-rules line has, patterns without "C" or with letters the layout does not
/// know, and masks that lose to another of the same country number.
class MaskLint
{
public:
	/// Checks file, which must exist; dialingRules tells which country numbers exist.
	MaskLint(const ConfigFile& file, const DialingRulesLint* dialingRules, LintReport& report);

private:
	void checkMask(const std::string& key);

	void checkPattern(const std::string& key, const std::string& pattern);

	const ConfigFile& m_File;
	const DialingRulesLint* m_DialingRules;
	LintReport& m_Report;
	/// The key that won each mask key.
	std::map<std::string, std::string> m_Winners;
};

} // namespace tool
} // namespace numbering

#endif // Numbering_MaskLint_INCLUDED
