// ZelCNP_31.h
// Dutch numbering plan: nine-digit national numbers behind the trunk prefix 0.

#ifndef Numbering_ZelCNP_31_INCLUDED
#define Numbering_ZelCNP_31_INCLUDED

#include "plans/TrunkPrefixPlan.h"

namespace numbering {

/// Netherlands (calling code 31). The table holds the geographic area codes only: mobile and service numbers,
/// and numbers with a code missing from the table, are written "+31 (0) " + the digits after the trunk prefix.
/// "0201234567" gives "+31 (20) 1234567", "0612345678" "+31 (0) 612345678", "6123456" at a site with area
/// code 20 "+31 (20) 6123456".
class ZelCNP_31: public TrunkPrefixPlan
{
public:
	ZelCNP_31();

private:
	static Logger* logger;
};

} // namespace numbering

#endif // Numbering_ZelCNP_31_INCLUDED
