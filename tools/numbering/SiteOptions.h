// SiteOptions.h
// The site described on the command line.

#ifndef Numbering_SiteOptions_INCLUDED
#define Numbering_SiteOptions_INCLUDED

#include "numbering/ZelDialRulesItem.h"

#include <memory>
#include <string>

namespace numbering {
namespace tool {

/// Collects --country, --ext-prefix, --local-length, --area-code, --except-length and --except-begin, and makes
/// the site record every conversion is given.
class SiteOptions
{
public:
	void setCountry(const std::string& country);

	void setExtPrefix(const std::string& prefix);

	void setLocalLength(int length);

	/// A comma-separated list; the first code is the site's own.
	void setAreaCodes(const std::string& areaCodes);

	void setExceptLength(int length);

	void setExceptBegin(const std::string& begin);

	bool hasCountry() const;

	/// The site record; throws std::invalid_argument or ZelUnsupportedCountryException when the configuration
	/// does not know the country.
	std::unique_ptr<ZelDialRulesItem> makeSite() const;

private:
	std::string m_Country;
	std::string m_ExtPrefix;
	int m_LocalLength = 0;
	std::string m_AreaCodes;
	int m_ExceptLength = 0;
	std::string m_ExceptBegin;
};

} // namespace tool
} // namespace numbering

#endif // Numbering_SiteOptions_INCLUDED
