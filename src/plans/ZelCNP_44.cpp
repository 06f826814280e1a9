// ZelCNP_44.cpp

#include "plans/ZelCNP_44.h"

#include <typeinfo>

namespace numbering {

namespace {

/// National numbers have 10 digits after the trunk prefix, or 9 in some areas; the country's length decides,
/// not the area's, so a 9-digit London number is accepted.
const TrunkPrefixPlan::Country UNITED_KINGDOM{
	"44", "ZelCNP_44", "", TrunkPrefixPlan::NO_TABLE_TEXT, {9, 10}, {9, 10}, true};

} // namespace

Logger* ZelCNP_44::logger = Logger::getLogger(typeid(ZelCNP_44).name());

ZelCNP_44::ZelCNP_44():
	TrunkPrefixPlan(logger, UNITED_KINGDOM)
{
}

} // namespace numbering
