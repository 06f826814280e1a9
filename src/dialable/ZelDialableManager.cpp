// ZelDialableManager.cpp

#include "dialable/ZelDialableManager.h"

#include "dialable/ZelDialableFactory.h"

#include <typeinfo>

namespace numbering {

ZelDialableManager* ZelDialableManager::instance = nullptr;

Logger* ZelDialableManager::logger = Logger::getLogger(typeid(ZelDialableManager).name());

ZelDialableManager* ZelDialableManager::getInstance()
{
	if (Logger::m_Traces) logger->debug("getInstance()");
	if (!instance) instance = new ZelDialableManager();
	return instance;
}

void ZelDialableManager::resetInstance()
{
	delete instance;
	instance = nullptr;
}

ZelDialableManager::ZelDialableManager() = default;

ZelDialableManager::~ZelDialableManager() = default;

ZelDialable* ZelDialableManager::getDialable(std::string countryNumber)
{
	if (Logger::m_Traces) logger->debug("getDialable('" + countryNumber + "')");
	auto it = m_Cache.find(countryNumber);
	if (it != m_Cache.end()) return it->second.get();
	return loadDialableClass(countryNumber);
}

ZelDialable* ZelDialableManager::loadDialableClass(std::string countryNumber)
{
	if (countryNumber.empty())
	{
		if (Logger::m_Traces) logger->debug("loadDialableClass('strCountryNumber=NULL')");
		return nullptr;
	}
	if (Logger::m_Traces) logger->debug("loadDialableClass('" + countryNumber + "')");
	// Adopts the factory's reference, which goes when this function returns: the cache keeps its own.
	Poco::AutoPtr<ZelDialable> maker(ZelDialableFactory::CreateInstance(countryNumber));
	return m_Cache.insert(std::make_pair(countryNumber, maker)).first->second.get();
}

} // namespace numbering
