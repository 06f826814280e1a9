// ZelCNP_52.cpp

#include "plans/ZelCNP_52.h"

#include "numbering/ZelNumberingConfig.h"

#include "dialable/ZelDialable_52.h"
#include "plans/ZelCNPTrace.h"
#include "plans/ZelPlanPasses.h"

#include <algorithm>
#include <typeinfo>

namespace numbering {

namespace {

const std::string COUNTRY_HEAD = "+52 ";

const std::string::size_type MIN_LENGTH = 7;
const std::string NO_PREFIX;

/// A national number behind the prefix first + second; mobile when the prefix marks a mobile number.
struct NationalForm
{
	const std::string& first;
	const std::string& second;
	bool mobile;
};

} // namespace

const std::string ZelCNP_52::PREFIX_NATIONAL = "01";
const std::string ZelCNP_52::COUNTRY_CODE = "MX";
const std::vector<std::string> ZelCNP_52::AREA_CODES_2 = {"33", "55", "56", "81"};
Logger* ZelCNP_52::logger = Logger::getLogger(typeid(ZelCNP_52).name());

ZelCNP_52::ZelCNP_52()
{
	if (Logger::m_Traces)
	{
		logger->debug("ZelCNP_52()");
	}
}

std::string ZelCNP_52::qap_Country_MakeCanonicalNumber(std::string number, ZelDialRulesItem* rules)
{
	ZelCNPTrace::logCall(logger, number, rules);
	if (number.size() < MIN_LENGTH) return number;
	std::string result;
	if (readNational(number, result)) return result;
	std::string stripped;
	const bool isStripped = ZelPlanPasses::stripExtPrefix(number, rules->getExtPrefix(), stripped);
	if (isStripped && readNational(stripped, result)) return result;
	if (readLocal(isStripped ? stripped : number, rules->getAreaCode(), result)) return result;
	result = ZelPlanPasses::finalForm(COUNTRY_HEAD, PREFIX_NATIONAL, number, stripped);
	return result.empty() ? number : result;
}

bool ZelCNP_52::readNational(const std::string& w, std::string& result)
{
	// Ten digits alone do not tell a mobile number from a fixed one: they are taken as fixed.
	const NationalForm forms[] = {{ZelDialable_52::PREFIX_MOBILE_LOCAL, NO_PREFIX, true},
		{ZelDialable_52::PREFIX_MOBILE_DISTANT, NO_PREFIX, true},
		{PREFIX_NATIONAL, ZelDialable_52::PREFIX_MOBILE, true}, {PREFIX_NATIONAL, NO_PREFIX, false},
		{ZelDialable_52::PREFIX_MOBILE, NO_PREFIX, true}, {NO_PREFIX, NO_PREFIX, false}};
	const NationalForm* form = std::find_if(std::begin(forms), std::end(forms), [&w](const NationalForm& f) {
		return w.size() == NATIONAL_NUMBER_LENGTH + f.first.size() + f.second.size() &&
			   ZelPlanPasses::startsWith(w, f.first) && w.compare(f.first.size(), f.second.size(), f.second) == 0;
	});
	if (form == std::end(forms)) return false;
	const std::string nsn = w.substr(form->first.size() + form->second.size());
	if (nsn[0] < '2' || nsn[0] > '9') return false;
	const bool twoDigits = std::find(AREA_CODES_2.begin(), AREA_CODES_2.end(), nsn.substr(0, 2)) != AREA_CODES_2.end();
	const std::string::size_type areaLength = twoDigits ? 2 : 3;
	if (Logger::m_Traces)
	{
		logger->debug((form->mobile ? "Mobile number detected : '" : "Fixed number detected : '") + w + "'");
	}
	result = COUNTRY_HEAD + "(" + (form->mobile ? mobileMarker() : NO_PREFIX) + nsn.substr(0, areaLength) + ") " +
			 nsn.substr(areaLength);
	return true;
}

bool ZelCNP_52::readLocal(const std::string& w, const std::string& siteArea, std::string& result)
{
	if (siteArea.empty() || w.empty() || w[0] == '0' || w.size() + siteArea.size() != NATIONAL_NUMBER_LENGTH)
		return false;
	if (Logger::m_Traces)
	{
		logger->debug("Local number detected : '" + w + "'");
	}
	result = COUNTRY_HEAD + "(" + siteArea + ") " + w;
	return true;
}

std::string ZelCNP_52::mobileMarker()
{
	// A site dialling the ten digits has no long-distance prefix; ZelDialable_52 would dial the marker as 044
	// or 045, so mobile numbers are then written like fixed ones.
	ZelCountryRuleItem* rule = ZelNumberingConfig::getInstance()->getCountryRule(COUNTRY_CODE);
	return rule != nullptr && rule->getLongDistPrefix().empty() ? "" : ZelDialable_52::PREFIX_MOBILE;
}

} // namespace numbering
