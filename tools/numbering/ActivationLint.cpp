// ActivationLint.cpp

#include "ActivationLint.h"

#include "PlanCountries.h"

#include "Poco/File.h"
#include "Poco/Path.h"
#include "Poco/String.h"

#include <algorithm>

namespace numbering {
namespace tool {

namespace {

const std::string SWITCH_MARK = "cnp_";
const std::size_t LONGEST_COUNTRY_NUMBER = 3;

bool isOneOf(const std::string& value, std::initializer_list<const char*> accepted)
{
	return std::find(accepted.begin(), accepted.end(), value) != accepted.end();
}

} // namespace

ActivationLint::ActivationLint(
	const ConfigFile& file, const DialingRulesLint* dialingRules, const std::string& directory, LintReport& report):
	m_File(file),
	m_DialingRules(dialingRules),
	m_Directory(directory),
	m_Report(report)
{
	file.walkAsLoader(report, [this](const std::string& key) { checkSwitch(key); });
}

void ActivationLint::checkSwitch(const std::string& key)
{
	const std::string number =
		key.compare(0, SWITCH_MARK.size(), SWITCH_MARK) == 0 ? key.substr(SWITCH_MARK.size()) : "";
	if (number.empty() || number.size() > LONGEST_COUNTRY_NUMBER)
	{
		m_File.add(m_Report, key, LintReport::SKIPPED, "not read: switches are cnp_<country number>");
		return;
	}
	if (!m_DialingRules || m_DialingRules->principalOf(number).empty())
	{
		m_File.add(m_Report, key, LintReport::SKIPPED,
			"no dialing-rules line marks country number " + number + " 'P': the switch is ignored");
		return;
	}
	const std::string value = m_File.valueOf(key);
	const std::string lowered = Poco::toLower(value);
	if (isOneOf(lowered, {"true", "on", "1"}))
		checkSwitchedOn(key, number);
	else if (!isOneOf(lowered, {"false", "off", "0"}))
	{
		m_File.add(m_Report, key, LintReport::SKIPPED,
			"'" + value + "' is none of true, false, on, off, 1 and 0: the switch is ignored");
	}
}

void ActivationLint::checkSwitchedOn(const std::string& key, const std::string& number)
{
	if (!PlanCountries::hasPlan(number))
	{
		m_File.add(m_Report, key, LintReport::UNUSED,
			"country number " + number + " has no numbering plan: switching it on changes nothing");
		return;
	}
	const auto& tables = PlanCountries::tableCountries();
	if (std::find(tables.begin(), tables.end(), number) == tables.end()) return;
	const std::string file = PlanCountries::planFile(m_Directory, number, false);
	if (Poco::File(file).exists() || Poco::File(PlanCountries::planFile(m_Directory, number, true)).exists()) return;
	m_File.add(m_Report, key, LintReport::MISSING,
		"switched on, but neither " + file +
			" nor its _default twin exists: every national number of the country "
			"takes the site's area code");
}

} // namespace tool
} // namespace numbering
