// Guards.h
// What the facade's operations check before they convert, and how a guarded operation reports a failure.

#ifndef Numbering_Guards_INCLUDED
#define Numbering_Guards_INCLUDED

#include <string>

namespace numbering {

class ZelCountryRuleItem;
class ZelDialRulesItem;
class ZelDialable;
class ZelNumberingConfig;

namespace detail {

/// Throws std::invalid_argument for a null site, with the text the error lines quote.
void checkSite(ZelDialRulesItem* item);

/// checkSite, then throws std::invalid_argument for an empty number, with the text the error lines quote.
void checkArguments(ZelDialRulesItem* item, const std::string& number);

/// The error line of a guarded operation, to be called inside a catch clause:
/// "ZelNumberingRules::" + operation + " exception: " + what() (or "..." for an exception without text)
/// + context.
std::string errorLine(const std::string& operation, const std::string& context);

/// The site's ToString(), or "" for a null site.
std::string describe(ZelDialRulesItem* item);

/// The country's rule record; throws ZelUnsupportedCountryException when the configuration has none.
ZelCountryRuleItem* requireCountryRule(ZelNumberingConfig* config, const std::string& countryCode);

/// The cached dialable maker of a country number; throws Poco::NullPointerException when there is none.
ZelDialable* requireDialable(const std::string& countryNumber);

} // namespace detail
} // namespace numbering

#endif // Numbering_Guards_INCLUDED
