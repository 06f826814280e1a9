// CorpusGenerator.cpp

#include "CorpusGenerator.h"

#include "Poco/AutoPtr.h"
#include "Poco/Exception.h"
#include "Poco/File.h"
#include "Poco/FileStream.h"
#include "Poco/Format.h"
#include "Poco/StringTokenizer.h"
#include "Poco/Util/PropertyFileConfiguration.h"

#include <algorithm>

namespace numbering {
namespace corpus {

namespace {

using Properties = Poco::AutoPtr<Poco::Util::PropertyFileConfiguration>;

/// Below this length a number is an internal extension at every corpus site.
const int LOCAL_NUMBER_LENGTH = 5;

/// Candidates for the external prefix, in order of preference.
const std::vector<std::string> EXTERNAL_PREFIXES = {"0", "9", "1"};

Properties open(const std::string& directory, const std::string& name)
{
	const std::string own = directory + name + ".properties";
	return new Poco::Util::PropertyFileConfiguration(
		Poco::File(own).exists() ? own : directory + name + "_default.properties");
}

/// The digits a rule begins with: the prefix dialled in front of the area code ("0FG" gives "0", "G" nothing).
std::string prefixOf(const std::string& rule)
{
	return rule.substr(0, std::min(rule.find_first_not_of("0123456789"), rule.size()));
}

std::vector<std::string> numberedValues(Properties properties, const std::string& prefix)
{
	std::vector<std::string> values;
	for (int index = 0; index < 10000; ++index)
	{
		const std::string key = Poco::format("%s%04d", prefix, index);
		if (!properties->hasProperty(key)) break;
		values.push_back(properties->getString(key));
	}
	return values;
}

bool startsWith(const std::string& text, const std::string& prefix)
{
	return !text.empty() && !prefix.empty() && text.compare(0, prefix.size(), prefix) == 0;
}

} // namespace

CorpusGenerator::CorpusGenerator(const std::string& configDirectory):
	m_ConfigDirectory(
		configDirectory.empty() || configDirectory.back() == '/' ? configDirectory : configDirectory + "/")
{
	for (const CountryProfile& profile : CountryProfile::planCountries())
		m_Countries.push_back(load(profile));
}

CorpusGenerator::Country CorpusGenerator::load(const CountryProfile& profile) const
{
	Properties rules = open(m_ConfigDirectory, "dialingrules");
	// country code = calling code:international prefix:international rule:long-distance rule:local rule:name
	Poco::StringTokenizer fields(rules->getString(profile.country), ":");
	if (fields.count() < 5) throw Poco::DataFormatException("dialing rule of " + profile.country);
	Country country{profile, fields[0], fields[1], prefixOf(fields[3]), !prefixOf(fields[4]).empty(), {}, {}, {}};
	country.areaCodes = profile.areaCodes;
	const std::string planFile = m_ConfigDirectory + "r7731cnp_" + country.countryNumber;
	if (Poco::File(planFile + ".properties").exists() || Poco::File(planFile + "_default.properties").exists())
	{
		Properties plan = open(m_ConfigDirectory, "r7731cnp_" + country.countryNumber);
		const std::vector<std::string> table = numberedValues(plan, "AC_");
		if (!table.empty()) country.areaCodes = table;
		country.carriers = numberedValues(plan, "OP_");
	}
	for (const std::string& candidate : EXTERNAL_PREFIXES)
	{
		if (!startsWith(country.trunkPrefix, candidate) && !startsWith(country.internationalPrefix, candidate))
		{
			country.externalPrefix = candidate;
			break;
		}
	}
	return country;
}

const CorpusGenerator::Country& CorpusGenerator::countryOf(const CountryProfile& profile) const
{
	for (const Country& country : m_Countries)
	{
		if (country.profile.country == profile.country) return country;
	}
	throw Poco::NotFoundException("plan country " + profile.country);
}

void CorpusGenerator::write(const CountryProfile& profile, const std::string& outputDirectory, int count)
{
	const Country& country = countryOf(profile);
	m_Random.seed(static_cast<std::mt19937::result_type>(std::stoul(country.countryNumber)));
	Poco::FileOutputStream out(outputDirectory + "/" + profile.country + ".txt");
	out << "# Numbers dialled at a site in " << profile.country << " (calling code " << country.countryNumber
		<< "), written by numbering-corpus-generator from the sample configuration. Regenerate, do not edit.\n"
		<< "# site: country, external prefix, local number length, area code\n"
		<< "site " << profile.country << ' ' << country.externalPrefix << ' ' << LOCAL_NUMBER_LENGTH << ' '
		<< profile.siteArea << '\n'
		<< "# shape number\n";
	for (int line = 0; line < count; ++line)
	{
		const int draw = below(100);
		if (draw < 30)
			out << "national " << layout(national(country));
		else if (draw < 45)
			out << "local " << layout(local(country));
		else if (draw < 60)
		{
			std::vector<std::string> parts = below(2) == 0 ? local(country) : national(country);
			parts.insert(parts.begin(), country.externalPrefix);
			out << "external " << layout(parts);
		}
		else if (draw < 70)
			out << "international " << layout(international(country));
		else if (draw < 85)
			out << "mobile " << layout(mobile(country));
		else if (draw < 95)
			out << "freephone " << layout(freephone(country));
		else
			out << "internal " << digits(LOCAL_NUMBER_LENGTH - 1);
		out << '\n';
	}
}

std::string CorpusGenerator::digits(int count)
{
	// Subscriber numbers begin with 2 to 9: 0 and 1 lead to prefixes and service numbers.
	std::string result(1, static_cast<char>('2' + below(8)));
	for (int i = 1; i < count; ++i)
		result += static_cast<char>('0' + below(10));
	return result;
}

const std::string& CorpusGenerator::pick(const std::vector<std::string>& values)
{
	return values.at(static_cast<std::size_t>(below(static_cast<int>(values.size()))));
}

int CorpusGenerator::below(int bound)
{
	// Plain modulo keeps the draw the same with every standard library, unlike the distributions.
	return static_cast<int>(m_Random() % static_cast<std::mt19937::result_type>(bound));
}

std::vector<std::string> CorpusGenerator::geographic(const Country& country, const std::string& area)
{
	const CountryProfile& profile = country.profile;
	const int subscriber =
		std::max(profile.minSubscriberLength, profile.nationalLength - static_cast<int>(area.size()));
	return {area, digits(subscriber)};
}

std::vector<std::string> CorpusGenerator::national(const Country& country)
{
	std::vector<std::string> parts = geographic(country, pick(country.areaCodes));
	// Colombians choose the long-distance carrier after the trunk prefix.
	if (!country.carriers.empty()) parts.insert(parts.begin(), pick(country.carriers));
	if (!country.trunkPrefix.empty()) parts.front() = country.trunkPrefix + parts.front();
	return parts;
}

std::vector<std::string> CorpusGenerator::local(const Country& country)
{
	if (country.localWithTrunk) return national(country);
	return {geographic(country, country.profile.siteArea).back()};
}

std::vector<std::string> CorpusGenerator::international(const Country& from)
{
	const Country* to = &from;
	while (to == &from)
		to = &m_Countries[static_cast<std::size_t>(below(static_cast<int>(m_Countries.size())))];
	std::vector<std::string> parts = geographic(*to, pick(to->areaCodes));
	parts.insert(parts.begin(), from.internationalPrefix + to->countryNumber);
	return parts;
}

std::vector<std::string> CorpusGenerator::mobile(const Country& country)
{
	const CountryProfile& profile = country.profile;
	std::string prefix = pick(profile.mobilePrefixes);
	const int rest = std::max(4, profile.mobileLength - static_cast<int>(prefix.size()));
	if (profile.mobileWithTrunk) prefix = country.trunkPrefix + prefix;
	return {prefix, digits(rest)};
}

std::vector<std::string> CorpusGenerator::freephone(const Country& country)
{
	const CountryProfile& profile = country.profile;
	return {pick(profile.freephonePrefixes), digits(profile.freephoneDigits)};
}

std::string CorpusGenerator::layout(const std::vector<std::string>& parts)
{
	const int style = below(10);
	const std::string separator = style < 5 ? "" : style < 8 ? " " : "-";
	std::string text;
	for (const std::string& part : parts)
		text += (text.empty() ? "" : separator) + part;
	return text;
}

} // namespace corpus
} // namespace numbering
