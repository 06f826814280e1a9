// Site.h
// The site a Python script converts numbers for.

#ifndef Numbering_Site_INCLUDED
#define Numbering_Site_INCLUDED

#include "numbering/ZelDialRulesItem.h"

#include <memory>
#include <string>

namespace numbering {
namespace python {

/// The fields of the numbering tool's site options and the site record made of them. It does not change
/// after construction, so threads may share it.
class Site
{
public:
	/// Validates the country against the configuration as the record does: throws std::invalid_argument
	/// unless it has two characters, ZelUnsupportedCountryException when the configuration does not know it.
	/// Call it inside Library::call.
	Site(std::string country,
		std::string extPrefix,
		int localLength,
		std::string areaCodes,
		int exceptLength,
		std::string exceptBegin);

	const std::string& country() const;

	const std::string& extPrefix() const;

	int localLength() const;

	/// The comma-separated list as given; the first code is the site's own.
	const std::string& areaCodes() const;

	int exceptLength() const;

	const std::string& exceptBegin() const;

	/// The record the conversions take. Its accessors are not const, but none of them changes it.
	ZelDialRulesItem* item() const;

private:
	std::string m_Country;
	std::string m_ExtPrefix;
	int m_LocalLength;
	std::string m_AreaCodes;
	int m_ExceptLength;
	std::string m_ExceptBegin;
	std::unique_ptr<ZelDialRulesItem> m_Item;
};

} // namespace python
} // namespace numbering

#endif // Numbering_Site_INCLUDED
