// ClosedNationalPlan.h
// Shared algorithm of the plans whose national numbers all have one fixed length.

#ifndef Numbering_ClosedNationalPlan_INCLUDED
#define Numbering_ClosedNationalPlan_INCLUDED

#include "numbering/Logger.h"
#include "numbering/ZelNumberingConfig.h"

#include "plans/ZelCNP.h"

#include <cstddef>

namespace numbering {

/// A closed national plan needs no area-code table: a national number has a fixed length, trunk prefix
/// included. It is recognised as it stands, without its trunk prefix, or behind the site's external prefix.
/// The trunk prefix is the long-distance prefix of the country's rule in the dialing-rules file.
class ClosedNationalPlan: public ZelCNP
{
public:
	/// What sets one country's closed plan apart from another's.
	struct Layout
	{
		/// Key of the country's rule in the dialing-rules file ("FR").
		const char* countryCode;
		/// Length of a national number, trunk prefix included.
		std::size_t nationalLength;
		/// Start of the canonical form, up to its opening parenthesis ("+33 (").
		const char* canonicalStart;
		/// Position and length, within the national number, of the part written between the parentheses.
		std::size_t areaStart;
		std::size_t areaLength;
	};

protected:
	explicit ClosedNationalPlan(const Layout& layout);

	/// The canonical number of number, or number unchanged when it is not recognised; traces go to logger, the
	/// trunk prefix is read from config. With the French layout, "0123456789" and "123456789" give
	/// "+33 (0) 123456789". A configuration without the country's rule leaves the trunk prefix empty, so only
	/// full national numbers, bare or behind the external prefix, are recognised.
	std::string makeCanonicalNumber(
		const std::string& number, ZelDialRulesItem* rules, Logger* logger, ZelNumberingConfig* config) const;

private:
	std::string trunkPrefix(ZelNumberingConfig* config) const;

	std::string canonical(const std::string& national) const;

	const Layout m_Layout;
};

} // namespace numbering

#endif // Numbering_ClosedNationalPlan_INCLUDED
