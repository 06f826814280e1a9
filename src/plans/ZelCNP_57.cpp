// ZelCNP_57.cpp

#include "plans/ZelCNP_57.h"

#include "support/Plans.h"
#include "support/Trace.h"

#include <typeinfo>

namespace numbering {

namespace {

const std::size_t LOCAL_LENGTH = 7;
const std::size_t NATIONAL_LENGTH = 10;

/// The number split by length and its first two digits, or number itself when it fits no form.
std::string canonical(const std::string& number, ZelDialRulesItem* rules)
{
	const std::size_t length = number.size();
	if (length == LOCAL_LENGTH) return "+57 (" + rules->getAreaCode() + ") " + number;
	if (length < NATIONAL_LENGTH || number.at(0) != '0') return number;
	if (number.at(1) == '3') return "+57 (" + number.substr(2, 3) + ") " + number.substr(5);
	if (length == NATIONAL_LENGTH) return "+57 (" + number.substr(2, 1) + ") " + number.substr(3);
	return "+57 (" + number.substr(4, 1) + ") " + number.substr(5);
}

} // namespace

Logger* ZelCNP_57::logger = Logger::getLogger(typeid(ZelCNP_57).name());

ZelCNP_57::ZelCNP_57()
{
	NUMBERING_TRACE(logger, "ZelCNP_57()");
}

ZelCNP_57::~ZelCNP_57()
{
	NUMBERING_TRACE(logger, "ZelCNP_57: Destruct");
}

std::string ZelCNP_57::qap_Country_MakeCanonicalNumber(std::string number, ZelDialRulesItem* rules)
{
	NUMBERING_TRACE(logger, detail::canonicalCallText(number, rules));
	const std::string result = canonical(number, rules);
	// The text names another country; it stays as it is because log filters already search for it.
	NUMBERING_TRACE(
		logger, "QapArgentinaMakeCanonicalNumber('" + number + "', '" + rules->ToString() + "') = " + result);
	return result;
}

} // namespace numbering
