// ZelCNP_33.cpp

#include "plans/ZelCNP_33.h"

#include "support/Trace.h"

#include <typeinfo>

namespace numbering {

namespace {

const ClosedNationalPlan::Layout FRANCE{"FR", 10, "+33 (", 0, 1};

} // namespace

Logger* ZelCNP_33::logger = Logger::getLogger(typeid(ZelCNP_33).name());

ZelNumberingConfig* ZelCNP_33::config = nullptr;

ZelCNP_33::ZelCNP_33():
	ClosedNationalPlan(FRANCE)
{
	NUMBERING_TRACE(logger, "ZelCNP_33()");
	// Taken afresh by every plan: the configuration may have been reloaded since the previous plan was built.
	config = ZelNumberingConfig::getInstance();
}

std::string ZelCNP_33::qap_Country_MakeCanonicalNumber(std::string number, ZelDialRulesItem* rules)
{
	return makeCanonicalNumber(number, rules, logger, config);
}

} // namespace numbering
