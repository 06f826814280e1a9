// ZelCNPTrace.cpp

#include "plans/ZelCNPTrace.h"

namespace numbering {

void ZelCNPTrace::logCall(Logger* logger, const std::string& number, ZelDialRulesItem* rules)
{
	if (Logger::m_Traces)
	{
		logger->debug("qap_Country_MakeCanonicalNumber('" + number + "', '" + rules->ToString() + "')");
	}
}

} // namespace numbering
