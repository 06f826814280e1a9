// ZelCNP_49.cpp

#include "plans/ZelCNP_49.h"

#include "support/Plans.h"

#include <typeinfo>

namespace numbering {

namespace {

const TrunkPrefixPlan::Country GERMANY{"49", "ZelCNP_49", "", TrunkPrefixPlan::NO_TABLE_TEXT};

} // namespace

Logger* ZelCNP_49::logger = Logger::getLogger(typeid(ZelCNP_49).name());

ZelCNP_49::ZelCNP_49():
	TrunkPrefixPlan(logger, GERMANY)
{
}

bool ZelCNP_49::readUnknownCode(const std::string& digits, const std::string& siteArea, std::string& result)
{
	result = areaForm(siteArea, digits);
	return true;
}

bool ZelCNP_49::isLocal(const std::string&, const std::string&)
{
	return true;
}

bool ZelCNP_49::isBehindExtPrefix(const std::string& number, const std::string& ext)
{
	return detail::followsExtPrefix(number, ext);
}

bool ZelCNP_49::keepCountry(const std::string&, const std::string&, std::string&)
{
	return false;
}

} // namespace numbering
