// ZelCNP_61.h
// Australian numbering plan: nine-digit national numbers and the 13, 1300 and 1800 service numbers.

#ifndef Numbering_ZelCNP_61_INCLUDED
#define Numbering_ZelCNP_61_INCLUDED

#include "plans/TrunkPrefixPlan.h"

namespace numbering {

/// Australia (calling code 61). The table holds the area codes 2, 3, 7 and 8; mobile (4) and 5 numbers are
/// written "+61 (0) " + their nine digits. The service numbers 13 xx xx, 1300 and 1800 + 6 digits are written
/// "+61 13 ", "+61 1300 ", "+61 1800 " + their last digits, as dialled at home or in national form; other
/// numbers beginning with 1 keep their form.
/// "0292345678" gives "+61 (2) 92345678", "1300123456" "+61 1300 123456", "0131234" "+61 13 1234".
class ZelCNP_61: public TrunkPrefixPlan
{
public:
	ZelCNP_61();

protected:
	/// "+61 " + lead + " " + the digits after it, for a 13, 1300 or 1800 number.
	bool readServiceNumber(const std::string& candidate, std::string& result) override;

	/// A service number in national form is read as above; other national numbers beginning with 1 or not of 9
	/// digits are not national.
	Verdict decideBeforeTable(const std::string& digits, const Pass& pass, std::string& result) override;

private:
	static Logger* logger;
};

} // namespace numbering

#endif // Numbering_ZelCNP_61_INCLUDED
