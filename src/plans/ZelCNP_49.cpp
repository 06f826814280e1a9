// ZelCNP_49.cpp

#include "plans/ZelCNP_49.h"

#include "numbering/ZelNumberingConfig.h"

#include "plans/ZelCNPTrace.h"

#include "Poco/AutoPtr.h"

#include <iostream>
#include <typeinfo>
#include <utility>

namespace numbering {

namespace {

const std::string CANONICAL_START = "+49 (";

/// Shortest national number without its "0", and shortest subscriber number.
const std::string::size_type MIN_DIGITS = 3;

/// Longest number, external prefix removed, that is still looked at behind the external prefix.
const std::string::size_type MAX_BEHIND_PREFIX = 16;

std::string canonical(const std::string& area, const std::string& subscriber)
{
	return CANONICAL_START + area + ") " + subscriber;
}

bool isNational(const std::string& number)
{
	return !number.empty() && number[0] == '0';
}

} // namespace

Logger* ZelCNP_49::logger = Logger::getLogger(typeid(ZelCNP_49).name());

ZelCNP_49::ZelCNP_49():
	ZelAreaCodeTablePlan(logger, "49", "ZelCNP_49", "", "No specific dialing rules configuration file")
{
}

ZelCNP_49::~ZelCNP_49() = default;

std::string ZelCNP_49::qap_Country_MakeCanonicalNumber(std::string number, ZelDialRulesItem* rules)
{
	ZelCNPTrace::logCall(logger, number, rules);
	const std::string ext = rules->getExtPrefix();
	if (number.size() < MIN_DIGITS) return number;

	// First pass, the number as it stands: only a national number is recognised here.
	if (isNational(number))
	{
		std::string result = makeNational(number, rules);
		if (!result.empty()) return result;
	}

	// Second pass, behind the external prefix. A number that does not carry it is taken as local, whole.
	const bool behindPrefix = number.size() >= ext.size() + MIN_DIGITS && number.compare(0, ext.size(), ext) == 0 &&
							  number.size() - ext.size() <= MAX_BEHIND_PREFIX;
	if (!behindPrefix) return makeLocal(number, rules, number);
	const std::string working = number.substr(ext.size());
	if (!isNational(working)) return makeLocal(working, rules, number);
	std::string result = makeNational(working, rules);
	return result.empty() ? number : result;
}

std::string ZelCNP_49::makeNational(const std::string& working, ZelDialRulesItem* rules)
{
	std::string rest = working.substr(1);
	// A second "0" makes it an international number; a number shorter than every code cannot be split.
	if (rest.size() < MIN_DIGITS || rest[0] == '0' ||
		rest.size() < static_cast<std::string::size_type>(m_MaxAreaCodeLength))
		return std::string();
	const std::string area = takeAreaCode(rest, rules);
	return rest.size() < MIN_DIGITS ? std::string() : canonical(area, rest);
}

std::string ZelCNP_49::makeLocal(const std::string& working, ZelDialRulesItem* rules, const std::string& fallback) const
{
	if (!m_Translate) return fallback;
	const std::string siteArea = rules->getAreaCode();
	return siteArea.empty() ? fallback : canonical(siteArea, working);
}

int ZelCNP_49::main(std::string* /*args*/)
{
	ZelDialRulesItem rules;
	// Without a configuration that knows Germany the record keeps its default country.
	if (ZelNumberingConfig::getInstance()->validCountryCode("DE")) rules.setCountryId("DE");
	rules.setExtPrefix("1");
	rules.setLocalNbLength(9);
	rules.setAreaCode("7711");
	Poco::AutoPtr<ZelCNP_49> plan(new ZelCNP_49());
	std::cout << "Dialing rules : " << rules.ToString() << std::endl;
	const std::pair<const char*, const char*> conversions[] = {{"Local 76985411 -> ", "76985411"},
		{"Local + prefixe 176985411 -> ", "176985411"}, {"National 0771176985411 -> ", "0771176985411"},
		{"National + prefixe 10771176985411 -> ", "10771176985411"}};
	for (const auto& conversion : conversions)
		std::cout << conversion.first << plan->qap_Country_MakeCanonicalNumber(conversion.second, &rules) << std::endl;
	return 0;
}

} // namespace numbering
