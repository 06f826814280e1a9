// ZelCNP_41.h
// Numbering plan of country number 41: ten-digit national numbers and the older nine-digit Zurich form.

#ifndef Numbering_ZelCNP_41_INCLUDED
#define Numbering_ZelCNP_41_INCLUDED

#include "numbering/Logger.h"

#include "plans/ZelCNP.h"

namespace numbering {

/// Decides by length and leading digits, without an area-code table: ten digits are the trunk prefix "0", a
/// two-digit area code and the subscriber number; nine digits beginning with "01" are Zurich numbers.
class ZelCNP_41: public ZelCNP
{
public:
	/// Beginning of a nine-digit Zurich number: "01".
	static const std::string szLocalNumberPfx;

	/// Beginning of a free-phone number: "0800".
	static const std::string szFreePhonePfx;

	ZelCNP_41();

	/// "0441234567" gives "+41 (44) 1234567", "012345678" gives "+41 (1) 2345678" and "0800123456" gives
	/// "+41 800123456". Only numbers longer than ten characters are searched for the site's external prefix;
	/// numbers not recognised come back unchanged.
	std::string qap_Country_MakeCanonicalNumber(std::string number, ZelDialRulesItem* rules) override;

private:
	static Logger* logger;
};

} // namespace numbering

#endif // Numbering_ZelCNP_41_INCLUDED
