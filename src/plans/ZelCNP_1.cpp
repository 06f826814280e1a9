// ZelCNP_1.cpp

#include "plans/ZelCNP_1.h"

#include "support/Plans.h"
#include "support/Trace.h"

#include <typeinfo>

namespace numbering {

namespace {

const std::size_t LOCAL_LENGTH = 7;
const std::size_t NATIONAL_LENGTH = 10;

/// Neither an area code nor an exchange code may begin with "0" or "1".
bool isReservedDigit(char digit)
{
	return digit == '0' || digit == '1';
}

std::string localCanonical(const std::string& number, const std::string& work, ZelDialRulesItem* rules)
{
	if (isReservedDigit(work.at(0))) return number;
	std::string area = rules->getAreaCode();
	if (area.empty()) area = "?";
	return "+1 (" + area + ") " + work;
}

std::string nationalCanonical(const std::string& number, const std::string& work)
{
	if (isReservedDigit(work.at(0)) || isReservedDigit(work.at(3))) return number;
	return "+1 (" + work.substr(0, 3) + ") " + work.substr(3);
}

} // namespace

Logger* ZelCNP_1::logger = Logger::getLogger(typeid(ZelCNP_1).name());

ZelCNP_1::ZelCNP_1()
{
	NUMBERING_TRACE(logger, "ZelCNP_1()");
}

std::string ZelCNP_1::qap_Country_MakeCanonicalNumber(std::string number, ZelDialRulesItem* rules)
{
	NUMBERING_TRACE(logger, detail::canonicalCallText(number, rules));
	const std::size_t length = number.size();
	if (length == LOCAL_LENGTH) return localCanonical(number, number, rules);
	if (length == NATIONAL_LENGTH) return nationalCanonical(number, number);
	if ((length == LOCAL_LENGTH + 1 || length == NATIONAL_LENGTH + 1) && isReservedDigit(number.at(0)))
	{
		// One leading "0" or "1" in front of a local or national number is a trunk digit.
		const std::string work = number.substr(1);
		return length == LOCAL_LENGTH + 1 ? localCanonical(number, work, rules) : nationalCanonical(number, work);
	}
	return number;
}

} // namespace numbering
