// ZelCNP_32.h
// Belgian numbering plan: eight-digit zone numbers and nine-digit mobile numbers behind the trunk prefix 0.

#ifndef Numbering_ZelCNP_32_INCLUDED
#define Numbering_ZelCNP_32_INCLUDED

#include "numbering/Logger.h"

#include "plans/ZelTrunkPrefixPlan.h"

#include <string>

namespace numbering {

/// Belgium (calling code 32). The table holds the zone numbers only. Mobile numbers (9 digits beginning with 4)
/// and the 70, 78, 800 and 90x numbers overlap zones 4, 80 and 9, so their length and leading digits decide
/// them before the table is asked: they are written "+32 (0) " + the digits after the trunk prefix.
/// "022345678" gives "+32 (2) 2345678", "0475123456" "+32 (0) 475123456", "080012345" "+32 (0) 80012345".
class ZelCNP_32: public ZelTrunkPrefixPlan
{
public:
	ZelCNP_32();

protected:
	PreRule preRule(const std::string& rest, const Pass& pass, std::string& result) override;

	bool isGeographic(const std::string& rest, const std::string& sub) override;

	bool acceptsZeroForm(const std::string& rest) override;

	bool isLocal(const std::string& siteArea, const std::string& w) override;

private:
	static Logger* logger;
};

} // namespace numbering

#endif // Numbering_ZelCNP_32_INCLUDED
