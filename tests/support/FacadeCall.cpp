// FacadeCall.cpp

#include "support/FacadeCall.h"

#include "numbering/ZelNumberingRules.h"

namespace numbering {
namespace test {

std::string callFacade(Op op, ZelDialRulesItem* site, const std::string& number, const std::string& pattern)
{
	ZelNumberingRules* rules = ZelNumberingRules::getInstance();
	switch (op)
	{
	case Op::Canonical:
		return rules->makeCanonicalNumber(site, number, pattern);
	case Op::CanonicalWithExtPrefix:
		return rules->makeCanonicalNumber(site, number, pattern, true);
	case Op::Phone:
		return rules->makePhoneNumber(site, number);
	case Op::Prefix:
		return rules->addExternalPrefix(site, number);
	case Op::Dial:
		return rules->makeDialableNumber(site, number);
	case Op::GSM:
		return rules->makeGSMCanonicalNumber(site, number, false);
	}
	return "unknown operation";
}

} // namespace test
} // namespace numbering
