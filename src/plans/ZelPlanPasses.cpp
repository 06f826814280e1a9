// ZelPlanPasses.cpp

#include "plans/ZelPlanPasses.h"

#include <algorithm>
#include <cctype>

namespace numbering {

namespace {

const std::string::size_type MIN_LENGTH_AFTER_EXT = 3;
const std::string::size_type MAX_LENGTH_AFTER_EXT = 16;
const std::string::size_type MIN_DIGITS_AFTER_TRUNK = 3;
const std::string::size_type MAX_DIGITS_AFTER_TRUNK = 15;

bool isDigit(char c)
{
	return std::isdigit(static_cast<unsigned char>(c)) != 0;
}

bool followsTrunk(const std::string& candidate, const std::string& trunk)
{
	const std::string::size_type digits = candidate.size() - std::min(candidate.size(), trunk.size());
	return digits >= MIN_DIGITS_AFTER_TRUNK && digits <= MAX_DIGITS_AFTER_TRUNK &&
		   ZelPlanPasses::startsWith(candidate, trunk) && candidate[trunk.size()] != '0' &&
		   std::all_of(candidate.begin() + trunk.size(), candidate.end(), isDigit);
}

} // namespace

bool ZelPlanPasses::stripExtPrefix(const std::string& number, const std::string& ext, std::string& stripped)
{
	if (ext.empty() || number.size() < ext.size() + MIN_LENGTH_AFTER_EXT ||
		number.size() - ext.size() > MAX_LENGTH_AFTER_EXT || !startsWith(number, ext))
		return false;
	stripped = number.substr(ext.size());
	return true;
}

std::string ZelPlanPasses::finalForm(
	const std::string& head, const std::string& trunk, const std::string& number, const std::string& stripped)
{
	if (followsTrunk(number, trunk)) return head + number.substr(trunk.size());
	if (followsTrunk(stripped, trunk)) return head + stripped.substr(trunk.size());
	return "";
}

bool ZelPlanPasses::startsWith(const std::string& s, const std::string& prefix)
{
	return s.compare(0, prefix.size(), prefix) == 0;
}

} // namespace numbering
