// ZelCNP_52.h
// Mexican numbering plan: ten-digit national numbers, with the prefixes dialled before August 2019.

#ifndef Numbering_ZelCNP_52_INCLUDED
#define Numbering_ZelCNP_52_INCLUDED

#include "numbering/Logger.h"

#include "plans/ZelCNP.h"

#include <string>
#include <vector>

namespace numbering {

/// Needs no table: the two-digit area codes are listed below, every other code has three digits. A mobile
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

	/// "01", the long-distance prefix of the before-2019 rules.
	static const std::string PREFIX_NATIONAL;

	/// "MX", the configuration's code for Mexico.
	static const std::string COUNTRY_CODE;

	/// The area codes of two digits: 33, 55, 56, 81.
	static const std::vector<std::string> AREA_CODES_2;

	/// Digits of a national significant number.
	static const int NATIONAL_NUMBER_LENGTH = 10;

private:
	bool readNational(const std::string& candidate, std::string& result);

	bool readLocal(const std::string& candidate, const std::string& siteArea, std::string& result);

	static std::string mobileMarker();

	static Logger* logger;
};

} // namespace numbering

#endif // Numbering_ZelCNP_52_INCLUDED
