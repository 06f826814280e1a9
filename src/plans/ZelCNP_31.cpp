// ZelCNP_31.cpp

#include "plans/ZelCNP_31.h"

#include <typeinfo>

namespace numbering {

namespace {

/// Mobile and most service numbers share the geographic length, 9 digits; freephone and premium numbers (800,
/// 90x) have 4 to 7 digits behind their code, machine-to-machine numbers (97) 9.
const TrunkPrefixPlan::Country NETHERLANDS{"31", "ZelCNP_31", "No specific configuration file for Netherlands",
	TrunkPrefixPlan::NO_TABLE_TEXT, {9, 9}, {9, 9}, true, {}, {{"800", {7, 10}}, {"90", {7, 10}}, {"97", {11, 11}}}};

} // namespace

Logger* ZelCNP_31::logger = Logger::getLogger(typeid(ZelCNP_31).name());

ZelCNP_31::ZelCNP_31():
	TrunkPrefixPlan(logger, NETHERLANDS)
{
}

} // namespace numbering
