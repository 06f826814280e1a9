// ZelCNPManager.h
// Process-wide cache of country numbering plans.

#ifndef Numbering_ZelCNPManager_INCLUDED
#define Numbering_ZelCNPManager_INCLUDED

#include "numbering/Logger.h"

#include "plans/ZelCNP.h"

#include "Poco/AutoPtr.h"
#include "Poco/HashMap.h"
#include "Poco/Mutex.h"

#include <string>
#include <vector>

namespace numbering {

/// Builds each country's plan once, on first request, under a mutex, and remembers the countries for which
/// no plan can be built. getInstance and resetInstance take no lock.
class ZelCNPManager
{
public:
	static ZelCNPManager* getInstance();

	/// Deletes the manager, releasing every cached plan and forgetting the not-found list.
	static void resetInstance();

	ZelCNPManager();

	virtual ~ZelCNPManager();

	/// The plan for an upper-case country code ("DE"), or null. The pointer is borrowed from the cache and
	/// stays valid until resetInstance().
	virtual ZelCNP* getCNP(std::string countryKey);

	/// Builds, caches and returns a plan, or records the failure; called by getCNP under the lock.
	ZelCNP* loadCNPClass(std::string countryKey);

	/// True when countryKey is in the not-found list.
	bool isCountryNotFound(std::string countryKey);

	ZelCNPManager(const ZelCNPManager&) = delete;

	ZelCNPManager& operator=(const ZelCNPManager&) = delete;

private:
	static ZelCNPManager* instance;
	static Logger* logger;

	Poco::HashMap<std::string, Poco::AutoPtr<ZelCNP>> m_Cache;
	std::vector<std::string> m_NotFound;
	Poco::FastMutex m_Mutex;
};

} // namespace numbering

#endif // Numbering_ZelCNPManager_INCLUDED
