// Library.cpp

#include "Library.h"

#include "numbering/ZelDialRulesItem.h"
#include "numbering/ZelNumberingConfig.h"

#include <vector>

namespace numbering {
namespace python {

std::shared_mutex Library::m_Mutex;
bool Library::m_WarmedUp = false;

std::shared_lock<std::shared_mutex> Library::lockWarmedUp()
{
	for (;;)
	{
		std::shared_lock<std::shared_mutex> shared(m_Mutex);
		if (m_WarmedUp) return shared;
		shared.unlock();
		// Another thread may warm up or reset between the two locks: look again under the shared one.
		const std::unique_lock<std::shared_mutex> exclusive(m_Mutex);
		if (!m_WarmedUp)
		{
			warmUp();
			m_WarmedUp = true;
		}
	}
}

void Library::warmUp()
{
	ZelNumberingRules* rules = ZelNumberingRules::getInstance();
	ZelNumberingConfig* config = ZelNumberingConfig::getInstance();
	const std::vector<std::string> names = rules->getCountryList();
	if (names.empty()) return;
	// A number of each country builds that country's plan and dialable maker, whatever the site.
	ZelDialRulesItem site(rules->getCountryCode(names.front()), "", 0, "", 0, "");
	for (const std::string& name : names)
		rules->makePhoneNumber(&site, "+" + config->getCountryNumber(rules->getCountryCode(name)) + " 1234567");
}

void Library::setConfigDirectory(const std::string& directory)
{
	const std::unique_lock<std::shared_mutex> lock(m_Mutex);
	ZelNumberingRules::resetInstance();
	ZelNumberingConfig::setConfigDirectory(directory);
	m_WarmedUp = false;
}

std::string Library::configDirectory()
{
	const std::shared_lock<std::shared_mutex> lock(m_Mutex);
	return ZelNumberingConfig::getConfigDirectory();
}

void Library::setTraces(bool on)
{
	const std::unique_lock<std::shared_mutex> lock(m_Mutex);
	Logger::m_Traces = on;
}

bool Library::traces()
{
	const std::shared_lock<std::shared_mutex> lock(m_Mutex);
	return Logger::m_Traces;
}

} // namespace python
} // namespace numbering
