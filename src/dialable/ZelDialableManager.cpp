// ZelDialableManager.cpp

#include "dialable/ZelDialableManager.h"

#include "dialable/ZelDialableFactory.h"
#include "support/Trace.h"

#include <typeinfo>

namespace numbering {

ZelDialableManager* ZelDialableManager::instance = nullptr;

Logger* ZelDialableManager::logger = Logger::getLogger(typeid(ZelDialableManager).name());

ZelDialableManager* ZelDialableManager::getInstance()
{
	NUMBERING_TRACE(logger, "getInstance()");
	if (!instance) instance = new ZelDialableManager();
	return instance;
}

void ZelDialableManager::resetInstance()
{
	delete instance;
	instance = nullptr;
}

ZelDialable* ZelDialableManager::getDialable(std::string countryNumber)
{
	NUMBERING_TRACE(logger, "getDialable('" + countryNumber + "')");
	auto it = m_Cache.find(countryNumber);
	if (it != m_Cache.end()) return it->second.get();
	return loadDialableClass(countryNumber);
}

ZelDialable* ZelDialableManager::loadDialableClass(std::string countryNumber)
{
	if (countryNumber.empty())
	{
		NUMBERING_TRACE(logger, "loadDialableClass('strCountryNumber=NULL')");
		return nullptr;
	}
	NUMBERING_TRACE(logger, "loadDialableClass('" + countryNumber + "')");
	// Adopts the factory's reference, which goes when this function returns: the cache keeps its own.
	Poco::AutoPtr<ZelDialable> maker(ZelDialableFactory::CreateInstance(countryNumber));
	return m_Cache.insert(std::make_pair(countryNumber, maker)).first->second.get();
}

} // namespace numbering
