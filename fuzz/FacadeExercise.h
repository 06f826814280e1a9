// FacadeExercise.h
// Calls every operation of the facade on one number, as a host would, for the fuzz targets.

#ifndef Numbering_FacadeExercise_INCLUDED
#define Numbering_FacadeExercise_INCLUDED

#include "numbering/ZelClid.h"
#include "numbering/ZelDialRulesItem.h"
#include "numbering/ZelNumberingRules.h"

#include "Poco/AutoPtr.h"

#include <exception>
#include <string>

namespace numbering {
namespace fuzz {

/// Runs call; a std::exception it throws is what a host may get, so it ends nothing.
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

/// Drives the whole facade with one number, and the canonical number made of it, with one pattern at one site.
/// The guarded operations are called bare: an exception escaping one of them ends the process, and the fuzzer
/// reports it. The unguarded ones may throw a std::exception to their host, which is allowed; anything else
/// escapes and is reported too. site may be null except for makeDialableNumber, which hosts only call with a site;
/// it is then skipped.
inline void exerciseFacade(ZelNumberingRules* rules,
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

#endif // Numbering_FacadeExercise_INCLUDED
