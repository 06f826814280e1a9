// RoundTripLint.cpp

#include "RoundTripLint.h"

namespace numbering {
namespace tool {

namespace {

const std::size_t SUBSCRIBER_LENGTH = 6;

} // namespace

RoundTripLint::RoundTripLint(ZelNumberingRules& rules, ZelDialRulesItem& site, const std::string& trunkPrefix):
	m_Rules(rules),
	m_Site(site),
	m_TrunkPrefix(trunkPrefix)
{
}

void RoundTripLint::check(
	const ConfigFile& table, const std::vector<std::pair<std::string, std::string>>& codes, LintReport& report)
{
	m_Codes.clear();
	for (const auto& stored : codes)
		m_Codes.insert(stored.first);
	for (const auto& [code, key] : codes)
	{
		const std::string trip = failedTrip(m_TrunkPrefix + code + subscriberAfter(code));
		if (!trip.empty()) table.add(report, key, LintReport::ROUND_TRIP, trip);
	}
}

std::string RoundTripLint::subscriberAfter(const std::string& code) const
{
	std::string subscriber(SUBSCRIBER_LENGTH, '3');
	for (char first = '2'; first <= '8'; ++first)
	{
		subscriber[0] = first;
		const std::string number = code + subscriber;
		bool beginsLongerCode = false;
		for (std::size_t length = code.size() + 1; length <= number.size() && !beginsLongerCode; ++length)
			beginsLongerCode = m_Codes.count(number.substr(0, length)) > 0;
		if (!beginsLongerCode) break;
	}
	return subscriber;
}

std::string RoundTripLint::failedTrip(const std::string& national) const
{
	const std::string canonical = m_Rules.makeCanonicalNumber(&m_Site, national, "");
	const std::string dialled = m_Rules.makePhoneNumber(&m_Site, canonical);
	const std::string again = m_Rules.makeCanonicalNumber(&m_Site, dialled, "");
	if (!canonical.empty() && canonical[0] == '+' && again == canonical) return std::string();
	return "round trip from the site: " + national + " gives '" + canonical + "', dialled as '" + dialled +
		   "', which gives back '" + again + "'";
}

} // namespace tool
} // namespace numbering
