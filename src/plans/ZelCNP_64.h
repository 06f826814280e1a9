// ZelCNP_64.h
// Numbering plan of country number 64: the first digit of a national number fixes its area code's length.

#ifndef Numbering_ZelCNP_64_INCLUDED
#define Numbering_ZelCNP_64_INCLUDED

#include "numbering/Logger.h"

#include "plans/ZelCNP.h"

namespace numbering {

/// Recognises national numbers behind the trunk digit "0", the same behind the site's external prefix, and
/// local numbers of seven digits, or of six where the site's area code begins with "2". No area-code table.
class ZelCNP_64: public ZelCNP
{
public:
	ZelCNP_64();

	/// "093071234" gives "+64 (9) 3071234", "0211234567" gives "+64 (21) 1234567", "0800123456" gives
	/// "+64 (800) 123456" and "3071234" gives "+64 (" site area code ") 3071234"; numbers not recognised come
	/// back unchanged.
	std::string qap_Country_MakeCanonicalNumber(std::string number, ZelDialRulesItem* rules) override;

private:
	static Logger* logger;
};

} // namespace numbering

#endif // Numbering_ZelCNP_64_INCLUDED
