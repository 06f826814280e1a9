// AreaCodeTableLint.h
// Checks the area-code table of a plan country.

#ifndef Numbering_AreaCodeTableLint_INCLUDED
#define Numbering_AreaCodeTableLint_INCLUDED

#include "CodeListLint.h"
#include "ConfigFile.h"
#include "LintReport.h"

namespace numbering {
namespace tool {

/// Checks "Translate" (a value other than "1" that looks like "on" turns translation off), the "AC_" list and
/// the keys the plan never reads.
class AreaCodeTableLint
{
public:
	/// Checks file, which must exist.
	AreaCodeTableLint(const ConfigFile& file, LintReport& report);

	/// The area codes the plan's tree holds, each with its key.
	const std::vector<std::pair<std::string, std::string>>& storedCodes() const;

private:
	CodeListLint m_Codes;
};

} // namespace tool
} // namespace numbering

#endif // Numbering_AreaCodeTableLint_INCLUDED
