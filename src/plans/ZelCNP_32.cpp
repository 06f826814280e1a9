// ZelCNP_32.cpp

#include "plans/ZelCNP_32.h"

#include <typeinfo>

namespace numbering {

namespace {

/// Zone numbers have 8 digits after the trunk prefix. Mobile numbers (9 digits beginning with 4) and the 70, 78
/// (national rate), 800 (freephone) and 90x (premium) numbers overlap zones 4, 80 and 9.
const TrunkPrefixPlan::Country BELGIUM{"32", "ZelCNP_32", "No specific configuration file for Belgium",
	TrunkPrefixPlan::NO_TABLE_TEXT, {8, 8}, {8, 8}, true,
	{{"4", {9, 9}}, {"70", {8, 8}}, {"78", {8, 8}}, {"800", {8, 8}}, {"90", {8, 8}}}};

} // namespace

Logger* ZelCNP_32::logger = Logger::getLogger(typeid(ZelCNP_32).name());

ZelCNP_32::ZelCNP_32():
	TrunkPrefixPlan(logger, BELGIUM)
{
}

} // namespace numbering
