// AreaCodeWalker.cpp

#include "AreaCodeWalker.h"

#include <cstdlib>
#include <unicode/locid.h>

using i18n::phonenumbers::PhoneNumber;
using i18n::phonenumbers::PhoneNumberOfflineGeocoder;
using i18n::phonenumbers::PhoneNumberUtil;

namespace numbering {
namespace generator {

namespace {

// Digits that complete a prefix into a full number; several, since plans forbid some subscriber numbers
// that begin with a given digit.
const char FILL_DIGITS[] = {'2', '4', '5', '8'};

bool isFixedLine(PhoneNumberUtil::PhoneNumberType type)
{
	return type == PhoneNumberUtil::FIXED_LINE || type == PhoneNumberUtil::FIXED_LINE_OR_MOBILE;
}

} // namespace

AreaCodeWalker::AreaCodeWalker(const PhoneNumberUtil& util, const PhoneNumberOfflineGeocoder& geocoder):
	m_Util(util),
	m_Geocoder(geocoder)
{
}

std::set<std::string> AreaCodeWalker::geographicCodes(const std::string& region, std::size_t maxLength) const
{
	Search search{region, maxLength, {}, {}};
	// National significant numbers of the table countries never begin with 0.
	for (char digit = '1'; digit <= '9'; ++digit)
		walk(search, std::string(1, digit));
	return search.codes;
}

void AreaCodeWalker::walk(Search& search, const std::string& prefix) const
{
	// The area-code length follows the number's format, which may depend on the number's length: every
	// length is tried.
	const std::set<std::size_t> lengths = areaCodeLengths(search.region, prefix);
	bool deeper = lengths.empty();
	for (std::size_t length : lengths)
	{
		if (length >= prefix.size() || length == 0) deeper = true;
		if (length > 0 && length <= prefix.size()) keepIfPlace(search, prefix.substr(0, length));
	}
	if (!deeper || prefix.size() >= search.maxLength) return;
	for (char digit = '0'; digit <= '9'; ++digit)
		walk(search, prefix + digit);
}

std::set<std::size_t> AreaCodeWalker::areaCodeLengths(const std::string& region, const std::string& prefix) const
{
	std::set<std::size_t> lengths;
	PhoneNumber number;
	number.set_country_code(m_Util.GetCountryCodeForRegion(region));
	for (std::size_t length = prefix.size() + 1; length <= LONGEST_NATIONAL_NUMBER; ++length)
	{
		for (char fill : FILL_DIGITS)
		{
			const std::string digits = prefix + std::string(length - prefix.size(), fill);
			number.set_national_number(std::strtoull(digits.c_str(), nullptr, 10));
			if (m_Util.IsValidNumberForRegion(number, region) && isFixedLine(m_Util.GetNumberType(number)))
				lengths.insert(static_cast<std::size_t>(m_Util.GetLengthOfGeographicalAreaCode(number)));
		}
	}
	return lengths;
}

void AreaCodeWalker::keepIfPlace(Search& search, const std::string& code) const
{
	if (search.codes.count(code) > 0 || search.rejected.count(code) > 0) return;
	if (namesPlaceUnder(search.region, code))
		search.codes.insert(code);
	else
		search.rejected.insert(code);
}

bool AreaCodeWalker::namesPlaceUnder(const std::string& region, const std::string& code) const
{
	// The geocoder may name places by longer prefixes than the area code: try the numbers that continue the
	// code with each pair of digits, each completed to its first valid fixed-line length.
	PhoneNumber number;
	number.set_country_code(m_Util.GetCountryCodeForRegion(region));
	for (int next = 0; next < 100; ++next)
	{
		const std::string prefix = code + static_cast<char>('0' + next / 10) + static_cast<char>('0' + next % 10);
		for (std::size_t length = prefix.size(); length <= LONGEST_NATIONAL_NUMBER; ++length)
		{
			const std::string digits = prefix + std::string(length - prefix.size(), FILL_DIGITS[0]);
			number.set_national_number(std::strtoull(digits.c_str(), nullptr, 10));
			if (m_Util.IsValidNumberForRegion(number, region) && isFixedLine(m_Util.GetNumberType(number)))
			{
				if (namesPlace(region, number)) return true;
				break;
			}
		}
	}
	return false;
}

bool AreaCodeWalker::namesPlace(const std::string& region, const PhoneNumber& number) const
{
	// Without a place of its own a number is described by its country's name.
	const icu::Locale english("en");
	icu::UnicodeString countryName;
	icu::Locale("", region.c_str()).getDisplayCountry(english, countryName);
	std::string country;
	countryName.toUTF8String(country);
	const std::string description = m_Geocoder.GetDescriptionForNumber(number, english);
	return !description.empty() && description != country;
}

} // namespace generator
} // namespace numbering
