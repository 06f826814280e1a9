// ConfigurationCheck.cpp

#include "ConfigurationCheck.h"

#include "numbering/ZelNumberingConfig.h"

#include "Poco/File.h"

#include <vector>

namespace numbering {
namespace tool {

ConfigurationCheck::ConfigurationCheck(const std::string& sampleDirectory):
	m_SampleDirectory(sampleDirectory)
{
}

bool ConfigurationCheck::loaded(ZelNumberingRules& rules) const
{
	return !rules.getCountryList().empty();
}

std::string ConfigurationCheck::diagnosis() const
{
	const std::vector<std::string> files = {ZelNumberingConfig::DIALING_RULES_FILE,
		ZelNumberingConfig::DIALING_RULES_DEFAULT_FILE, ZelNumberingConfig::COUNTRY_MASKS_FILE,
		ZelNumberingConfig::COUNTRY_MASKS_DEFAULT_FILE, ZelNumberingConfig::SPECIFIC_FORMAT_FILE,
		ZelNumberingConfig::SPECIFIC_FORMAT_DEFAULT_FILE};
	std::string text =
		"numbering: no dialing rules could be loaded from " + ZelNumberingConfig::getConfigDirectory() + "\n";
	bool anyMissing = false;
	for (const std::string& file : files)
	{
		if (!Poco::File(file).exists())
		{
			text += "  missing: " + file + "\n";
			anyMissing = true;
		}
	}
	if (!anyMissing) text += "  the dialing-rules files are there but name no country\n";
	text += "The sample configuration is installed in " + m_SampleDirectory + ": run with --config-dir " +
			m_SampleDirectory + ", or copy its files into the configuration directory.\n";
	return text;
}

} // namespace tool
} // namespace numbering
