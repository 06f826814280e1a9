// ZelCNP_49.cpp

#include "plans/ZelCNP_49.h"

#include "numbering/ZelNumberingConfig.h"

#include "support/Plans.h"

#include <iostream>
#include <typeinfo>
#include <utility>

namespace numbering {

namespace {

const TrunkPrefixPlan::Country GERMANY{"49", "ZelCNP_49", "", TrunkPrefixPlan::NO_TABLE_TEXT};

} // namespace

Logger* ZelCNP_49::logger = Logger::getLogger(typeid(ZelCNP_49).name());

ZelCNP_49::ZelCNP_49():
	TrunkPrefixPlan(logger, GERMANY)
{
}

bool ZelCNP_49::readUnknownCode(const std::string& digits, const std::string& siteArea, std::string& result)
{
	result = areaForm(siteArea, digits);
	return true;
}

bool ZelCNP_49::isLocal(const std::string&, const std::string&)
{
	return true;
}

bool ZelCNP_49::isBehindExtPrefix(const std::string& number, const std::string& ext)
{
	return detail::followsExtPrefix(number, ext);
}

bool ZelCNP_49::keepCountry(const std::string&, const std::string&, std::string&)
{
	return false;
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
