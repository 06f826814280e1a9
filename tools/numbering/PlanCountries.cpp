// PlanCountries.cpp

#include "PlanCountries.h"

#include <algorithm>

namespace numbering {
namespace tool {

const std::string PlanCountries::COLOMBIA = "57";

bool PlanCountries::hasPlan(const std::string& callingCode)
{
	static const std::vector<std::string> all = {
		"1", "31", "32", "33", "41", "43", "44", "49", "52", "54", "57", "61", "64", "7", "353"};
	return std::find(all.begin(), all.end(), callingCode) != all.end();
}

const std::vector<std::string>& PlanCountries::tableCountries()
{
	static const std::vector<std::string> all = {"31", "32", "43", "44", "49", "54", "61", "353"};
	return all;
}

std::string PlanCountries::planFile(const std::string& directory, const std::string& callingCode, bool isDefault)
{
	return directory + "r7731cnp_" + callingCode + (isDefault ? "_default" : "") + ".properties";
}

} // namespace tool
} // namespace numbering
