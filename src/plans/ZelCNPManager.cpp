// ZelCNPManager.cpp

#include "plans/ZelCNPManager.h"

#include "numbering/ZelNumberingConfig.h"

#include "plans/ZelCNPFactory.h"
#include "support/Trace.h"

#include "Poco/String.h"

#include <algorithm>
#include <typeinfo>

namespace numbering {

ZelCNPManager* ZelCNPManager::instance = nullptr;
Logger* ZelCNPManager::logger = Logger::getLogger(typeid(ZelCNPManager).name());

ZelCNPManager* ZelCNPManager::getInstance()
{
	NUMBERING_TRACE(logger, "getInstance()");
	if (instance == nullptr) instance = new ZelCNPManager();
	return instance;
}

void ZelCNPManager::resetInstance()
{
	delete instance;
	instance = nullptr;
}

ZelCNPManager::ZelCNPManager()
{
	NUMBERING_TRACE(logger, "ZelCNPManager()");
}

ZelCNPManager::~ZelCNPManager() = default;

ZelCNP* ZelCNPManager::getCNP(std::string countryKey)
{
	NUMBERING_TRACE(logger, "getCNP('" + countryKey + "')");
	Poco::FastMutex::ScopedLock lock(m_Mutex);
	auto cached = m_Cache.find(countryKey);
	if (cached != m_Cache.end()) return cached->second.get();
	if (isCountryNotFound(countryKey)) return nullptr;
	return loadCNPClass(countryKey);
}

ZelCNP* ZelCNPManager::loadCNPClass(std::string countryKey)
{
	NUMBERING_TRACE(logger, "loadCNPClass('" + countryKey + "')");
	if (countryKey.size() >= 2)
	{
		Poco::toUpperInPlace(countryKey);
		ZelNumberingConfig* config = ZelNumberingConfig::getInstance();
		const std::string countryNumber = config->getCountryNumber(countryKey);
		if (config->isSpecificFormatActiveForCountry(countryNumber))
		{
			Poco::AutoPtr<ZelCNP> plan(ZelCNPFactory::CreateInstance(countryNumber));
			if (!plan.isNull())
			{
				// The cache is searched with the key as given but filled under its upper-case form. For a
				// lower-case key whose upper-case entry exists, the new plan is not stored and dies with `plan`;
				// the stored one is lent instead, since a country code written in lower case in the dialing
				// rules reaches this point on every conversion.
				return m_Cache.insert(std::make_pair(countryKey, plan)).first->second.get();
			}
		}
	}
	m_NotFound.push_back(countryKey);
	return nullptr;
}

bool ZelCNPManager::isCountryNotFound(std::string countryKey)
{
	return std::find(m_NotFound.begin(), m_NotFound.end(), countryKey) != m_NotFound.end();
}

} // namespace numbering
