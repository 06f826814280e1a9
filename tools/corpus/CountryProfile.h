// CountryProfile.h
// What a corpus needs to know of a plan country beyond the sample configuration: the site and its number shapes.

#ifndef Numbering_CountryProfile_INCLUDED
#define Numbering_CountryProfile_INCLUDED

#include <string>
#include <vector>

namespace numbering {
namespace corpus {

/// Number shapes of one country as its people dial them. Prefixes are written without the trunk prefix, which
/// comes from the dialing rules; free-phone prefixes are written as dialled nationally, trunk prefix included.
struct CountryProfile
{
	/// ISO 3166 alpha-2 code, as the dialing rules key it.
	std::string country;

	/// Area code of the site that dials the corpus.
	std::string siteArea;

	/// Area codes to use when the configuration has no area-code table for the country.
	std::vector<std::string> areaCodes;

	/// Digits of a national significant number (area code and subscriber number).
	int nationalLength;

	/// Fewest subscriber digits, for long area codes.
	int minSubscriberLength;

	/// Mobile prefixes and the length of a mobile national significant number.
	std::vector<std::string> mobilePrefixes;
	int mobileLength;

	/// False where mobile numbers are dialled without the trunk prefix.
	bool mobileWithTrunk;

	/// Free-phone prefixes as dialled, and the number of digits that follow them.
	std::vector<std::string> freephonePrefixes;
	int freephoneDigits;

	/// The fifteen countries that have a numbering plan of their own, by calling code.
	static const std::vector<CountryProfile>& planCountries();
};

} // namespace corpus
} // namespace numbering

#endif // Numbering_CountryProfile_INCLUDED
