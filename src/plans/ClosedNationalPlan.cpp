// ClosedNationalPlan.cpp

#include "plans/ClosedNationalPlan.h"

#include "support/Plans.h"
#include "support/Trace.h"

#include "Poco/String.h"

namespace numbering {

ClosedNationalPlan::ClosedNationalPlan(const Layout& layout):
	m_Layout(layout)
{
}

std::string ClosedNationalPlan::makeCanonicalNumber(
	const std::string& number, ZelDialRulesItem* rules, Logger* logger, ZelNumberingConfig* config) const
{
	NUMBERING_TRACE(logger, detail::canonicalCallText(number, rules));
	const std::size_t length = number.size();
	const std::string ext = rules->getExtPrefix();
	const std::string trunk = trunkPrefix(config);
	if (length == m_Layout.nationalLength) return canonical(number);
	if (length + trunk.size() == m_Layout.nationalLength && !Poco::startsWith(number, trunk) &&
		!rules->isLocalNumber(number) && !rules->isExceptionNumber(number))
	{
		NUMBERING_TRACE(logger, "National number without national prefix detected : '" + number + "'");
		return canonical(trunk + number);
	}
	if (length == m_Layout.nationalLength + ext.size() && Poco::startsWith(number, ext))
	{
		NUMBERING_TRACE(logger, "National number with external prefix detected : '" + number + "'");
		return canonical(number.substr(ext.size()));
	}
	return number;
}

std::string ClosedNationalPlan::trunkPrefix(ZelNumberingConfig* config) const
{
	// A site whose dialing rules lack the country is still served: with no trunk prefix, a number is national
	// only at full length.
	ZelCountryRuleItem* rule = config->getCountryRule(m_Layout.countryCode);
	return rule ? rule->getLongDistPrefix() : std::string();
}

std::string ClosedNationalPlan::canonical(const std::string& national) const
{
	return m_Layout.canonicalStart + national.substr(m_Layout.areaStart, m_Layout.areaLength) + ") " +
		   national.substr(m_Layout.areaStart + m_Layout.areaLength);
}

} // namespace numbering
