// ZelCNP_64.cpp

#include "plans/ZelCNP_64.h"

#include "support/Plans.h"
#include "support/Trace.h"

#include "Poco/String.h"

#include <optional>
#include <typeinfo>

namespace numbering {

namespace {

const std::string TRUNK_PREFIX = "0";
const std::string SHORT_LOCAL_AREA_START = "2";
const std::size_t MIN_LENGTH = 6;
const std::size_t SHORT_LOCAL_LENGTH = 6;
const std::size_t LOCAL_LENGTH = 7;

/// Six-digit local numbers exist only in the areas whose code begins with "2".
bool hasShortLocalNumbers(const std::string& area)
{
	return Poco::startsWith(area, SHORT_LOCAL_AREA_START);
}

std::string local(const std::string& area, const std::string& subscriber)
{
	return "+64 (" + area + ") " + subscriber;
}

std::string split(const std::string& national, std::size_t areaLength)
{
	return "+64 (" + national.substr(0, areaLength) + ") " + national.substr(areaLength);
}

/// The canonical form of work read as trunk digit plus national number. A number the rule rejects outright
/// ends the plan unchanged, so it gives number; nullopt means the rule did not apply at all.
std::optional<std::string> nationalRule(const std::string& number, std::string work, const std::string& area)
{
	if (!Poco::startsWith(work, TRUNK_PREFIX)) return std::nullopt;
	work.erase(0, TRUNK_PREFIX.size());
	const std::size_t digits = work.size();
	if (digits < SHORT_LOCAL_LENGTH || work.at(0) == '0') return std::nullopt;
	if (digits == SHORT_LOCAL_LENGTH) return hasShortLocalNumbers(area) ? local(area, work) : number;
	if (digits == LOCAL_LENGTH) return local(area, work);
	switch (work.at(0))
	{
	case '3':
	case '4':
	case '6':
	case '7':
	case '9':
		return digits == 8 ? split(work, 1) : number;
	case '5':
	case '8':
		return split(work, 3);
	case '2':
		return digits == 8 || digits == 9 ? split(work, 2) : number;
	default:
		return number;
	}
}

} // namespace

Logger* ZelCNP_64::logger = Logger::getLogger(typeid(ZelCNP_64).name());

ZelCNP_64::ZelCNP_64()
{
	NUMBERING_TRACE(logger, "ZelCNP_64()");
}

std::string ZelCNP_64::qap_Country_MakeCanonicalNumber(std::string number, ZelDialRulesItem* rules)
{
	NUMBERING_TRACE(logger, detail::canonicalCallText(number, rules));
	const std::string ext = rules->getExtPrefix();
	const std::string area = rules->getAreaCode();
	NUMBERING_TRACE(logger, "ZelCNP_64");
	const std::size_t length = number.size();
	if (length < MIN_LENGTH) return number;
	if (Poco::startsWith(number, TRUNK_PREFIX))
	{
		std::optional<std::string> national = nationalRule(number, number, area);
		if (national) return *national;
	}
	// Second look: a national number behind the external prefix, else a local number.
	if (length > LOCAL_LENGTH && Poco::startsWith(number, ext))
		return nationalRule(number, number.substr(ext.size()), area).value_or(number);
	if (length == SHORT_LOCAL_LENGTH) return hasShortLocalNumbers(area) ? local(area, number) : number;
	if (length == LOCAL_LENGTH) return local(area, number);
	return number;
}

} // namespace numbering
