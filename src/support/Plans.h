// Plans.h
// Steps and texts shared by the country plans.

#ifndef Numbering_Plans_INCLUDED
#define Numbering_Plans_INCLUDED

#include "numbering/ZelDialRulesItem.h"

#include <string>

namespace numbering {
namespace detail {

/// Shortest number a plan reads, and shortest part that is still read behind an external or trunk prefix.
constexpr std::string::size_type MIN_DIGITS = 3;

/// True when number is ext followed by 3 to 16 characters: the plans then read number again without ext. An
/// empty ext stands in front of every number of 3 to 16 characters.
bool followsExtPrefix(const std::string& number, const std::string& ext);

/// The form that keeps the country of a number no rule reads: head + the digits after trunk, taken from number
/// or else from stripped ("" when the external prefix was not stripped). A candidate qualifies when it is trunk
/// followed by 3 to 15 digits of which the first is not "0"; "" when neither does.
/// ("+31 (0) ", "0", "021234567", "") gives "+31 (0) 21234567".
std::string keepCountryForm(
	const std::string& head, const std::string& trunk, const std::string& number, const std::string& stripped);

/// "qap_Country_MakeCanonicalNumber('" + number + "', '" + rules->ToString() + "')", the debug line of every plan
/// asked for a canonical number.
std::string canonicalCallText(const std::string& number, ZelDialRulesItem* rules);

} // namespace detail
} // namespace numbering

#endif // Numbering_Plans_INCLUDED
