// ZelCNP_61.cpp

#include "plans/ZelCNP_61.h"

#include <typeinfo>

namespace numbering {

namespace {

/// Digits of a national number after the trunk prefix.
const TrunkPrefixPlan::Lengths NATIONAL{9, 9};

/// Every national number of the right length is written, "+61 (0) " + digits when its code is unknown; local
/// numbers have 8 digits.
const TrunkPrefixPlan::Country AUSTRALIA{"61", "ZelCNP_61", "No specific configuration file for Australia",
	TrunkPrefixPlan::NO_TABLE_TEXT, NATIONAL, {8, 8}};

/// The service numbers 1300 and 1800 + 6 digits and 13 + 4 digits.
const std::vector<TrunkPrefixPlan::Block> SERVICE_NUMBERS = {{"1300", {10, 10}}, {"1800", {10, 10}}, {"13", {6, 6}}};

} // namespace

Logger* ZelCNP_61::logger = Logger::getLogger(typeid(ZelCNP_61).name());

ZelCNP_61::ZelCNP_61():
	TrunkPrefixPlan(logger, AUSTRALIA)
{
}

bool ZelCNP_61::readServiceNumber(const std::string& candidate, std::string& result)
{
	const Block* service = findBlock(SERVICE_NUMBERS, candidate);
	if (!service) return false;
	result = countryHead() + service->lead + " " + candidate.substr(service->lead.size());
	return true;
}

TrunkPrefixPlan::Verdict ZelCNP_61::decideBeforeTable(const std::string& digits, const Pass&, std::string& result)
{
	// The digits after a "0" are how an international call reaches the plan ("00 61 1300 ..." as "01300...").
	if (readServiceNumber(digits, result)) return Verdict::Read;
	return digits[0] == '1' || !NATIONAL.holds(digits.size()) ? Verdict::NotNational : Verdict::AskTable;
}

} // namespace numbering
