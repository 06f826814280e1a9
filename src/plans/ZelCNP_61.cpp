// ZelCNP_61.cpp

#include "plans/ZelCNP_61.h"

#include "plans/ZelPlanPasses.h"

#include <typeinfo>

namespace numbering {

namespace {

/// Digits of a national number after the trunk prefix, and of a local number.
const std::string::size_type NATIONAL_LENGTH = 9;
const std::string::size_type LOCAL_LENGTH = 8;

/// A service number: its leading digits, its length, and how many of its digits are written after them.
struct ServiceNumber
{
	const char* lead;
	std::string::size_type length;
	std::string::size_type tail;
};

const ServiceNumber SERVICE_NUMBERS[] = {{"1300", 10, 6}, {"1800", 10, 6}, {"13", 6, 4}};

} // namespace

Logger* ZelCNP_61::logger = Logger::getLogger(typeid(ZelCNP_61).name());

ZelCNP_61::ZelCNP_61():
	ZelTrunkPrefixPlan(logger,
		"61",
		"ZelCNP_61",
		"No specific configuration file for Australia",
		"No specific dialing rules configuration file")
{
}

bool ZelCNP_61::readForm(const std::string& w, std::string& result)
{
	for (const ServiceNumber& service : SERVICE_NUMBERS)
	{
		if (w.size() == service.length && ZelPlanPasses::startsWith(w, service.lead))
		{
			result = countryHead() + service.lead + " " + w.substr(w.size() - service.tail);
			return true;
		}
	}
	return false;
}

ZelTrunkPrefixPlan::PreRule ZelCNP_61::preRule(const std::string& rest, const Pass&, std::string& result)
{
	// The digits after a "0" are how an international call reaches the plan ("00 61 1300 ..." as "01300...").
	if (readForm(rest, result)) return PreRule::Decided;
	return rest[0] == '1' || rest.size() != NATIONAL_LENGTH ? PreRule::GiveUp : PreRule::Continue;
}

bool ZelCNP_61::isGeographic(const std::string&, const std::string&)
{
	return true;
}

bool ZelCNP_61::acceptsZeroForm(const std::string&)
{
	return true;
}

bool ZelCNP_61::isLocal(const std::string&, const std::string& w)
{
	return w.size() == LOCAL_LENGTH;
}

} // namespace numbering
