// TrunkPrefixPlan.cpp

#include "plans/TrunkPrefixPlan.h"

#include "support/Plans.h"
#include "support/Trace.h"

#include "Poco/String.h"

namespace numbering {

namespace {

const std::string TRUNK_PREFIX = "0";

/// What follows the area code in a canonical number.
const std::string AREA_END = ") ";

bool beginsWithTrunkPrefix(const std::string& s)
{
	return !s.empty() && s[0] == TRUNK_PREFIX[0];
}

} // namespace

bool TrunkPrefixPlan::Block::holds(const std::string& digits) const
{
	return lengths.holds(digits.size()) && Poco::startsWith(digits, lead);
}

TrunkPrefixPlan::TrunkPrefixPlan(Logger* logger, const Country& country):
	AreaCodeTablePlan(
		logger, country.callingCode, country.className, country.noCountryFileText, country.noDefaultFileText),
	m_Country(country),
	m_CountryHead("+" + std::string(country.callingCode) + " "),
	m_AreaStart(m_CountryHead + "(")
{
}

std::string TrunkPrefixPlan::qap_Country_MakeCanonicalNumber(std::string number, ZelDialRulesItem* rules)
{
	NUMBERING_TRACE(planLogger(), detail::canonicalCallText(number, rules));
	if (number.size() < detail::MIN_DIGITS) return number;
	std::string result;
	if (readPass(Pass{number, number, rules, false}, result)) return result;
	const std::string ext = rules->getExtPrefix();
	std::string stripped;
	if (isBehindExtPrefix(number, ext))
	{
		stripped = number.substr(ext.size());
		if (readPass(Pass{stripped, number, rules, true}, result)) return result;
	}
	// Read as national again, a number with a trunk prefix would give the first pass's answer.
	else if (beginsWithTrunkPrefix(number) ? readLocal(number, rules, result)
										   : readPass(Pass{number, number, rules, true}, result))
		return result;
	return keepCountry(number, stripped, result) ? result : number;
}

bool TrunkPrefixPlan::readPass(const Pass& pass, std::string& result)
{
	if (readServiceNumber(pass.candidate, result)) return true;
	if (beginsWithTrunkPrefix(pass.candidate))
		return readNational(pass.candidate.substr(TRUNK_PREFIX.size()), pass, result);
	return pass.mayBeLocal && readLocal(pass.candidate, pass.site, result);
}

bool TrunkPrefixPlan::readServiceNumber(const std::string&, std::string&)
{
	return false;
}

TrunkPrefixPlan::Verdict TrunkPrefixPlan::decideBeforeTable(const std::string& digits, const Pass&, std::string& result)
{
	if (!findBlock(m_Country.zeroFormFirst, digits)) return Verdict::AskTable;
	result = zeroForm(digits);
	return Verdict::Read;
}

bool TrunkPrefixPlan::readUnknownCode(const std::string& digits, const std::string&, std::string& result)
{
	if (!m_Country.national.holds(digits.size()) && !findBlock(m_Country.zeroFormIfUnknown, digits)) return false;
	result = zeroForm(digits);
	return true;
}

bool TrunkPrefixPlan::isLocal(const std::string& siteArea, const std::string& candidate)
{
	// Local subscriber numbers begin with 2 to 9; 1 opens short codes, which keep their form.
	if (candidate[0] < '2' || candidate[0] > '9') return false;
	return m_Country.local.holds(candidate.size() + (m_Country.localWithSiteArea ? siteArea.size() : 0));
}

bool TrunkPrefixPlan::isBehindExtPrefix(const std::string& number, const std::string& ext)
{
	return !ext.empty() && detail::followsExtPrefix(number, ext);
}

bool TrunkPrefixPlan::keepCountry(const std::string& number, const std::string& stripped, std::string& result)
{
	result = detail::keepCountryForm(zeroForm(""), TRUNK_PREFIX, number, stripped);
	return !result.empty();
}

const TrunkPrefixPlan::Block* TrunkPrefixPlan::findBlock(const std::vector<Block>& blocks, const std::string& digits)
{
	for (const Block& block : blocks)
		if (block.holds(digits)) return &block;
	return nullptr;
}

std::string TrunkPrefixPlan::areaForm(const std::string& area, const std::string& subscriber) const
{
	std::string form;
	form.reserve(m_AreaStart.size() + area.size() + AREA_END.size() + subscriber.size());
	form.append(m_AreaStart).append(area).append(AREA_END).append(subscriber);
	return form;
}

std::string TrunkPrefixPlan::zeroForm(const std::string& digits) const
{
	return areaForm(TRUNK_PREFIX, digits);
}

const std::string& TrunkPrefixPlan::countryHead() const
{
	return m_CountryHead;
}

bool TrunkPrefixPlan::readNational(std::string digits, const Pass& pass, std::string& result)
{
	// A second "0" opens an international number; a number shorter than every code cannot be split.
	if (digits.size() < detail::MIN_DIGITS || beginsWithTrunkPrefix(digits) || digits.size() < longestAreaCode())
		return false;
	const Verdict verdict = decideBeforeTable(digits, pass, result);
	if (verdict != Verdict::AskTable) return verdict == Verdict::Read;
	const std::string::size_type length = digits.size();
	// takeAreaCode writes the table's trace lines and leaves the subscriber number in digits; for an unknown code
	// it leaves digits whole and answers the site's area code.
	const std::string area = takeAreaCode(digits, pass.site);
	if (digits.size() == length) return readUnknownCode(digits, area, result);
	// An open plan asks for 3 subscriber digits, the others for the country's length.
	const bool geographic = m_Country.national.max == OPEN_PLAN.max ? digits.size() >= detail::MIN_DIGITS
																	: m_Country.national.holds(length);
	if (!geographic) return false;
	result = areaForm(area, digits);
	return true;
}

bool TrunkPrefixPlan::readLocal(const std::string& candidate, ZelDialRulesItem* site, std::string& result)
{
	if (!translates()) return false;
	const std::string siteArea = site->getAreaCode();
	if (siteArea.empty() || !isLocal(siteArea, candidate)) return false;
	result = areaForm(siteArea, candidate);
	return true;
}

} // namespace numbering
