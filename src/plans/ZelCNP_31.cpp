// ZelCNP_31.cpp

#include "plans/ZelCNP_31.h"

#include "plans/ZelPlanPasses.h"

#include <typeinfo>

namespace numbering {

namespace {

/// Digits of a national number after the trunk prefix.
const std::string::size_type NATIONAL_LENGTH = 9;

} // namespace

Logger* ZelCNP_31::logger = Logger::getLogger(typeid(ZelCNP_31).name());

ZelCNP_31::ZelCNP_31():
	ZelTrunkPrefixPlan(logger,
		"31",
		"ZelCNP_31",
		"No specific configuration file for Netherlands",
		"No specific dialing rules configuration file")
{
}

bool ZelCNP_31::isGeographic(const std::string& rest, const std::string&)
{
	return rest.size() == NATIONAL_LENGTH;
}

bool ZelCNP_31::acceptsZeroForm(const std::string& rest)
{
	// Mobile and most service numbers share the geographic length; freephone and premium numbers (800, 90x)
	// have 4 to 7 digits behind their code, machine-to-machine numbers (97) 9.
	const std::string::size_type length = rest.size();
	return length == NATIONAL_LENGTH ||
		   ((ZelPlanPasses::startsWith(rest, "800") || ZelPlanPasses::startsWith(rest, "90")) && length >= 7 &&
			   length <= 10) ||
		   (ZelPlanPasses::startsWith(rest, "97") && length == 11);
}

bool ZelCNP_31::isLocal(const std::string& siteArea, const std::string& w)
{
	return siteArea.size() + w.size() == NATIONAL_LENGTH;
}

} // namespace numbering
