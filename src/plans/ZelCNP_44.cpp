// ZelCNP_44.cpp

#include "plans/ZelCNP_44.h"

#include <typeinfo>

namespace numbering {

namespace {

/// Digits of a national number after the trunk prefix: 10, or 9 in some areas.
const std::string::size_type SHORT_NATIONAL_LENGTH = 9;
const std::string::size_type NATIONAL_LENGTH = 10;

bool hasNationalLength(std::string::size_type length)
{
	return length == SHORT_NATIONAL_LENGTH || length == NATIONAL_LENGTH;
}

} // namespace

Logger* ZelCNP_44::logger = Logger::getLogger(typeid(ZelCNP_44).name());

ZelCNP_44::ZelCNP_44():
	ZelTrunkPrefixPlan(logger, "44", "ZelCNP_44", "", "No specific dialing rules configuration file")
{
}

bool ZelCNP_44::isGeographic(const std::string& rest, const std::string&)
{
	// The country's length, not the area's: a 9-digit London number is accepted.
	return hasNationalLength(rest.size());
}

bool ZelCNP_44::acceptsZeroForm(const std::string& rest)
{
	return hasNationalLength(rest.size());
}

bool ZelCNP_44::isLocal(const std::string& siteArea, const std::string& w)
{
	return hasNationalLength(siteArea.size() + w.size());
}

} // namespace numbering
