// DialingRules.h
// Builds the dialing-rules entry of every region that has a calling code.

#ifndef Numbering_DialingRules_INCLUDED
#define Numbering_DialingRules_INCLUDED

#include "CountryNames.h"

#include <map>
#include <phonenumbers/phonenumberutil.h>
#include <string>

namespace numbering {
namespace generator {

/// One entry per region known to the numbering metadata, keyed by its alpha-2 code:
/// "calling code:international prefix:EFG:<trunk>FG:<local rule>:name[:P]". The long-distance rule dials the
/// trunk prefix and the area code; the local rule dials the area code too only where the country requires it
/// (closed plans, and countries without a trunk prefix, where the area code is part of every number). "P" marks
/// the main region of a shared calling code. A few countries whose plans need particular rules are written
/// from a fixed list instead.
class DialingRules
{
public:
	DialingRules(const i18n::phonenumbers::PhoneNumberUtil& util, const CountryNames& names);

	/// The entries, in ascending key order; throws std::runtime_error for a region without a name.
	std::map<std::string, std::string> entries() const;

private:
	std::string entry(const std::string& region) const;

	std::string internationalPrefix(const std::string& region, int callingCode) const;

	const i18n::phonenumbers::PhoneNumberUtil& m_Util;
	const CountryNames& m_Names;
};

} // namespace generator
} // namespace numbering

#endif // Numbering_DialingRules_INCLUDED
