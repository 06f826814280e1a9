// ZelCNP_57.h
// Numbering plan of country number 57: seven-digit local numbers behind one-digit area codes.

#ifndef Numbering_ZelCNP_57_INCLUDED
#define Numbering_ZelCNP_57_INCLUDED

#include "numbering/Logger.h"

#include "plans/ZelCNP.h"

namespace numbering {

/// Decides by length and the first two digits, without an area-code table: seven digits take the site's area
/// code, national numbers begin with the trunk digit "0". Operator codes are left to the dialable maker.
class ZelCNP_57: public ZelCNP
{
public:
	ZelCNP_57();

	~ZelCNP_57() override;

	/// "2345678" gives "+57 (" site area code ") 2345678"; "0912345678" gives "+57 (1) 2345678",
	/// "03101234567" gives "+57 (101) 234567"; numbers not recognised come back unchanged.
	std::string qap_Country_MakeCanonicalNumber(std::string number, ZelDialRulesItem* rules) override;

private:
	static Logger* logger;
};

} // namespace numbering

#endif // Numbering_ZelCNP_57_INCLUDED
