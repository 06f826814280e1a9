// ZelCNP_33.h
// Numbering plan of country number 33: ten-digit national numbers, trunk prefix included.

#ifndef Numbering_ZelCNP_33_INCLUDED
#define Numbering_ZelCNP_33_INCLUDED

#include "plans/ClosedNationalPlan.h"

namespace numbering {

/// The closed national plan of "FR": the trunk prefix stays between the parentheses.
class ZelCNP_33: public ClosedNationalPlan
{
public:
	ZelCNP_33();

	/// "0123456789", "123456789" (not local, not an exception number) and, with external prefix "0",
	/// "00123456789" give "+33 (0) 123456789"; other numbers come back unchanged.
	std::string qap_Country_MakeCanonicalNumber(std::string number, ZelDialRulesItem* rules) override;

private:
	static Logger* logger;
	static ZelNumberingConfig* config;
};

} // namespace numbering

#endif // Numbering_ZelCNP_33_INCLUDED
