// DialingRulesLint.h
// Checks the dialing-rules file.

#ifndef Numbering_DialingRulesLint_INCLUDED
#define Numbering_DialingRulesLint_INCLUDED

#include "ConfigFile.h"
#include "LintReport.h"

#include <map>
#include <string>
#include <vector>

namespace numbering {
namespace tool {

/// Reads the dialing rules as the library's loader does and reports lines it skips or reads otherwise than
/// meant: field counts, country numbers, international prefixes, rule letters, keys that are not two-letter
/// codes, and country numbers with no principal country or with several. Keeps which country each number
/// resolves to, for the files that refer to country numbers.
class DialingRulesLint
{
public:
	/// Checks file, which must exist.
	DialingRulesLint(const ConfigFile& file, LintReport& report);

	/// The country code that country number resolves to, "" when none.
	std::string principalOf(const std::string& countryNumber) const;

	/// True when some line has this country number.
	bool hasNumber(const std::string& countryNumber) const;

private:
	struct Country
	{
		std::string key;
		bool principal;
	};

	void checkLine(const std::string& key, const std::string& value);

	void checkKey(const std::string& key);

	void checkRules(const std::string& key, const std::vector<std::string>& fields);

	void checkRule(const std::string& key, const std::string& name, const std::string& rule);

	void checkPrincipals(const std::string& number, const std::vector<Country>& countries);

	const ConfigFile& m_File;
	LintReport& m_Report;
	/// The lines of each country number, in the loader's order.
	std::map<std::string, std::vector<Country>> m_Countries;
	std::map<std::string, std::string> m_Principals;
};

} // namespace tool
} // namespace numbering

#endif // Numbering_DialingRulesLint_INCLUDED
