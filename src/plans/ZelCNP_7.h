// ZelCNP_7.h
// Numbering plan of country number 7: eleven-digit national numbers, trunk prefix included.

#ifndef Numbering_ZelCNP_7_INCLUDED
#define Numbering_ZelCNP_7_INCLUDED

#include "plans/ClosedNationalPlan.h"

namespace numbering {

/// The closed national plan of "RU": the trunk prefix is dropped and the next three digits are the area code.
class ZelCNP_7: public ClosedNationalPlan
{
public:
	ZelCNP_7();

	/// "89161234567", "9161234567" (not local, not an exception number) and, with external prefix "0",
	/// "089161234567" give "+7 (916) 1234567"; other numbers come back unchanged.
	std::string qap_Country_MakeCanonicalNumber(std::string number, ZelDialRulesItem* rules) override;

private:
	static Logger* logger;
	static ZelNumberingConfig* config;
};

} // namespace numbering

#endif // Numbering_ZelCNP_7_INCLUDED
