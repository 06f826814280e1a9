// ZelCNP_32.cpp

#include "plans/ZelCNP_32.h"

#include "plans/ZelPlanPasses.h"

#include <typeinfo>

namespace numbering {

namespace {

/// Digits of a zone number after the trunk prefix; mobile numbers have one more.
const std::string::size_type NATIONAL_LENGTH = 8;

bool isMobile(const std::string& rest)
{
	return rest.size() == NATIONAL_LENGTH + 1 && rest[0] == '4';
}

/// 70, 78 (national rate), 800 (freephone) and 90x (premium): they overlap zones 80 and 9.
bool isService(const std::string& rest)
{
	return rest.size() == NATIONAL_LENGTH &&
		   (ZelPlanPasses::startsWith(rest, "70") || ZelPlanPasses::startsWith(rest, "78") ||
			   ZelPlanPasses::startsWith(rest, "800") || ZelPlanPasses::startsWith(rest, "90"));
}

} // namespace

Logger* ZelCNP_32::logger = Logger::getLogger(typeid(ZelCNP_32).name());

ZelCNP_32::ZelCNP_32():
	ZelTrunkPrefixPlan(logger,
		"32",
		"ZelCNP_32",
		"No specific configuration file for Belgium",
		"No specific dialing rules configuration file")
{
}

ZelTrunkPrefixPlan::PreRule ZelCNP_32::preRule(const std::string& rest, const Pass&, std::string& result)
{
	if (!isMobile(rest) && !isService(rest)) return PreRule::Continue;
	result = zeroForm(rest);
	return PreRule::Decided;
}

bool ZelCNP_32::isGeographic(const std::string& rest, const std::string&)
{
	return rest.size() == NATIONAL_LENGTH;
}

bool ZelCNP_32::acceptsZeroForm(const std::string& rest)
{
	return rest.size() == NATIONAL_LENGTH;
}

bool ZelCNP_32::isLocal(const std::string& siteArea, const std::string& w)
{
	return siteArea.size() + w.size() == NATIONAL_LENGTH;
}

} // namespace numbering
