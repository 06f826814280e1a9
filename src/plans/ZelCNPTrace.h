// ZelCNPTrace.h
// Trace line that every country plan writes when it is asked for a canonical number.

#ifndef Numbering_ZelCNPTrace_INCLUDED
#define Numbering_ZelCNPTrace_INCLUDED

#include "numbering/Logger.h"
#include "numbering/ZelDialRulesItem.h"

#include <string>

namespace numbering {

/// Writes the plans' common debug line, so that it reads the same in every country.
class ZelCNPTrace
{
public:
	/// Writes "qap_Country_MakeCanonicalNumber('" number "', '" rules->ToString() "')" at debug level on logger
	/// when Logger::m_Traces is set; builds nothing otherwise.
	static void logCall(Logger* logger, const std::string& number, ZelDialRulesItem* rules);

	ZelCNPTrace() = delete;
};

} // namespace numbering

#endif // Numbering_ZelCNPTrace_INCLUDED
