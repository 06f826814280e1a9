// ZelTrunkPrefixPlan.h
// Table plans whose national numbers carry the trunk prefix "0", read as dialled and behind the external prefix.

#ifndef Numbering_ZelTrunkPrefixPlan_INCLUDED
#define Numbering_ZelTrunkPrefixPlan_INCLUDED

#include "numbering/Logger.h"
#include "numbering/ZelDialRulesItem.h"

#include "plans/ZelAreaCodeTablePlan.h"

#include <string>

namespace numbering {

/// Reads a number in two passes: as dialled, then without the site's external prefix (a number that does not
/// carry it and begins with "0" has had its national reading already and skips the second pass). A pass reads
/// a number beginning with "0" as national, "0" + area code + subscriber, and, in the second pass only and
/// with translation on, any other number as local to the site. A number no pass reads keeps its country when
/// it, or the number behind the external prefix, is "0" + 3 to 15 digits: "+CC (0) " + those digits.
/// The hooks below default to an open plan: a national number needs 3 subscriber digits behind a known code,
/// a local number 3 digits, and an unknown code gives no reading.
class ZelTrunkPrefixPlan: public ZelAreaCodeTablePlan
{
public:
	/// The canonical number, or number unchanged when no rule reads it or it is shorter than 3.
	/// Throws Poco::NullPointerException when a national number reaches a plan without a tree.
	std::string qap_Country_MakeCanonicalNumber(std::string number, ZelDialRulesItem* rules) override;

protected:
	/// The table plan's constructor (ZelAreaCodeTablePlan) with the same arguments.
	ZelTrunkPrefixPlan(Logger* logger,
		const std::string& callingCode,
		const std::string& className,
		const std::string& noCountryFileText,
		const std::string& noDefaultFileText);

	/// One pass: w is the number read (number itself, or number without the external prefix), rules the site.
	struct Pass
	{
		const std::string& w;
		const std::string& number;
		ZelDialRulesItem* rules;
		bool second;
	};

	/// What a pre-rule decided about a national number.
	enum class PreRule
	{
		/// Ask the area-code table.
		Continue,
		/// No national reading.
		GiveUp,
		/// The result is set.
		Decided
	};

	/// True, with result set, when the pass reads w: a form of readForm, else national or local.
	virtual bool readPass(const Pass& pass, std::string& result);

	/// A form of w tried before any other in both passes; none by default.
	virtual bool readForm(const std::string& w, std::string& result);

	/// Decides a national number (rest: the digits after the trunk prefix) before the table is asked; Continue
	/// by default.
	virtual PreRule preRule(const std::string& rest, const Pass& pass, std::string& result);

	/// Whether rest, which begins with a known area code and has sub behind it, is a geographic number;
	/// 3 subscriber digits or more by default.
	virtual bool isGeographic(const std::string& rest, const std::string& sub);

	/// Whether rest, which begins with no known area code, is written "+CC (0) " + rest; never by default.
	virtual bool acceptsZeroForm(const std::string& rest);

	/// Whether w (first digit 2 to 9) is a local number of the site's area siteArea; 3 digits or more by default.
	virtual bool isLocal(const std::string& siteArea, const std::string& w);

	/// "+CC (" + area + ") " + sub.
	std::string areaForm(const std::string& area, const std::string& sub) const;

	/// "+CC (0) " + digits.
	std::string zeroForm(const std::string& digits) const;

	/// "+CC ", the start of every canonical number of the plan.
	const std::string& countryHead() const;

private:
	bool readNational(const std::string& rest, const Pass& pass, std::string& result);

	bool readLocal(const Pass& pass, std::string& result);

	const std::string m_CountryHead;
};

} // namespace numbering

#endif // Numbering_ZelTrunkPrefixPlan_INCLUDED
