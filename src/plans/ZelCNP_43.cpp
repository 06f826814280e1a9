// ZelCNP_43.cpp

#include "plans/ZelCNP_43.h"

#include <typeinfo>

namespace numbering {

namespace {

const TrunkPrefixPlan::Country AUSTRIA{
	"43", "ZelCNP_43", "No specific configuration file for Austria", TrunkPrefixPlan::NO_TABLE_TEXT};

} // namespace

Logger* ZelCNP_43::logger = Logger::getLogger(typeid(ZelCNP_43).name());

ZelCNP_43::ZelCNP_43():
	TrunkPrefixPlan(logger, AUSTRIA)
{
}

} // namespace numbering
