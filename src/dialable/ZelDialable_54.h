// ZelDialable_54.h
// Argentine dialable maker: rebuilds numbers from the plan's split, with "15" before a mobile subscriber.

#ifndef Numbering_ZelDialable_54_INCLUDED
#define Numbering_ZelDialable_54_INCLUDED

#include "dialable/ZelDialable.h"

namespace numbering {

/// Argentina (country number 54). Long-distance and local numbers are split by ZelCNP_54::StripNbr and dialled
/// again as long-distance prefix + area code (left out for the site's own area), "15" for a mobile, subscriber
/// number. International dialling follows the generic rules.
class ZelDialable_54: public ZelDialable
{
public:
	/// MakeLocalOrLongDistDialableNumber.
	std::string makeLongDistDialableNumber(
		std::string& areaNatPfx, std::string& dest, ZelCountryRuleItem* rule, ZelDialRulesItem* site) override;

	// The three-argument local maker stays reachable beside the Argentine one.
	using ZelDialable::makeLocalDialableNumber;

	/// MakeLocalOrLongDistDialableNumber; reached only by callers that hold a ZelDialable_54 as such.
	virtual std::string makeLocalDialableNumber(
		std::string& areaNatPfx, std::string& dest, ZelCountryRuleItem* rule, ZelDialRulesItem* site);

	/// areaNatPfx + dest split by the "AR" plan and put together again for the site: "911" and "23456789" give
	/// "1523456789" at a site with area code 11 and "0111523456789" elsewhere (long-distance prefix 0). A
	/// number that cannot be split (or no "AR" plan) is dialled as areaNatPfx + dest.
	std::string MakeLocalOrLongDistDialableNumber(
		std::string& areaNatPfx, std::string& dest, ZelCountryRuleItem* rule, ZelDialRulesItem* site);

private:
	static Logger* logger;
};

} // namespace numbering

#endif // Numbering_ZelDialable_54_INCLUDED
