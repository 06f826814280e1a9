// ZelCNP_61.h
// Australian numbering plan: nine-digit national numbers and the 13, 1300 and 1800 service numbers.

#ifndef Numbering_ZelCNP_61_INCLUDED
#define Numbering_ZelCNP_61_INCLUDED

#include "numbering/Logger.h"

#include "plans/ZelTrunkPrefixPlan.h"

#include <string>

namespace numbering {

/// Australia (calling code 61). The table holds the area codes 2, 3, 7 and 8; mobile (4) and 5 numbers are
/// written "+61 (0) " + their nine digits. The service numbers 13 xx xx, 1300 and 1800 + 6 digits are written
/// "+61 13 ", "+61 1300 ", "+61 1800 " + their last digits, as dialled at home or in national form; other
/// numbers beginning with 1 keep their form.
/// "0292345678" gives "+61 (2) 92345678", "1300123456" "+61 1300 123456", "0131234" "+61 13 1234".
class ZelCNP_61: public ZelTrunkPrefixPlan
{
public:
	ZelCNP_61();

protected:
	bool readForm(const std::string& w, std::string& result) override;

	PreRule preRule(const std::string& rest, const Pass& pass, std::string& result) override;

	bool isGeographic(const std::string& rest, const std::string& sub) override;

	bool acceptsZeroForm(const std::string& rest) override;

	bool isLocal(const std::string& siteArea, const std::string& w) override;

private:
	static Logger* logger;
};

} // namespace numbering

#endif // Numbering_ZelCNP_61_INCLUDED
