// ZelCNP_44.h
// British numbering plan: nine- and ten-digit national numbers behind the trunk prefix 0.

#ifndef Numbering_ZelCNP_44_INCLUDED
#define Numbering_ZelCNP_44_INCLUDED

#include "plans/TrunkPrefixPlan.h"

namespace numbering {

/// United Kingdom (calling code 44). The table holds the geographic area codes only, the longest one wins
/// ("01387 312345" is Langholm, 13873). Non-geographic numbers and numbers with a code missing from the table
/// are written "+44 (0) " + the digits after the trunk prefix.
/// "02079460123" gives "+44 (20) 79460123", "07911123456" "+44 (0) 7911123456", "79460123" at a site with
/// area code 20 "+44 (20) 79460123".
class ZelCNP_44: public TrunkPrefixPlan
{
public:
	ZelCNP_44();

private:
	static Logger* logger;
};

} // namespace numbering

#endif // Numbering_ZelCNP_44_INCLUDED
