// FacadeCall.h
// Test helper: the facade operations that turn a number at a site into text, chosen by a table column.

#ifndef Numbering_FacadeCall_INCLUDED
#define Numbering_FacadeCall_INCLUDED

#include "numbering/ZelDialRulesItem.h"

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
std::string callFacade(Op op, ZelDialRulesItem* site, const std::string& number, const std::string& pattern = "");

} // namespace test
} // namespace numbering

#endif // Numbering_FacadeCall_INCLUDED
