// ZelCNP_353.cpp

#include "plans/ZelCNP_353.h"

#include "plans/ZelPlanPasses.h"

#include <typeinfo>

namespace numbering {

namespace {

/// Length of a 15xx (premium) or 18xx (freephone) number, dialled at home without trunk prefix.
const std::string::size_type SPECIAL_LENGTH = 10;
/// Its "area" part in national form: 1800 in "+353 (1800) 123456".
const std::string::size_type SPECIAL_AREA_LENGTH = 4;
const std::string::size_type MIN_LOCAL_LENGTH = 5;
const std::string::size_type MAX_LOCAL_LENGTH = 8;

bool isSpecial(const std::string& digits)
{
	return digits.size() == SPECIAL_LENGTH &&
		   (ZelPlanPasses::startsWith(digits, "15") || ZelPlanPasses::startsWith(digits, "18"));
}

} // namespace

Logger* ZelCNP_353::logger = Logger::getLogger(typeid(ZelCNP_353).name());

ZelCNP_353::ZelCNP_353():
	ZelTrunkPrefixPlan(logger,
		"353",
		"ZelCNP_353",
		"No specific dialing rules configuration for Ireland",
		"No specific dialing rules configuration for Irelandd")
{
}

std::string ZelCNP_353::qap_Country_MakeCanonicalNumber(std::string number, ZelDialRulesItem* rules)
{
	const std::string result = ZelTrunkPrefixPlan::qap_Country_MakeCanonicalNumber(number, rules);
	if (Logger::m_Traces)
	{
		logger->debug("QapCountryMakeCanonicalNumber returns '" + result + "'");
	}
	return result;
}

bool ZelCNP_353::readForm(const std::string& w, std::string& result)
{
	if (!isSpecial(w)) return false;
	result = w;
	return true;
}

ZelTrunkPrefixPlan::PreRule ZelCNP_353::preRule(const std::string& rest, const Pass& pass, std::string& result)
{
	if (!isSpecial(rest)) return PreRule::Continue;
	// Behind the external prefix "0" the number was dialled at home: the second pass keeps its home form,
	// which the canonical form would not give back when dialled.
	const std::string ext = pass.rules->getExtPrefix();
	if (pass.number.size() == ext.size() + rest.size() && ZelPlanPasses::startsWith(pass.number, ext) &&
		pass.number.compare(ext.size(), rest.size(), rest) == 0)
		return PreRule::GiveUp;
	result = areaForm(rest.substr(0, SPECIAL_AREA_LENGTH), rest.substr(SPECIAL_AREA_LENGTH));
	return PreRule::Decided;
}

bool ZelCNP_353::isLocal(const std::string&, const std::string& w)
{
	return w.size() >= MIN_LOCAL_LENGTH && w.size() <= MAX_LOCAL_LENGTH;
}

} // namespace numbering
