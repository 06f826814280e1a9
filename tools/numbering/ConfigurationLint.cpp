// ConfigurationLint.cpp

#include "ConfigurationLint.h"

#include "numbering/ZelCountryRuleItem.h"
#include "numbering/ZelNumberingConfig.h"

#include "ActivationLint.h"
#include "MaskLint.h"
#include "OperatorFileLint.h"
#include "PlanCountries.h"
#include "RoundTripLint.h"

#include <algorithm>

namespace numbering {
namespace tool {

namespace {

std::vector<std::string> planOrder()
{
	std::vector<std::string> order = PlanCountries::tableCountries();
	// The factory tests 57 between 54 and 61.
	order.insert(std::find(order.begin(), order.end(), "61"), PlanCountries::COLOMBIA);
	return order;
}

} // namespace

ConfigurationLint::ConfigurationLint(const std::string& directory):
	m_Directory(directory),
	m_DialingRules(ZelNumberingConfig::DIALING_RULES_FILE, ZelNumberingConfig::DIALING_RULES_DEFAULT_FILE),
	m_Masks(ZelNumberingConfig::COUNTRY_MASKS_FILE, ZelNumberingConfig::COUNTRY_MASKS_DEFAULT_FILE),
	m_Activation(ZelNumberingConfig::SPECIFIC_FORMAT_FILE, ZelNumberingConfig::SPECIFIC_FORMAT_DEFAULT_FILE),
	m_PlanOrder(planOrder())
{
	for (const std::string& callingCode : m_PlanOrder)
	{
		m_PlanFiles.emplace(callingCode, ConfigFile(PlanCountries::planFile(directory, callingCode, false),
											 PlanCountries::planFile(directory, callingCode, true)));
	}
}

bool ConfigurationLint::foundAny() const
{
	return m_DialingRules.exists() || m_Masks.exists() || m_Activation.exists() ||
		   std::any_of(m_PlanFiles.begin(), m_PlanFiles.end(), [](const auto& plan) { return plan.second.exists(); });
}

void ConfigurationLint::check(LintReport& report)
{
	for (const ConfigFile* file : {&m_DialingRules, &m_Masks, &m_Activation})
		file->addFilesTo(report);
	for (const std::string& callingCode : m_PlanOrder)
		m_PlanFiles.at(callingCode).addFilesTo(report);
	if (m_DialingRules.exists())
	{
		m_DialingRules.reportFiles(report);
		m_DialingRulesLint = std::make_unique<DialingRulesLint>(m_DialingRules, report);
	}
	else
	{
		report.add(m_DialingRules.sitePath(), 0, LintReport::MISSING,
			"missing, and so is its _default twin: the library knows no country");
	}
	if (m_Masks.exists())
	{
		m_Masks.reportFiles(report);
		const MaskLint masks(m_Masks, m_DialingRulesLint.get(), report);
	}
	if (m_Activation.exists())
	{
		m_Activation.reportFiles(report);
		const ActivationLint switches(m_Activation, m_DialingRulesLint.get(), m_Directory, report);
	}
	for (const std::string& callingCode : m_PlanOrder)
		checkPlanFile(callingCode, m_PlanFiles.at(callingCode), report);
}

void ConfigurationLint::checkRoundTrip(ZelNumberingRules& rules, ZelDialRulesItem& site, LintReport& report) const
{
	ZelCountryRuleItem* rule = ZelNumberingConfig::getInstance()->getCountryRule(site.getCountryId());
	auto table = m_Tables.find(rule->getCountryNumber());
	if (table == m_Tables.end()) return;
	RoundTripLint(rules, site, rule->getLongDistPrefix())
		.check(m_PlanFiles.at(table->first), table->second->storedCodes(), report);
}

void ConfigurationLint::checkPlanFile(const std::string& callingCode, const ConfigFile& file, LintReport& report)
{
	if (!file.exists()) return;
	file.reportFiles(report);
	if (callingCode != PlanCountries::COLOMBIA)
	{
		m_Tables[callingCode] = std::make_unique<AreaCodeTableLint>(file, report);
		return;
	}
	const OperatorFileLint operators(file, report);
}

} // namespace tool
} // namespace numbering
