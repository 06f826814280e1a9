// ZelCNP_43.cpp

#include "plans/ZelCNP_43.h"

#include <typeinfo>

namespace numbering {

Logger* ZelCNP_43::logger = Logger::getLogger(typeid(ZelCNP_43).name());

ZelCNP_43::ZelCNP_43():
	ZelTrunkPrefixPlan(logger,
		"43",
		"ZelCNP_43",
		"No specific configuration file for Austria",
		"No specific dialing rules configuration file")
{
}

} // namespace numbering
