// CountryNames.h
// English country names by ISO 3166 alpha-2 code, read from the iso-codes data file.

#ifndef Numbering_CountryNames_INCLUDED
#define Numbering_CountryNames_INCLUDED

#include <map>
#include <string>

namespace numbering {
namespace generator {

/// The ISO 3166-1 English names of iso-codes ("FR" gives "France"), completed by the few regions that have a
/// calling code but no ISO entry (Ascension, Tristan da Cunha, Kosovo).
class CountryNames
{
public:
	/// Reads the iso-codes JSON file; throws Poco::FileNotFoundException or a JSON exception when it cannot.
	explicit CountryNames(const std::string& isoCodesJson);

	/// The name of region, or "" when neither iso-codes nor the completion list knows it.
	std::string name(const std::string& region) const;

private:
	std::map<std::string, std::string> m_Names;
};

} // namespace generator
} // namespace numbering

#endif // Numbering_CountryNames_INCLUDED
