// CorpusGenerator.h
// Writes the benchmark corpus of a plan country: numbers as a person at a site there dials them.

#ifndef Numbering_CorpusGenerator_INCLUDED
#define Numbering_CorpusGenerator_INCLUDED

#include "CountryProfile.h"

#include <random>
#include <string>
#include <vector>

namespace numbering {
namespace corpus {

/// Draws numbers of every shape a site dials (national with trunk prefix, local, behind the external prefix,
/// international, mobile, free-phone, internal extensions) from the area codes of a configuration directory.
/// The draw is seeded by the calling code, so the same configuration always gives the same files.
class CorpusGenerator
{
public:
	/// Reads the dialing rules and the area-code tables of every plan country from configDirectory.
	explicit CorpusGenerator(const std::string& configDirectory);

	/// Writes "<outputDirectory>/<country>.txt": comment lines, a "site" line (country, external prefix, local
	/// number length, area code) and count lines of "<shape> <number>".
	void write(const CountryProfile& profile, const std::string& outputDirectory, int count);

private:
	/// A plan country as the configuration and its profile describe it.
	struct Country
	{
		CountryProfile profile;
		std::string countryNumber;
		std::string internationalPrefix;
		std::string trunkPrefix;
		bool localWithTrunk;
		std::vector<std::string> areaCodes;
		std::vector<std::string> carriers;
		std::string externalPrefix;
	};

	Country load(const CountryProfile& profile) const;
	const Country& countryOf(const CountryProfile& profile) const;

	std::string digits(int count);
	const std::string& pick(const std::vector<std::string>& values);
	int below(int bound);

	/// Area code and subscriber number of a fixed line of country.
	std::vector<std::string> geographic(const Country& country, const std::string& area);
	std::vector<std::string> national(const Country& country);
	std::vector<std::string> local(const Country& country);
	std::vector<std::string> international(const Country& from);
	std::vector<std::string> mobile(const Country& country);
	std::vector<std::string> freephone(const Country& country);

	/// Writes the parts as a person writes them down: run together, with blanks or with dashes.
	std::string layout(const std::vector<std::string>& parts);

	std::string m_ConfigDirectory;
	std::vector<Country> m_Countries;
	std::mt19937 m_Random;
};

} // namespace corpus
} // namespace numbering

#endif // Numbering_CorpusGenerator_INCLUDED
