// OperatorFileLint.h
// Checks the Colombian plan file, which holds the operator prefixes.

#ifndef Numbering_OperatorFileLint_INCLUDED
#define Numbering_OperatorFileLint_INCLUDED

#include "ConfigFile.h"
#include "LintReport.h"

namespace numbering {
namespace tool {

/// Checks "OP_DEFAULT" (the operator code dialled as written), the "OP_" list and the keys never read.
class OperatorFileLint
{
public:
	/// Checks file, which must exist.
	OperatorFileLint(const ConfigFile& file, LintReport& report);
};

} // namespace tool
} // namespace numbering

#endif // Numbering_OperatorFileLint_INCLUDED
