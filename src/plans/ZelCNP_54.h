// ZelCNP_54.h
// Argentine numbering plan: ten-digit national numbers, with mobile numbers marked by "15" or "9".

#ifndef Numbering_ZelCNP_54_INCLUDED
#define Numbering_ZelCNP_54_INCLUDED

#include "plans/StrippedNumber.h"
#include "plans/TrunkPrefixPlan.h"

#include <memory>

namespace numbering {

/// Argentina (calling code 54). Area code and subscriber number make 10 digits; a mobile number is dialled
/// with "15" before the subscriber number at home and with "9" before the area code from abroad. The table
/// must hold every area code and the non-geographic codes, none beginning with 0, 9 or 15. Canonical forms
/// carry the E.164 digits: "+54 (11) 43211234", and "+54 (911) 23456789" for a mobile.
class ZelCNP_54: public TrunkPrefixPlan
{
public:
	ZelCNP_54();

	/// Splits full (digits) into area code, subscriber number and mobile flag: nationally ("0" + area + ["15"]
	/// + subscriber), internationally ("9" + area + subscriber for a mobile) or, when site is not null and has
	/// an area code, locally ("15" + subscriber or subscriber). Empty when the number cannot be split: no known
	/// area code, or area and subscriber not 10 digits together. "0111523456789" gives 11, 23456789, mobile.
	/// Throws Poco::NullPointerException when the plan has no tree.
	std::unique_ptr<StrippedNumber> StripNbr(std::string full, ZelDialRulesItem* site);

	/// "15", dialled before the subscriber number of a mobile at home.
	static const std::string PREFIX_MOBILE_NATIONAL;

protected:
	/// A number with the trunk prefix, or in the second pass with translation on any number, is read by
	/// StripNbr; its split gives the canonical form.
	bool readPass(const Pass& pass, std::string& result) override;

private:
	std::unique_ptr<StrippedNumber> stripLocal(const std::string& digits, const std::string& siteArea);

	std::unique_ptr<StrippedNumber> stripNational(std::string digits);

	std::unique_ptr<StrippedNumber> returnRecord(std::unique_ptr<StrippedNumber> record);

	std::unique_ptr<StrippedNumber> returnNull();

	static Logger* logger;
};

} // namespace numbering

#endif // Numbering_ZelCNP_54_INCLUDED
