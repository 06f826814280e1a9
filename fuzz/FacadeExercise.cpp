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

void exerciseFacade(ZelNumberingRules* rules,
	ZelDialRulesItem* site,
	const std::string& number,
	const std::string& pattern,
	bool withExtPrefix)
{
	rules->checkPhoneNumber(number);
	rules->isPrefixNeeded(site, number);
	rules->validNumber(number);
	rules->makeCanonicalNumber(site, number, pattern, withExtPrefix);
	rules->addExternalPrefix(site, number);
	const std::string canonical = rules->makeCanonicalNumber(site, number, pattern);
	for (const std::string& text : {number, canonical})
	{
		rules->makePhoneNumber(site, text);
		rules->formatCanonicalNumber(text, pattern);
		rules->formatToGSMCanonicalNumber(text);
		rules->getCountryCode(text);
		rules->getCountryName(text);
		rules->getCountryCodeFromNumber(text);
		rules->extractExtensionFromCanonicalNumber(text);
		rules->extractAreaCodeOrNatPrefixFromCanonicalNumber(text);
		rules->extractCountryNumberFromCanonicalNumber(text);
		if (site != nullptr) allowingStdExceptions([&] { rules->makeDialableNumber(site, text); });
	}
	allowingStdExceptions([&] { rules->makeGSMCanonicalNumber(site, number, withExtPrefix); });
	allowingStdExceptions([&] {
		Poco::AutoPtr<ZelClid> clid(rules->makeClid(site, number));
		if (clid) clid->getNumber();
	});
	const std::string countryCode = site == nullptr ? std::string() : site->getCountryId();
	allowingStdExceptions([&] { rules->generateDefaultCanonicalNumber(number, countryCode, pattern); });
}

} // namespace fuzz
} // namespace numbering
