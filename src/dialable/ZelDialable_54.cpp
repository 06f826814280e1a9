// ZelDialable_54.cpp

#include "dialable/ZelDialable_54.h"

#include "plans/ZelCNPManager.h"
#include "plans/ZelCNP_54.h"
#include "support/Trace.h"

#include <typeinfo>

namespace numbering {

Logger* ZelDialable_54::logger = Logger::getLogger(typeid(ZelDialable_54).name());

std::string ZelDialable_54::makeLongDistDialableNumber(
	std::string& areaNatPfx, std::string& dest, ZelCountryRuleItem* rule, ZelDialRulesItem* site)
{
	return MakeLocalOrLongDistDialableNumber(areaNatPfx, dest, rule, site);
}

std::string ZelDialable_54::makeLocalDialableNumber(
	std::string& areaNatPfx, std::string& dest, ZelCountryRuleItem* rule, ZelDialRulesItem* site)
{
	return MakeLocalOrLongDistDialableNumber(areaNatPfx, dest, rule, site);
}

std::string ZelDialable_54::MakeLocalOrLongDistDialableNumber(
	std::string& areaNatPfx, std::string& dest, ZelCountryRuleItem* rule, ZelDialRulesItem* site)
{
	std::string result = areaAndDest(areaNatPfx, dest);
	// A plan of another class, or none, cannot split the number either.
	ZelCNP_54* plan = dynamic_cast<ZelCNP_54*>(ZelCNPManager::getInstance()->getCNP("AR"));
	const auto stripped = plan != nullptr ? plan->StripNbr(result, site) : nullptr;
	if (!stripped)
	{
		NUMBERING_TRACE(logger, "makeLocalOrLongDistDialableNumber(Argentina): not possible to strip the number");
		return result;
	}
	const std::string area = stripped->getAreaCode();
	result.clear();
	if (area.empty() || site == nullptr || area != site->getAreaCode())
	{
		result += rule->getLongDistPrefix();
		result += area;
	}
	if (stripped->isMobile()) result += ZelCNP_54::PREFIX_MOBILE_NATIONAL;
	result += stripped->getNumber();
	return result;
}

} // namespace numbering
