// ConfigurationCheck.h
// Tells whether the configuration could be loaded, and why not.

#ifndef Numbering_ConfigurationCheck_INCLUDED
#define Numbering_ConfigurationCheck_INCLUDED

#include "numbering/ZelNumberingRules.h"

#include <string>

namespace numbering {
namespace tool {

/// The library never fails on a missing configuration: it logs and leaves its tables empty. The tool checks
/// the outcome instead, so that it can say what is wrong before any number comes out unconverted.
class ConfigurationCheck
{
public:
	/// sampleDirectory: where the installed sample configuration is.
	explicit ConfigurationCheck(const std::string& sampleDirectory);

	/// True when the dialing rules gave at least one country.
	bool loaded(ZelNumberingRules& rules) const;

	/// The directory that was read, the configuration files missing from it and where the sample is.
	std::string diagnosis() const;

private:
	std::string m_SampleDirectory;
};

} // namespace tool
} // namespace numbering

#endif // Numbering_ConfigurationCheck_INCLUDED
