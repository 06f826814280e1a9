// AreaCodeWalker.h
// Finds the geographic area codes of a country in the numbering metadata.

#ifndef Numbering_AreaCodeWalker_INCLUDED
#define Numbering_AreaCodeWalker_INCLUDED

#include <phonenumbers/geocoding/phonenumber_offline_geocoder.h>
#include <phonenumbers/phonenumberutil.h>
#include <set>
#include <string>

namespace numbering {
namespace generator {

/// Longest national significant number the walkers complete a prefix to.
inline constexpr std::size_t LONGEST_NATIONAL_NUMBER = 13;

/// The metadata has no list of area codes, so the walker descends the digit tree of a country's national
/// numbers: under each prefix it builds a valid fixed-line number, reads its area code, and keeps the code when
/// the offline geocoder names a place for it (validity alone accepts codes that are not in service in open
/// plans). A code equal to its prefix is searched further, since longer codes may extend it (1387, 13873).
class AreaCodeWalker
{
public:
	AreaCodeWalker(const i18n::phonenumbers::PhoneNumberUtil& util,
		const i18n::phonenumbers::PhoneNumberOfflineGeocoder& geocoder);

	/// The area codes of region no longer than maxLength digits, without trunk prefix, in ascending order.
	std::set<std::string> geographicCodes(const std::string& region, std::size_t maxLength) const;

private:
	struct Search
	{
		std::string region;
		std::size_t maxLength;
		std::set<std::string> codes;
		std::set<std::string> rejected;
	};

	void walk(Search& search, const std::string& prefix) const;

	/// The area-code lengths of the valid fixed-line numbers that begin with prefix.
	std::set<std::size_t> areaCodeLengths(const std::string& region, const std::string& prefix) const;

	void keepIfPlace(Search& search, const std::string& code) const;

	bool namesPlaceUnder(const std::string& region, const std::string& code) const;

	bool namesPlace(const std::string& region, const i18n::phonenumbers::PhoneNumber& number) const;

	const i18n::phonenumbers::PhoneNumberUtil& m_Util;
	const i18n::phonenumbers::PhoneNumberOfflineGeocoder& m_Geocoder;
};

} // namespace generator
} // namespace numbering

#endif // Numbering_AreaCodeWalker_INCLUDED
