// Plans.cpp

#include "support/Plans.h"

#include "support/Text.h"

#include "Poco/String.h"

#include <algorithm>

namespace numbering {
namespace detail {

namespace {

const std::string::size_type MAX_LENGTH_AFTER_EXT = 16;
const std::string::size_type MAX_DIGITS_AFTER_TRUNK = 15;

bool followsTrunk(const std::string& candidate, const std::string& trunk)
{
	const std::string::size_type digits = candidate.size() - std::min(candidate.size(), trunk.size());
	return digits >= MIN_DIGITS && digits <= MAX_DIGITS_AFTER_TRUNK && Poco::startsWith(candidate, trunk) &&
		   candidate[trunk.size()] != '0' && std::all_of(candidate.begin() + trunk.size(), candidate.end(), isDigit);
}

} // namespace

bool followsExtPrefix(const std::string& number, const std::string& ext)
{
	return number.size() >= ext.size() + MIN_DIGITS && number.size() - ext.size() <= MAX_LENGTH_AFTER_EXT &&
		   Poco::startsWith(number, ext);
}

std::string keepCountryForm(
	const std::string& head, const std::string& trunk, const std::string& number, const std::string& stripped)
{
	if (followsTrunk(number, trunk)) return head + number.substr(trunk.size());
	if (followsTrunk(stripped, trunk)) return head + stripped.substr(trunk.size());
	return "";
}

std::string canonicalCallText(const std::string& number, ZelDialRulesItem* rules)
{
	return "qap_Country_MakeCanonicalNumber('" + number + "', '" + rules->ToString() + "')";
}

} // namespace detail
} // namespace numbering
