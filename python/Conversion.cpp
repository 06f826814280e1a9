// Conversion.cpp

#include "Conversion.h"

#include "numbering/ZelClid.h"

#include "Poco/AutoPtr.h"

#include <stdexcept>
#include <utility>

namespace numbering {
namespace python {

namespace {

// Lays a canonical number out as the plans make it, "+49 (30) 1234567", whatever the country's mask: "parse"
// reads the parts from this layout. The "x" keeps the blank before the subscriber digits.
const std::string PLAIN_PATTERN = "+C (A) x";

Conversion::Result clidOf(ZelNumberingRules& rules, ZelDialRulesItem* site, const std::string& number)
{
	Poco::AutoPtr<ZelClid> clid(rules.makeClid(site, number));
	if (clid.isNull()) return {};
	return std::make_tuple(clid->getNumber(), clid->getOrigin()->getName());
}

Conversion::Result parsed(ZelNumberingRules& rules, ZelDialRulesItem* site, const std::string& number)
{
	std::string canonical = rules.makeCanonicalNumber(site, number, PLAIN_PATTERN);
	std::string country = rules.extractCountryNumberFromCanonicalNumber(canonical);
	std::string area = rules.extractAreaCodeOrNatPrefixFromCanonicalNumber(canonical);
	std::string extension = rules.extractExtensionFromCanonicalNumber(canonical);
	return std::make_tuple(std::move(canonical), std::move(country), std::move(area), std::move(extension));
}

} // namespace

Conversion::Conversion(const std::string& what, std::string pattern):
	m_Kind(kindOf(what)),
	m_Pattern(std::move(pattern))
{
}

Conversion::Kind Conversion::kindOf(const std::string& what)
{
	static const std::pair<const char*, Kind> kinds[] = {
		{"canonical", CANONICAL}, {"gsm", GSM}, {"dial", DIAL}, {"clid", CLID}, {"parse", PARSE}, {"check", CHECK}};
	for (const auto& [name, kind] : kinds)
		if (what == name) return kind;
	throw std::invalid_argument(
		"unknown conversion '" + what + "': expected canonical, gsm, dial, clid, parse or check");
}

Conversion::Result Conversion::operator()(ZelNumberingRules& rules, const Site& site, const std::string& number) const
{
	switch (m_Kind)
	{
	case CANONICAL:
		return rules.makeCanonicalNumber(site.item(), number, m_Pattern);
	case GSM:
		return rules.makeGSMCanonicalNumber(site.item(), number, false);
	case DIAL:
		return rules.makePhoneNumber(site.item(), number);
	case CLID:
		return clidOf(rules, site.item(), number);
	case PARSE:
		return parsed(rules, site.item(), number);
	case CHECK:
		break;
	}
	return rules.checkPhoneNumber(number);
}

std::vector<Conversion::Result> Conversion::all(
	ZelNumberingRules& rules, const Site& site, const std::vector<std::string>& numbers) const
{
	std::vector<Result> results;
	results.reserve(numbers.size());
	for (const std::string& number : numbers)
		results.push_back((*this)(rules, site, number));
	return results;
}

} // namespace python
} // namespace numbering
