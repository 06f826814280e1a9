// FacadeCall.h
// Test helper: the facade operations that turn a number at a site into text, chosen by a table column.

#ifndef Numbering_FacadeCall_INCLUDED
#define Numbering_FacadeCall_INCLUDED

#include "numbering/ZelDialRulesItem.h"
#include "numbering/ZelNumberingRules.h"

#include <string>

namespace numbering {
namespace test {

/// makeCanonicalNumber without and with the site's external prefix, makePhoneNumber, addExternalPrefix,
/// makeDialableNumber and makeGSMCanonicalNumber (without external prefix).
enum class Op
{
	Canonical,
	CanonicalWithExtPrefix,
	Phone,
	Prefix,
	Dial,
	GSM
};

/// What the facade instance makes of number at site; the canonical operations get pattern.
inline std::string callFacade(Op op, ZelDialRulesItem* site, const std::string& number, const std::string& pattern = "")
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

#endif // Numbering_FacadeCall_INCLUDED
