// ZelCNP_353.cpp

#include "plans/ZelCNP_353.h"

#include "support/Trace.h"

#include "Poco/String.h"

#include <typeinfo>
#include <utility>

namespace numbering {

namespace {

/// Local numbers have 5 to 8 digits.
const TrunkPrefixPlan::Country IRELAND{"353", "ZelCNP_353", "No specific dialing rules configuration for Ireland",
	"No specific dialing rules configuration for Irelandd", TrunkPrefixPlan::OPEN_PLAN, {5, 8}};

/// 15xx (premium) and 18xx (freephone) numbers, dialled at home without trunk prefix.
const std::vector<TrunkPrefixPlan::Block> SPECIAL_NUMBERS = {{"15", {10, 10}}, {"18", {10, 10}}};

/// Length of the "area" part of a special number in national form: 1800 in "+353 (1800) 123456".
const std::string::size_type SPECIAL_AREA_LENGTH = 4;

} // namespace

Logger* ZelCNP_353::logger = Logger::getLogger(typeid(ZelCNP_353).name());

ZelCNP_353::ZelCNP_353():
	TrunkPrefixPlan(logger, IRELAND)
{
}

std::string ZelCNP_353::qap_Country_MakeCanonicalNumber(std::string number, ZelDialRulesItem* rules)
{
	std::string result = TrunkPrefixPlan::qap_Country_MakeCanonicalNumber(std::move(number), rules);
	NUMBERING_TRACE(logger, "QapCountryMakeCanonicalNumber returns '" + result + "'");
	return result;
}

bool ZelCNP_353::readServiceNumber(const std::string& candidate, std::string& result)
{
	if (!findBlock(SPECIAL_NUMBERS, candidate)) return false;
	result = candidate;
	return true;
}

TrunkPrefixPlan::Verdict ZelCNP_353::decideBeforeTable(const std::string& digits, const Pass& pass, std::string& result)
{
	if (!findBlock(SPECIAL_NUMBERS, digits)) return Verdict::AskTable;
	// Behind the external prefix "0" the number was dialled at home: the second pass keeps its home form,
	// which the canonical form would not give back when dialled.
	const std::string ext = pass.site->getExtPrefix();
	if (pass.dialled.size() == ext.size() + digits.size() && Poco::startsWith(pass.dialled, ext) &&
		pass.dialled.compare(ext.size(), digits.size(), digits) == 0)
		return Verdict::NotNational;
	result = areaForm(digits.substr(0, SPECIAL_AREA_LENGTH), digits.substr(SPECIAL_AREA_LENGTH));
	return Verdict::Read;
}

} // namespace numbering
