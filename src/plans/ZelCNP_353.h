// ZelCNP_353.h
// Irish numbering plan: open plan, with mobile codes in the table and 15xx/18xx numbers dialled without trunk prefix.

#ifndef Numbering_ZelCNP_353_INCLUDED
#define Numbering_ZelCNP_353_INCLUDED

#include "plans/TrunkPrefixPlan.h"

namespace numbering {

/// Ireland (calling code 353). Mobile and non-geographic codes are in the table like area codes. A 15xx or
/// 18xx number dialled at home (10 digits) keeps that form; in national form ("0" + 10 digits, as it comes
/// from abroad) it is written "+353 (1800) 123456". Every result is traced.
/// "012345678" gives "+353 (1) 2345678", "1800123456" "1800123456", "01800123456" dialled without external
/// prefix 0 "+353 (1800) 123456".
class ZelCNP_353: public TrunkPrefixPlan
{
public:
	ZelCNP_353();

	/// The table plan's reading (TrunkPrefixPlan), followed by the debug line
	/// "QapCountryMakeCanonicalNumber returns '" + result + "'".
	std::string qap_Country_MakeCanonicalNumber(std::string number, ZelDialRulesItem* rules) override;

protected:
	/// A 15xx or 18xx number of 10 digits keeps its home form.
	bool readServiceNumber(const std::string& candidate, std::string& result) override;

	/// A 15xx or 18xx number in national form is written with its first 4 digits as area, unless it was dialled
	/// at home behind the external prefix.
	Verdict decideBeforeTable(const std::string& digits, const Pass& pass, std::string& result) override;

private:
	static Logger* logger;
};

} // namespace numbering

#endif // Numbering_ZelCNP_353_INCLUDED
