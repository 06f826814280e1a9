// ZelDialable_7.h
// Russian dialable maker: the trunk prefix is dialled only before a complete ten-digit national number.

#ifndef Numbering_ZelDialable_7_INCLUDED
#define Numbering_ZelDialable_7_INCLUDED

#include "dialable/ZelDialable.h"

namespace numbering {

/// Russia (country number 7). Local and international dialling follow the generic rules.
class ZelDialable_7: public ZelDialable
{
public:
	/// Area part and dest, behind the long-distance prefix of the configured country "RU" only when prefix and
	/// number together have exactly 11 digits; the rule passed in is not read. With the prefix "8", "495" and
	/// "1234567" give "84951234567", while nine or eleven digits are dialled as they stand.
	std::string makeLongDistDialableNumber(
		std::string& areaNatPfx, std::string& dest, ZelCountryRuleItem* rule, ZelDialRulesItem* site) override;

private:
	static Logger* logger;
};

} // namespace numbering

#endif // Numbering_ZelDialable_7_INCLUDED
