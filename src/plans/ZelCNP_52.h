// ZelCNP_52.h
// Mexican numbering plan: ten-digit national numbers, with the prefixes dialled before August 2019.

#ifndef Numbering_ZelCNP_52_INCLUDED
#define Numbering_ZelCNP_52_INCLUDED

#include "numbering/Logger.h"

#include "plans/ZelCNP.h"

namespace numbering {

/// Needs no table: the plan lists the four two-digit area codes, every other code has three digits. A mobile
/// number gets the mobile marker "1" before its area code, which ZelDialable_52 dials as 044 or 045, unless
/// the "MX" rule has no long-distance prefix (ten-digit dialling), which drops the marker.
class ZelCNP_52: public ZelCNP
{
public:
	ZelCNP_52();

	/// "015512345678" gives "+52 (55) 12345678", "0445512345678" "+52 (155) 12345678" (before-2019 rules),
	/// "12345678" at a site with area code 55 "+52 (55) 12345678"; a number in "01" form that no other form
	/// reads gives "+52 " + its digits; anything else comes back unchanged.
	std::string qap_Country_MakeCanonicalNumber(std::string number, ZelDialRulesItem* rules) override;

	/// Leading digit of the area part of a mobile number in canonical form: "1".
	static constexpr char PREFIX_MOBILE[] = "1";

	/// Dialled before a mobile of the caller's own area: "044".
	static constexpr char PREFIX_MOBILE_LOCAL[] = "044";

	/// Dialled before a mobile of another area: "045".
	static constexpr char PREFIX_MOBILE_DISTANT[] = "045";

private:
	bool readNational(const std::string& candidate, std::string& result);

	bool readLocal(const std::string& candidate, const std::string& siteArea, std::string& result);

	static Logger* logger;
};

} // namespace numbering

#endif // Numbering_ZelCNP_52_INCLUDED
