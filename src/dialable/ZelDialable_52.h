// ZelDialable_52.h
// Mexican dialable maker: long-distance calls to mobiles carry a mobile trunk prefix instead of the national one.

#ifndef Numbering_ZelDialable_52_INCLUDED
#define Numbering_ZelDialable_52_INCLUDED

#include "dialable/ZelDialable.h"

namespace numbering {

/// Mexico (country number 52). Local and international dialling follow the generic rules.
class ZelDialable_52: public ZelDialable
{
public:
	/// An area part beginning with PREFIX_MOBILE is a mobile: the rest of it is dialled behind PREFIX_MOBILE_LOCAL
	/// when it is the site's own area code, else behind PREFIX_MOBILE_DISTANT. Any other area part is dialled
	/// behind the country's long-distance prefix. "155" and "12345678" at a site in area 55 give "0445512345678".
	std::string makeLongDistDialableNumber(
		std::string& areaNatPfx, std::string& dest, ZelCountryRuleItem* rule, ZelDialRulesItem* site) override;

	/// Leading digit of the area part of a mobile number: "1".
	static const std::string PREFIX_MOBILE;

	/// Dialled before a mobile of the site's own area: "044".
	static const std::string PREFIX_MOBILE_LOCAL;

	/// Dialled before a mobile of another area: "045".
	static const std::string PREFIX_MOBILE_DISTANT;

private:
	static Logger* logger;
};

} // namespace numbering

#endif // Numbering_ZelDialable_52_INCLUDED
