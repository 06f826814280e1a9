// RoundTripLint.h
// Dials a number of every area code of the site's country and reads it back.

#ifndef Numbering_RoundTripLint_INCLUDED
#define Numbering_RoundTripLint_INCLUDED

#include "numbering/ZelDialRulesItem.h"
#include "numbering/ZelNumberingRules.h"

#include "ConfigFile.h"
#include "LintReport.h"

#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

namespace numbering {
namespace tool {

/// For every area code of the table, a national number with that code is made canonical at the site, dialled
/// from the site, and made canonical again; a code whose two canonical numbers differ is reported at its line.
class RoundTripLint
{
public:
	/// National numbers begin with trunkPrefix, the long-distance prefix of the site's country.
	RoundTripLint(ZelNumberingRules& rules, ZelDialRulesItem& site, const std::string& trunkPrefix);

	/// Adds a finding for each of codes, the codes the plan's tree holds with their keys in table, whose number
	/// does not come back.
	void check(
		const ConfigFile& table, const std::vector<std::pair<std::string, std::string>>& codes, LintReport& report);

private:
	/// Subscriber digits that do not make code + them begin with a longer code of the table.
	std::string subscriberAfter(const std::string& code) const;

	/// The trip of one national number, or "" when it comes back as it went.
	std::string failedTrip(const std::string& national) const;

	ZelNumberingRules& m_Rules;
	ZelDialRulesItem& m_Site;
	std::string m_TrunkPrefix;
	std::unordered_set<std::string> m_Codes;
};

} // namespace tool
} // namespace numbering

#endif // Numbering_RoundTripLint_INCLUDED
