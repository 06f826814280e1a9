// ZelDialable_52.cpp

#include "dialable/ZelDialable_52.h"

#include "plans/ZelCNP_52.h"
#include "support/Trace.h"

#include <typeinfo>

namespace numbering {

const std::string ZelDialable_52::PREFIX_MOBILE = ZelCNP_52::PREFIX_MOBILE;
const std::string ZelDialable_52::PREFIX_MOBILE_LOCAL = ZelCNP_52::PREFIX_MOBILE_LOCAL;
const std::string ZelDialable_52::PREFIX_MOBILE_DISTANT = ZelCNP_52::PREFIX_MOBILE_DISTANT;

Logger* ZelDialable_52::logger = Logger::getLogger(typeid(ZelDialable_52).name());

std::string ZelDialable_52::makeLongDistDialableNumber(
	std::string& areaNatPfx, std::string& dest, ZelCountryRuleItem* rule, ZelDialRulesItem* site)
{
	std::string result = reservedNumber();
	if (areaNatPfx.compare(0, PREFIX_MOBILE.size(), PREFIX_MOBILE) == 0)
	{
		const std::string area = areaNatPfx.substr(PREFIX_MOBILE.size());
		result += area == site->getAreaCode() ? PREFIX_MOBILE_LOCAL : PREFIX_MOBILE_DISTANT;
		result += area;
	}
	else
	{
		result += rule->getLongDistPrefix();
		result += areaNatPfx;
	}
	result += dest;
	NUMBERING_TRACE(logger, longDistTrace("52-MX ", areaNatPfx, dest, result));
	return result;
}

} // namespace numbering
