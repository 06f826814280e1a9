// ZelCNP_32.h
// Belgian numbering plan: eight-digit zone numbers and nine-digit mobile numbers behind the trunk prefix 0.

#ifndef Numbering_ZelCNP_32_INCLUDED
#define Numbering_ZelCNP_32_INCLUDED

#include "plans/TrunkPrefixPlan.h"

namespace numbering {

/// Belgium (calling code 32). The table holds the zone numbers only. Mobile numbers (9 digits beginning with 4)
/// and the 70, 78, 800 and 90x numbers overlap zones 4, 80 and 9, so their length and leading digits decide
/// them before the table is asked: they are written "+32 (0) " + the digits after the trunk prefix.
/// "022345678" gives "+32 (2) 2345678", "0475123456" "+32 (0) 475123456", "080012345" "+32 (0) 80012345".
class ZelCNP_32: public TrunkPrefixPlan
{
public:
	ZelCNP_32();

private:
	static Logger* logger;
};

} // namespace numbering

#endif // Numbering_ZelCNP_32_INCLUDED
