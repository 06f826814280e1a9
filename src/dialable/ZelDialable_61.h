// ZelDialable_61.h
// Australian dialable maker: long-distance numbers get the trunk digit 0 unless they are dialled as they stand.

#ifndef Numbering_ZelDialable_61_INCLUDED
#define Numbering_ZelDialable_61_INCLUDED

#include "dialable/ZelDialable.h"

namespace numbering {

/// Australia (country number 61). Local and international dialling follow the generic rules.
class ZelDialable_61: public ZelDialable
{
public:
	/// Area part and dest, with "0" in front unless they begin with "1" (nationwide service numbers) or with "0"
	/// already; the rule record is not read. "2" and "12345678" give "0212345678".
	std::string makeLongDistDialableNumber(
		std::string& areaNatPfx, std::string& dest, ZelCountryRuleItem* rule, ZelDialRulesItem* site) override;

private:
	static Logger* logger;
};

} // namespace numbering

#endif // Numbering_ZelDialable_61_INCLUDED
