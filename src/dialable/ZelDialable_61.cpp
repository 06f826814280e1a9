// ZelDialable_61.cpp

#include "dialable/ZelDialable_61.h"

#include "support/Trace.h"

#include <typeinfo>

namespace numbering {

Logger* ZelDialable_61::logger = Logger::getLogger(typeid(ZelDialable_61).name());

std::string ZelDialable_61::makeLongDistDialableNumber(
	std::string& areaNatPfx, std::string& dest, ZelCountryRuleItem*, ZelDialRulesItem*)
{
	std::string result = areaAndDest(areaNatPfx, dest);
	// An empty number reads as a null first character, so it is dialled as the bare trunk digit.
	if (result[0] != '1' && result[0] != '0') result.insert(0, 1, '0');
	NUMBERING_TRACE(logger, longDistTrace("61-AU ", areaNatPfx, dest, result));
	return result;
}

} // namespace numbering
