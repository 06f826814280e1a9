// NonGeographicWalker.cpp

#include "NonGeographicWalker.h"

#include "AreaCodeWalker.h"

#include <cstdlib>

using i18n::phonenumbers::PhoneNumber;
using i18n::phonenumbers::PhoneNumberUtil;

namespace numbering {
namespace generator {

namespace {

// Blocks of this many leading digits are looked into; one digit more would multiply the walk by ten for the
// few ranges that only a fifth digit tells apart.
const std::size_t BLOCK_DIGITS = 4;

// Under two digits a uniform completion says nothing about the block: the walk always goes one digit deeper.
const std::size_t ALWAYS_SEARCHED_DIGITS = 2;

// Length of the code of a number whose metadata gives no national destination code.
const std::size_t DEFAULT_CODE_LENGTH = 3;

bool beginsWith(const std::string& number, const std::string& code)
{
	return number.compare(0, code.size(), code) == 0;
}

/// Whether a code of codes begins number.
bool hasCodeOf(const std::string& number, const std::set<std::string>& codes)
{
	for (std::size_t length = 1; length <= number.size(); ++length)
		if (codes.count(number.substr(0, length)) > 0) return true;
	return false;
}

/// Whether code begins a code of codes.
bool beginsCodeOf(const std::string& code, const std::set<std::string>& codes)
{
	auto next = codes.lower_bound(code);
	return next != codes.end() && beginsWith(*next, code);
}

/// Whether a number of type has no place: neither fixed line nor possibly fixed line.
bool isNonGeographic(PhoneNumberUtil::PhoneNumberType type)
{
	return type != PhoneNumberUtil::FIXED_LINE && type != PhoneNumberUtil::FIXED_LINE_OR_MOBILE &&
		   type != PhoneNumberUtil::UNKNOWN;
}

} // namespace

NonGeographicWalker::NonGeographicWalker(const PhoneNumberUtil& util):
	m_Util(util)
{
}

std::set<std::string> NonGeographicWalker::numbers(const std::string& region) const
{
	std::set<std::string> found;
	for (char digit = '1'; digit <= '9'; ++digit)
		collect(region, std::string(1, digit), found);
	return found;
}

std::set<std::string> NonGeographicWalker::codes(
	const std::string& region, const std::set<std::string>& numbers, const std::set<std::string>& table) const
{
	std::set<std::string> all = table;
	std::set<std::string> added;
	for (const std::string& number : numbers)
	{
		if (hasCodeOf(number, all)) continue;
		for (const std::string& code : freeBlocks(destinationCode(region, number), all))
		{
			all.insert(code);
			added.insert(code);
		}
	}
	return added;
}

std::vector<std::string> NonGeographicWalker::freeBlocks(const std::string& block, const std::set<std::string>& codes)
{
	if (!beginsCodeOf(block, codes)) return {block};
	// The block holds longer codes: its other sub-blocks take codes of their own, so that every number of the
	// block is still covered and no code begins another.
	std::vector<std::string> free;
	for (char digit = '0'; digit <= '9'; ++digit)
	{
		if (codes.count(block + digit) > 0) continue;
		const std::vector<std::string> deeper = freeBlocks(block + digit, codes);
		free.insert(free.end(), deeper.begin(), deeper.end());
	}
	return free;
}

void NonGeographicWalker::collect(
	const std::string& region, const std::string& block, std::set<std::string>& found) const
{
	// Each length is completed with each digit in turn; the first valid number of a length is kept.
	bool inRange = false;
	for (std::size_t length = block.size() + 1; length <= LONGEST_NATIONAL_NUMBER; ++length)
	{
		for (char fill = '0'; fill <= '9'; ++fill)
		{
			const std::string digits = block + std::string(length - block.size(), fill);
			const PhoneNumber number = numberOf(region, digits);
			if (m_Util.IsValidNumber(number) && isNonGeographic(m_Util.GetNumberType(number)))
			{
				found.insert(digits);
				inRange = true;
				break;
			}
		}
	}
	if (block.size() >= BLOCK_DIGITS || (!inRange && block.size() >= ALWAYS_SEARCHED_DIGITS)) return;
	for (char digit = '0'; digit <= '9'; ++digit)
		collect(region, block + digit, found);
}

std::string NonGeographicWalker::destinationCode(const std::string& region, const std::string& number) const
{
	const int length = m_Util.GetLengthOfNationalDestinationCode(numberOf(region, number));
	return number.substr(0, length > 0 ? static_cast<std::size_t>(length) : DEFAULT_CODE_LENGTH);
}

PhoneNumber NonGeographicWalker::numberOf(const std::string& region, const std::string& number) const
{
	PhoneNumber parsed;
	parsed.set_country_code(m_Util.GetCountryCodeForRegion(region));
	parsed.set_national_number(std::strtoull(number.c_str(), nullptr, 10));
	return parsed;
}

} // namespace generator
} // namespace numbering
