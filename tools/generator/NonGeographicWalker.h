// NonGeographicWalker.h
// Finds the non-geographic number ranges of a country in the numbering metadata.

#ifndef Numbering_NonGeographicWalker_INCLUDED
#define Numbering_NonGeographicWalker_INCLUDED

#include <phonenumbers/phonenumberutil.h>
#include <set>
#include <string>
#include <vector>

namespace numbering {
namespace generator {

/// Mobile, free-phone, shared-cost, premium, personal, universal-access, VoIP, pager and voicemail numbers have
/// no place, so the geographic walk misses them, and a table plan cannot split such a number without its code
/// (the German plan gives it the site's own area code). The walker draws valid numbers of these types from
/// every leading-digit block of the metadata and chooses the codes that make a table cover them.
class NonGeographicWalker
{
public:
	explicit NonGeographicWalker(const i18n::phonenumbers::PhoneNumberUtil& util);

	/// National significant numbers of the non-geographic types of region and of the regions that share its
	/// calling code, several per range: for every leading-digit block, the first valid one among the block's
	/// digits completed to each length with each digit. Ascending.
	std::set<std::string> numbers(const std::string& region) const;

	/// Codes that, added to table, make a code begin each of numbers. A number no code of table begins takes
	/// the national destination code the metadata gives it; when that code would begin codes of table, the
	/// rest of its block is split into the longest blocks that begin none. No code returned begins or is begun
	/// by another code of table or of the result.
	std::set<std::string> codes(
		const std::string& region, const std::set<std::string>& numbers, const std::set<std::string>& table) const;

private:
	void collect(const std::string& region, const std::string& block, std::set<std::string>& found) const;

	/// block itself when it begins no code of codes, else the sub-blocks of block that begin none and are
	/// not codes of codes.
	static std::vector<std::string> freeBlocks(const std::string& block, const std::set<std::string>& codes);

	std::string destinationCode(const std::string& region, const std::string& number) const;

	i18n::phonenumbers::PhoneNumber numberOf(const std::string& region, const std::string& number) const;

	const i18n::phonenumbers::PhoneNumberUtil& m_Util;
};

} // namespace generator
} // namespace numbering

#endif // Numbering_NonGeographicWalker_INCLUDED
