// ZelDialableManager.h
// Process-wide cache of dialable makers, one per country number.

#ifndef Numbering_ZelDialableManager_INCLUDED
#define Numbering_ZelDialableManager_INCLUDED

#include "numbering/Logger.h"

#include "dialable/ZelDialable.h"

#include "Poco/AutoPtr.h"
#include "Poco/HashMap.h"

#include <string>

namespace numbering {

/// Creates each country's maker on first request and keeps it until resetInstance(). Not locked: create the
/// makers a host needs before concurrent use.
class ZelDialableManager
{
public:
	static ZelDialableManager* getInstance();

	/// Deletes the manager, releasing every cached maker.
	static void resetInstance();

	ZelDialableManager() = default;

	// The order of the virtual functions below is part of the manager interface; keep it.
	virtual ~ZelDialableManager() = default;

	/// The maker for a country number ("33"), or null for "". Borrowed: valid until resetInstance().
	virtual ZelDialable* getDialable(std::string countryNumber);

	/// Creates and caches the maker; null for an empty country number.
	ZelDialable* loadDialableClass(std::string countryNumber);

	ZelDialableManager(const ZelDialableManager&) = delete;

	ZelDialableManager& operator=(const ZelDialableManager&) = delete;

private:
	static ZelDialableManager* instance;
	static Logger* logger;

	Poco::HashMap<std::string, Poco::AutoPtr<ZelDialable>> m_Cache;
};

} // namespace numbering

#endif // Numbering_ZelDialableManager_INCLUDED
