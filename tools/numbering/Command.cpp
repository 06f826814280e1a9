// Command.cpp

#include "Command.h"

#include "numbering/ZelClid.h"
#include "numbering/ZelNumberingConfig.h"

#include "LintReport.h"

#include "Poco/AutoPtr.h"
#include "Poco/Exception.h"

#include <exception>
#include <iostream>
#include <utility>

namespace numbering {
namespace tool {

namespace {

// Lays a canonical number out as the plans make it, "+49 (30) 1234567", whatever the country's mask: the
// parts are read from this layout. A pattern must not end with a blank; the "x" keeps the blank before the
// subscriber digits.
const std::string PLAIN_PATTERN = "+C (A) x";

void reportFailure(const std::string& number, const std::exception& e)
{
	const auto* poco = dynamic_cast<const Poco::Exception*>(&e);
	std::cerr << "numbering: '" << number << "': " << (poco ? poco->displayText() : e.what()) << '\n';
}

std::string gsmOf(ZelNumberingRules& rules, ZelDialRulesItem* site, const std::string& number)
{
	try
	{
		return rules.makeGSMCanonicalNumber(site, number, false);
	}
	catch (const std::exception& e)
	{
		reportFailure(number, e);
		return "";
	}
}

/// Number and origin name of the calling-line identity, or two empty strings.
std::pair<std::string, std::string> clidOf(ZelNumberingRules& rules, ZelDialRulesItem* site, const std::string& number)
{
	try
	{
		Poco::AutoPtr<ZelClid> clid(rules.makeClid(site, number));
		if (clid.isNull()) return {};
		return {clid->getNumber(), clid->getOrigin() ? clid->getOrigin()->getName() : ""};
	}
	catch (const std::exception& e)
	{
		reportFailure(number, e);
		return {};
	}
}

Row parsed(ZelNumberingRules& rules, ZelDialRulesItem* site, const std::string& number)
{
	const std::string canonical = rules.makeCanonicalNumber(site, number, PLAIN_PATTERN);
	const std::string country = rules.extractCountryNumberFromCanonicalNumber(canonical);
	return {{number, canonical, country, rules.extractAreaCodeOrNatPrefixFromCanonicalNumber(canonical),
				rules.extractExtensionFromCanonicalNumber(canonical)},
		!country.empty()};
}

Row explained(ZelNumberingRules& rules, ZelDialRulesItem* site, const std::string& number, const std::string& pattern)
{
	const std::string canonical = rules.makeCanonicalNumber(site, number, pattern);
	const auto clid = clidOf(rules, site, number);
	return {{number, rules.checkPhoneNumber(number), canonical, gsmOf(rules, site, number),
				rules.makePhoneNumber(site, number), rules.addExternalPrefix(site, number), clid.first, clid.second},
		!canonical.empty()};
}

Row single(const std::string& number, const std::string& result)
{
	return {{number, result}, !result.empty()};
}

} // namespace

const std::vector<Command::Definition>& Command::definitions()
{
	static const std::vector<Definition> all = {
		{"canonical", CANONICAL, {"number", "canonical"},
			"canonical form, laid out by --pattern or the country's mask"},
		{"gsm", GSM, {"number", "gsm"}, "compact canonical form, \"+49301234567\""},
		{"dial", DIAL, {"number", "dial"}, "what the site's exchange dials, external prefix included"},
		{"prefix", PREFIX, {"number", "prefix"}, "the number with the external prefix where it is needed"},
		{"clid", CLID, {"number", "clid", "origin"}, "calling-line identity: number and origin"},
		{"parse", PARSE, {"number", "canonical", "country", "area", "extension"},
			"country number, area part and extension of the canonical form"},
		{"check", CHECK, {"number", "check"}, "the number without layout characters, or nothing"},
		{"countries", COUNTRIES, {"name", "code", "number"}, "name, code and calling number of every country"},
		{"explain", EXPLAIN, {"number", "check", "canonical", "gsm", "dial", "prefix", "clid", "origin"},
			"every conversion side by side"},
		{"lint", LINT, LintReport::columns(),
			"the configuration's mistakes, file by file; with --country, a round trip of every area code"},
	};
	return all;
}

Command::Command(const std::string& name):
	m_Definition(nullptr)
{
	for (const Definition& definition : definitions())
		if (name == definition.name) m_Definition = &definition;
	if (!m_Definition) throw Poco::NotFoundException("unknown command '" + name + "'");
}

std::string Command::summary()
{
	std::string text;
	for (const Definition& definition : definitions())
		text += "  " + std::string(definition.name) + std::string(12 - std::string(definition.name).size(), ' ') +
				definition.description + "\n";
	return text;
}

const std::vector<std::string>& Command::columns() const
{
	return m_Definition->columns;
}

bool Command::takesNumbers() const
{
	return m_Definition->kind != COUNTRIES && m_Definition->kind != LINT;
}

bool Command::isLint() const
{
	return m_Definition->kind == LINT;
}

bool Command::needsSite() const
{
	return takesNumbers() && m_Definition->kind != CHECK;
}

Row Command::convert(
	ZelNumberingRules& rules, ZelDialRulesItem* site, const std::string& number, const std::string& pattern) const
{
	switch (m_Definition->kind)
	{
	case CANONICAL:
		return single(number, rules.makeCanonicalNumber(site, number, pattern));
	case GSM:
		return single(number, gsmOf(rules, site, number));
	case DIAL:
		return single(number, rules.makePhoneNumber(site, number));
	case PREFIX:
		return single(number, rules.addExternalPrefix(site, number));
	case CLID:
	{
		const auto clid = clidOf(rules, site, number);
		return {{number, clid.first, clid.second}, !clid.first.empty()};
	}
	case PARSE:
		return parsed(rules, site, number);
	case CHECK:
		return single(number, rules.checkPhoneNumber(number));
	case EXPLAIN:
		return explained(rules, site, number, pattern);
	case COUNTRIES:
	case LINT:
		break;
	}
	return {{number}, false};
}

void Command::listCountries(ZelNumberingRules& rules, ResultWriter& writer) const
{
	ZelNumberingConfig* config = ZelNumberingConfig::getInstance();
	for (const std::string& name : rules.getCountryList())
	{
		const std::string code = rules.getCountryCode(name);
		writer.write({{name, code, config->getCountryNumber(code)}, true});
	}
}

} // namespace tool
} // namespace numbering
