// ZelClosedNationalPlan.cpp

#include "plans/ZelClosedNationalPlan.h"

#include "plans/ZelCNPTrace.h"

#include "Poco/String.h"

namespace numbering {

ZelClosedNationalPlan::ZelClosedNationalPlan(const Layout& layout):
	m_Layout(layout)
{
}

std::string ZelClosedNationalPlan::makeCanonicalNumber(
	const std::string& number, ZelDialRulesItem* rules, Logger* logger, ZelNumberingConfig* config) const
{
	ZelCNPTrace::logCall(logger, number, rules);
	const std::size_t n = number.size();
	const std::string ext = rules->getExtPrefix();
	const std::string trunk = trunkPrefix(config);
	if (n == m_Layout.nationalLength) return canonical(number);
	if (n + trunk.size() == m_Layout.nationalLength && !Poco::startsWith(number, trunk) &&
		!rules->isLocalNumber(number) && !rules->isExceptionNumber(number))
	{
		if (Logger::m_Traces)
		{
			logger->debug("National number without national prefix detected : '" + number + "'");
		}
		return canonical(trunk + number);
	}
	if (n == m_Layout.nationalLength + ext.size() && Poco::startsWith(number, ext))
	{
		if (Logger::m_Traces)
		{
			logger->debug("National number with external prefix detected : '" + number + "'");
		}
		return canonical(number.substr(ext.size()));
	}
	return number;
}

std::string ZelClosedNationalPlan::trunkPrefix(ZelNumberingConfig* config) const
{
	// A site whose dialing rules lack the country is still served: with no trunk prefix, a number is national
	// only at full length.
	ZelCountryRuleItem* rule = config->getCountryRule(m_Layout.countryCode);
	return rule ? rule->getLongDistPrefix() : std::string();
}

std::string ZelClosedNationalPlan::canonical(const std::string& national) const
{
	return m_Layout.canonicalStart + national.substr(m_Layout.areaStart, m_Layout.areaLength) + ") " +
		   national.substr(m_Layout.areaStart + m_Layout.areaLength);
}

} // namespace numbering
