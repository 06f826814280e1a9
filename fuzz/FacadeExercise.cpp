// FacadeExercise.cpp

#include "FacadeExercise.h"

#include "numbering/ZelClid.h"

#include "Poco/AutoPtr.h"

#include <exception>

namespace numbering {
namespace fuzz {

namespace {

template <typename Call>
void allowingStdExceptions(Call call)
{
	try
	{
		call();
	}
	catch (const std::exception&)
	{
	}
}

} // namespace

void FacadeExercise::run(ZelNumberingRules* rules,
	ZelDialRulesItem* site,
	const std::string& number,
	const std::string& pattern,
	bool withExtPrefix)
{
	rules->checkPhoneNumber(number);
	rules->isPrefixNeeded(site, number);
	rules->validNumber(number);
	const std::string canonical = rules->makeCanonicalNumber(site, number, pattern);
	rules->makeCanonicalNumber(site, number, pattern, withExtPrefix);
	rules->makePhoneNumber(site, number);
	rules->addExternalPrefix(site, number);
	rules->makePhoneNumber(site, canonical);
	rules->formatCanonicalNumber(number, pattern);
	rules->formatCanonicalNumber(canonical, pattern);
	rules->formatToGSMCanonicalNumber(number);
	rules->formatToGSMCanonicalNumber(canonical);
	inspect(rules, number);
	inspect(rules, canonical);
	convertUnguarded(rules, site, number, canonical, pattern, withExtPrefix);
}

void FacadeExercise::inspect(ZelNumberingRules* rules, const std::string& number)
{
	rules->getCountryCode(number);
	rules->getCountryName(number);
	rules->getCountryCodeFromNumber(number);
	rules->extractExtensionFromCanonicalNumber(number);
	rules->extractAreaCodeOrNatPrefixFromCanonicalNumber(number);
	rules->extractCountryNumberFromCanonicalNumber(number);
}

void FacadeExercise::convertUnguarded(ZelNumberingRules* rules,
	ZelDialRulesItem* site,
	const std::string& number,
	const std::string& canonical,
	const std::string& pattern,
	bool withExtPrefix)
{
	allowingStdExceptions([&] { rules->makeGSMCanonicalNumber(site, number, withExtPrefix); });
	allowingStdExceptions([&] {
		Poco::AutoPtr<ZelClid> clid(rules->makeClid(site, number));
		if (clid) clid->getNumber();
	});
	const std::string countryCode = site == nullptr ? std::string() : site->getCountryId();
	allowingStdExceptions([&] { rules->generateDefaultCanonicalNumber(number, countryCode, pattern); });
	if (site == nullptr) return;
	allowingStdExceptions([&] { rules->makeDialableNumber(site, number); });
	allowingStdExceptions([&] { rules->makeDialableNumber(site, canonical); });
}

} // namespace fuzz
} // namespace numbering
