// ZelCNP_7.cpp

#include "plans/ZelCNP_7.h"

#include "support/Trace.h"

#include <typeinfo>

namespace numbering {

namespace {

const ClosedNationalPlan::Layout RUSSIA{"RU", 11, "+7 (", 1, 3};

} // namespace

Logger* ZelCNP_7::logger = Logger::getLogger(typeid(ZelCNP_7).name());

ZelNumberingConfig* ZelCNP_7::config = nullptr;

ZelCNP_7::ZelCNP_7():
	ClosedNationalPlan(RUSSIA)
{
	NUMBERING_TRACE(logger, "ZelCNP_7()");
	// Taken afresh by every plan: the configuration may have been reloaded since the previous plan was built.
	config = ZelNumberingConfig::getInstance();
}

std::string ZelCNP_7::qap_Country_MakeCanonicalNumber(std::string number, ZelDialRulesItem* rules)
{
	return makeCanonicalNumber(number, rules, logger, config);
}

} // namespace numbering
