// MexicanPrefixes.h
// The Mexican mobile prefixes, which the plan reads and the dialable maker dials.

#ifndef Numbering_MexicanPrefixes_INCLUDED
#define Numbering_MexicanPrefixes_INCLUDED

namespace numbering {
namespace detail {

/// Leading digit of the area part of a Mexican mobile number in canonical form: "1".
constexpr char MEXICAN_PREFIX_MOBILE[] = "1";

/// Dialled before a Mexican mobile of the caller's own area: "044".
constexpr char MEXICAN_PREFIX_MOBILE_LOCAL[] = "044";

/// Dialled before a Mexican mobile of another area: "045".
constexpr char MEXICAN_PREFIX_MOBILE_DISTANT[] = "045";

} // namespace detail
} // namespace numbering

#endif // Numbering_MexicanPrefixes_INCLUDED
