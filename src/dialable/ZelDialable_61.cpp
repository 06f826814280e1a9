// ZelDialable_61.cpp

#include "dialable/ZelDialable_61.h"

#include "numbering/ZelNumberingConfig.h"

#include <typeinfo>

namespace numbering {
namespace {

const std::string LONG_DIST_LABEL = "61-AU makeLongDistDialableNumber() AreaNatPfx: '";

} // namespace

Logger* ZelDialable_61::logger = Logger::getLogger(typeid(ZelDialable_61).name());

std::string ZelDialable_61::makeLongDistDialableNumber(
	std::string& areaNatPfx, std::string& dest, ZelCountryRuleItem*, ZelDialRulesItem*)
{
	std::string result;
	result.reserve(ZelNumberingConfig::MAX_PHONE_NUMBER_LENGTH);
	result += areaNatPfx;
	result += dest;
	// An empty number reads as a null first character, so it is dialled as the bare trunk digit.
	if (result[0] != '1' && result[0] != '0') result.insert(0, 1, '0');
	if (Logger::m_Traces)
	{
		logger->debug(longDistTrace(LONG_DIST_LABEL, areaNatPfx, dest, result));
	}
	return result;
}

} // namespace numbering
