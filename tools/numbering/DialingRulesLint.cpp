// DialingRulesLint.cpp

#include "DialingRulesLint.h"

#include "Poco/Ascii.h"
#include "Poco/String.h"
#include "Poco/StringTokenizer.h"

#include <algorithm>

namespace numbering {
namespace tool {

namespace {

const std::size_t NAME_FIELDS = 6;
const std::size_t ALL_FIELDS = 7;
const std::size_t LONGEST_COUNTRY_NUMBER = 3;
const std::string PRINCIPAL = "P";
/// The letters a rule is written with: E the country number, F the area code or national prefix, G the
/// subscriber number, I the national prefix without area. The number makers look only for E, F and I; G is
/// written for the reader and changes nothing.
const std::string RULE_LETTERS = "EFGI";

bool isDigits(const std::string& text)
{
	return std::all_of(text.begin(), text.end(), Poco::Ascii::isDigit);
}

bool isCountryNumber(const std::string& number)
{
	return !number.empty() && number.size() <= LONGEST_COUNTRY_NUMBER && isDigits(number);
}

bool has(const std::string& text, char c)
{
	return text.find(c) != std::string::npos;
}

} // namespace

DialingRulesLint::DialingRulesLint(const ConfigFile& file, LintReport& report):
	m_File(file),
	m_Report(report)
{
	const bool walked =
		file.walkAsLoader(report, [this](const std::string& key) { checkLine(key, m_File.valueOf(key)); });
	if (!walked)
	{
		report.add(file.path(), 0, LintReport::MISSING,
			"loading fails, so the library lists no country: look-ups by name and the numbering tool find none");
	}
	for (const auto& [number, countries] : m_Countries)
		checkPrincipals(number, countries);
}

std::string DialingRulesLint::principalOf(const std::string& countryNumber) const
{
	auto found = m_Principals.find(countryNumber);
	return found == m_Principals.end() ? std::string() : found->second;
}

bool DialingRulesLint::hasNumber(const std::string& countryNumber) const
{
	return m_Countries.count(countryNumber) > 0;
}

void DialingRulesLint::checkLine(const std::string& key, const std::string& value)
{
	const Poco::StringTokenizer tokens(value, ":");
	std::vector<std::string> fields(tokens.begin(), tokens.end());
	if (fields.size() < NAME_FIELDS || fields.size() > ALL_FIELDS)
	{
		m_File.add(m_Report, key, LintReport::MISREAD,
			std::to_string(fields.size()) + " fields where 6 or 7 are expected: " +
				(fields.size() < NAME_FIELDS ? "the missing ones are read as empty"
											 : "the ones after the seventh are ignored"));
	}
	fields.resize(std::max(fields.size(), ALL_FIELDS));
	checkKey(key);
	checkRules(key, fields);
	const std::string& number = fields[0];
	const std::string& flag = fields[6];
	if (!flag.empty() && flag != PRINCIPAL)
		m_File.add(m_Report, key, LintReport::MISREAD,
			"principal flag " + LintReport::quoted(flag) + " is not 'P' and is ignored");
	m_Countries[number].push_back({key, flag == PRINCIPAL});
	if (!isCountryNumber(number))
	{
		m_File.add(m_Report, key, LintReport::UNUSED,
			"country number " + LintReport::quoted(number) +
				" is not 1 to 3 digits: no number is ever recognised as this country's");
	}
}

void DialingRulesLint::checkKey(const std::string& key)
{
	if (key.size() != 2)
	{
		m_File.add(m_Report, key, LintReport::UNUSED,
			LintReport::quoted(key) +
				" is not a two-letter country code: no site or look-up by code reaches this line");
	}
	else if (!std::all_of(key.begin(), key.end(), Poco::Ascii::isUpper))
	{
		m_File.add(m_Report, key, LintReport::STYLE,
			LintReport::quoted(key) + " is not an upper-case ISO 3166 code: sites must name the country " +
				LintReport::quoted(key) + " exactly");
	}
}

void DialingRulesLint::checkRules(const std::string& key, const std::vector<std::string>& fields)
{
	const std::string& prefix = fields[1];
	if (!isDigits(prefix))
	{
		m_File.add(m_Report, key, LintReport::MISREAD,
			"international prefix " + LintReport::quoted(prefix) + " holds non-digits, which are dialled as written");
	}
	if (!has(fields[2], 'E'))
	{
		m_File.add(m_Report, key, LintReport::MISREAD,
			"international rule " + LintReport::quoted(fields[2]) +
				" has no E: calls abroad are dialled without the country "
				"number");
	}
	checkRule(key, "international", fields[2]);
	// The record trims the long-distance rule, not the local one.
	checkRule(key, "long-distance", Poco::trim(fields[3]));
	checkRule(key, "local", fields[4]);
}

void DialingRulesLint::checkRule(const std::string& key, const std::string& name, const std::string& rule)
{
	auto odd = std::find_if(
		rule.begin(), rule.end(), [](char c) { return !Poco::Ascii::isDigit(c) && !has(RULE_LETTERS, c); });
	if (odd != rule.end())
	{
		m_File.add(m_Report, key, LintReport::MISREAD,
			name + " rule " + LintReport::quoted(rule) + " holds " + LintReport::quoted(std::string(1, *odd)) +
				", which the number makers ignore");
	}
	const std::string prefix =
		rule.substr(0, std::find_if_not(rule.begin(), rule.end(), Poco::Ascii::isDigit) - rule.begin());
	if (!prefix.empty() && !has(rule, 'F') && !has(rule, 'I'))
	{
		m_File.add(m_Report, key, LintReport::MISREAD,
			name + " rule " + LintReport::quoted(rule) + " has no F or I: its prefix " + prefix + " is never dialled");
	}
}

void DialingRulesLint::checkPrincipals(const std::string& number, const std::vector<Country>& countries)
{
	auto first = std::find_if(countries.begin(), countries.end(), [](const Country& c) { return c.principal; });
	if (first == countries.end())
	{
		// A malformed number has its own finding; saying that no line owns it would add nothing.
		if (!isCountryNumber(number)) return;
		m_File.add(m_Report, countries.front().key, LintReport::UNUSED,
			"no line marks country number " + number + " 'P'" +
				(countries.size() > 1 ? " (" + std::to_string(countries.size()) + " countries have it)" : "") +
				": numbers with it belong to no country");
		return;
	}
	m_Principals[number] = first->key;
	for (auto other = first + 1; other != countries.end(); ++other)
	{
		if (!other->principal) continue;
		m_File.add(m_Report, other->key, LintReport::UNUSED,
			"also marks country number " + number + " 'P': " + first->key + " (line " +
				std::to_string(m_File.lineOf(first->key)) + ") comes first in key order and keeps it");
	}
}

} // namespace tool
} // namespace numbering
