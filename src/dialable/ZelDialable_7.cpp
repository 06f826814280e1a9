// ZelDialable_7.cpp

#include "dialable/ZelDialable_7.h"

#include "support/Trace.h"

#include <typeinfo>

namespace numbering {
namespace {

const std::string::size_type DIALLED_LENGTH = 11;

/// The long-distance prefix of "RU"; a configuration without that country dials no prefix rather than crash.
std::string russianLongDistPrefix()
{
	ZelCountryRuleItem* russia = ZelNumberingConfig::getInstance()->getCountryRule("RU");
	return russia ? russia->getLongDistPrefix() : std::string();
}

} // namespace

Logger* ZelDialable_7::logger = Logger::getLogger(typeid(ZelDialable_7).name());

std::string ZelDialable_7::makeLongDistDialableNumber(
	std::string& areaNatPfx, std::string& dest, ZelCountryRuleItem*, ZelDialRulesItem*)
{
	std::string result = areaAndDest(areaNatPfx, dest);
	const std::string prefix = russianLongDistPrefix();
	if (prefix.size() + result.size() == DIALLED_LENGTH) result.insert(0, prefix);
	NUMBERING_TRACE(logger, longDistTrace("7-RU ", areaNatPfx, dest, result));
	return result;
}

} // namespace numbering
