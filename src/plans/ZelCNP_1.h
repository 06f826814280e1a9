// ZelCNP_1.h
// Numbering plan of country number 1: three-digit area codes and seven-digit subscriber numbers.

#ifndef Numbering_ZelCNP_1_INCLUDED
#define Numbering_ZelCNP_1_INCLUDED

#include "numbering/Logger.h"

#include "plans/ZelCNP.h"

namespace numbering {

/// Decides by length alone, without an area-code table: seven digits take the site's area code, ten digits
/// carry their own, and eight or eleven digits lose one leading "0" or "1" first.
class ZelCNP_1: public ZelCNP
{
public:
	ZelCNP_1();

	/// "2125551234" and "12125551234" give "+1 (212) 5551234"; "5551234" gives "+1 (" site area code ") 5551234",
	/// or "+1 (?) 5551234" when the site has none. Other lengths, and area or exchange codes beginning with "0"
	/// or "1", come back unchanged.
	std::string qap_Country_MakeCanonicalNumber(std::string number, ZelDialRulesItem* rules) override;

private:
	static Logger* logger;
};

} // namespace numbering

#endif // Numbering_ZelCNP_1_INCLUDED
