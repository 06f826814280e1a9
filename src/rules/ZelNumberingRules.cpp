// ZelNumberingRules.cpp

#include "numbering/ZelNumberingRules.h"

#include "dialable/ZelDialableManager.h"
#include "plans/ZelCNPManager.h"
#include "support/Text.h"
#include "support/Trace.h"

#include <typeinfo>

namespace numbering {

namespace {

/// The memory of the instance that resetInstance ended, given back only once its successor exists.
void* retiredInstance = nullptr;

} // namespace

ZelNumberingRules* ZelNumberingRules::instance = nullptr;

ZelNumberingConfig* ZelNumberingRules::config = nullptr;

Logger* ZelNumberingRules::logger = Logger::getLogger(typeid(ZelNumberingRules).name());

std::string ZelNumberingRules::TELEPHONENUMBER_FORMAT_CHARACTER = " ()-.";

std::string ZelNumberingRules::TELEPHONENUMBER_SPECIAL_CHARACTER = "*#ABCD";

ZelNumberingRules* ZelNumberingRules::getInstance()
{
	if (!instance)
	{
		instance = new ZelNumberingRules();
		::operator delete(retiredInstance);
		retiredInstance = nullptr;
	}
	return instance;
}

void ZelNumberingRules::resetInstance()
{
	NUMBERING_TRACE(logger, "Releasing resources");
	ZelCNPManager::resetInstance();
	ZelDialableManager::resetInstance();
	ZelNumberingConfig::resetInstance();
	config = nullptr;
	if (instance)
	{
		// Hosts tell a rebuilt instance from the old one by its address, so the old memory is held until the
		// next getInstance has its own; otherwise the allocator hands the same block straight back.
		instance->~ZelNumberingRules();
		retiredInstance = instance;
		instance = nullptr;
	}
}

ZelNumberingRules::ZelNumberingRules()
{
	NUMBERING_TRACE(logger, "ZelNumberingRules()");
	if (!config) config = ZelNumberingConfig::getInstance();
}

ZelNumberingRules::~ZelNumberingRules() = default;

std::vector<std::string>& ZelNumberingRules::getCountryList()
{
	return config->getCountryList();
}

std::string ZelNumberingRules::getCountryCode(std::string countryName)
{
	return config->getCountryCodeFromName(countryName);
}

std::string ZelNumberingRules::getCountryName(std::string countryCode)
{
	return config->getCountryName(countryCode);
}

std::string ZelNumberingRules::getCountryCodeFromNumber(std::string countryNumber)
{
	return config->getCountryCodeFromNumber(countryNumber);
}

std::string ZelNumberingRules::checkPhoneNumber(std::string number)
{
	const bool traces = Logger::m_Traces;
	// The kept characters are packed to the front of the argument's own copy, unless the trace quotes it.
	std::string result = traces ? number : std::move(number);
	std::string::size_type kept = 0;
	for (std::string::size_type i = 0; i < result.size(); ++i)
	{
		const char c = result[i];
		if (detail::isDigit(c) || detail::isOneOf(c, TELEPHONENUMBER_SPECIAL_CHARACTER))
		{
			result[kept++] = c;
		}
		else if (!detail::isOneOf(c, TELEPHONENUMBER_FORMAT_CHARACTER))
		{
			kept = 0;
			break;
		}
	}
	result.resize(kept);
	if (traces) logger->debug("checkPhoneNumber('" + number + "') returns '" + result + "'");
	return result;
}

bool ZelNumberingRules::isPrefixNeeded(ZelDialRulesItem* item, std::string number)
{
	if (!item) return false;
	return static_cast<long long>(number.size()) >= item->getLocalNbLength() && !item->isExceptionNumber(number);
}

} // namespace numbering
