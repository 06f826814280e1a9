// ZelCNP_41.cpp

#include "plans/ZelCNP_41.h"

#include "support/Plans.h"
#include "support/Trace.h"

#include "Poco/String.h"

#include <typeinfo>

namespace numbering {

namespace {

const std::size_t ZURICH_LENGTH = 9;
const std::size_t NATIONAL_LENGTH = 10;

bool isNationalLength(std::size_t length)
{
	return length == ZURICH_LENGTH || length == NATIONAL_LENGTH;
}

} // namespace

const std::string ZelCNP_41::szLocalNumberPfx = "01";

const std::string ZelCNP_41::szFreePhonePfx = "0800";

Logger* ZelCNP_41::logger = Logger::getLogger(typeid(ZelCNP_41).name());

ZelCNP_41::ZelCNP_41()
{
	NUMBERING_TRACE(logger, "ZelCNP_41()");
}

std::string ZelCNP_41::qap_Country_MakeCanonicalNumber(std::string number, ZelDialRulesItem* rules)
{
	NUMBERING_TRACE(logger, detail::canonicalCallText(number, rules));
	const std::string ext = rules->getExtPrefix();
	std::string work = number;
	if (work.size() < ZURICH_LENGTH) return number;
	if (!isNationalLength(work.size()))
	{
		if (!Poco::startsWith(number, ext) || !isNationalLength(number.size() - ext.size())) return number;
		work.erase(0, ext.size());
	}
	if (work.size() == ZURICH_LENGTH)
		return Poco::startsWith(work, szLocalNumberPfx) ? "+41 (1) " + work.substr(2) : number;
	if (work.at(0) != '0') return number;
	// The subscriber digits follow "800" without a blank: free-phone numbers have always been shown so.
	if (Poco::startsWith(work, szFreePhonePfx)) return "+41 800" + work.substr(4);
	return "+41 (" + work.substr(1, 2) + ") " + work.substr(3);
}

} // namespace numbering
