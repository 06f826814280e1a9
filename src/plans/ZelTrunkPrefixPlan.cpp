// ZelTrunkPrefixPlan.cpp

#include "plans/ZelTrunkPrefixPlan.h"

#include "plans/ZelCNPTrace.h"
#include "plans/ZelPlanPasses.h"

namespace numbering {

namespace {

const std::string TRUNK_PREFIX = "0";

/// Shortest number a plan reads, and shortest national number without its trunk prefix.
const std::string::size_type MIN_DIGITS = 3;

/// Length of the "(" and ") " around an area code.
const std::string::size_type AREA_FRAME_LENGTH = 3;

bool beginsWithTrunkPrefix(const std::string& s)
{
	return !s.empty() && s[0] == TRUNK_PREFIX[0];
}

} // namespace

ZelTrunkPrefixPlan::ZelTrunkPrefixPlan(Logger* logger,
	const std::string& callingCode,
	const std::string& className,
	const std::string& noCountryFileText,
	const std::string& noDefaultFileText):
	ZelAreaCodeTablePlan(logger, callingCode, className, noCountryFileText, noDefaultFileText),
	m_CountryHead("+" + callingCode + " ")
{
}

std::string ZelTrunkPrefixPlan::qap_Country_MakeCanonicalNumber(std::string number, ZelDialRulesItem* rules)
{
	ZelCNPTrace::logCall(planLogger(), number, rules);
	if (number.size() < MIN_DIGITS) return number;
	std::string result;
	if (readPass(Pass{number, number, rules, false}, result)) return result;
	std::string stripped;
	const bool isStripped = ZelPlanPasses::stripExtPrefix(number, rules->getExtPrefix(), stripped);
	// Not behind the external prefix, a number with a trunk prefix has had its national reading: read as
	// local, its trunk prefix would end up inside a subscriber number.
	if ((isStripped || !beginsWithTrunkPrefix(number)) &&
		readPass(Pass{isStripped ? stripped : number, number, rules, true}, result))
		return result;
	result = ZelPlanPasses::finalForm(zeroForm(""), TRUNK_PREFIX, number, stripped);
	return result.empty() ? number : result;
}

bool ZelTrunkPrefixPlan::readPass(const Pass& pass, std::string& result)
{
	if (readForm(pass.w, result)) return true;
	if (beginsWithTrunkPrefix(pass.w)) return readNational(pass.w.substr(TRUNK_PREFIX.size()), pass, result);
	return pass.second && m_Translate && readLocal(pass, result);
}

bool ZelTrunkPrefixPlan::readForm(const std::string&, std::string&)
{
	return false;
}

ZelTrunkPrefixPlan::PreRule ZelTrunkPrefixPlan::preRule(const std::string&, const Pass&, std::string&)
{
	return PreRule::Continue;
}

bool ZelTrunkPrefixPlan::isGeographic(const std::string&, const std::string& sub)
{
	return sub.size() >= MIN_DIGITS;
}

bool ZelTrunkPrefixPlan::acceptsZeroForm(const std::string&)
{
	return false;
}

bool ZelTrunkPrefixPlan::isLocal(const std::string&, const std::string& w)
{
	return w.size() >= MIN_DIGITS;
}

std::string ZelTrunkPrefixPlan::areaForm(const std::string& area, const std::string& sub) const
{
	std::string form;
	form.reserve(m_CountryHead.size() + area.size() + sub.size() + AREA_FRAME_LENGTH);
	form.append(m_CountryHead).append("(").append(area).append(") ").append(sub);
	return form;
}

std::string ZelTrunkPrefixPlan::zeroForm(const std::string& digits) const
{
	return areaForm(TRUNK_PREFIX, digits);
}

const std::string& ZelTrunkPrefixPlan::countryHead() const
{
	return m_CountryHead;
}

bool ZelTrunkPrefixPlan::readNational(const std::string& rest, const Pass& pass, std::string& result)
{
	// A second "0" opens an international number; a number shorter than every code cannot be split.
	if (rest.size() < MIN_DIGITS || beginsWithTrunkPrefix(rest) ||
		rest.size() < static_cast<std::string::size_type>(m_MaxAreaCodeLength))
		return false;
	switch (preRule(rest, pass, result))
	{
	case PreRule::Decided:
		return true;
	case PreRule::GiveUp:
		return false;
	case PreRule::Continue:
		break;
	}
	std::string sub = rest;
	// takeAreaCode writes the table's trace lines; it shortens sub only when rest begins with a known code
	// (otherwise it answers the site's code, which is never right for a number with its own trunk prefix).
	const std::string area = takeAreaCode(sub, pass.rules);
	if (sub.size() < rest.size())
	{
		if (!isGeographic(rest, sub)) return false;
		result = areaForm(area, sub);
		return true;
	}
	if (!acceptsZeroForm(rest)) return false;
	result = zeroForm(rest);
	return true;
}

bool ZelTrunkPrefixPlan::readLocal(const Pass& pass, std::string& result)
{
	// Local subscriber numbers begin with 2 to 9; 1 opens short codes, which keep their form.
	const std::string siteArea = pass.rules->getAreaCode();
	if (siteArea.empty() || pass.w[0] < '2' || pass.w[0] > '9' || !isLocal(siteArea, pass.w)) return false;
	result = areaForm(siteArea, pass.w);
	return true;
}

} // namespace numbering
