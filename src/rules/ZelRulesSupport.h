// ZelRulesSupport.h
// Small helpers shared by the source files of the numbering-rules facade.

#ifndef Numbering_ZelRulesSupport_INCLUDED
#define Numbering_ZelRulesSupport_INCLUDED

#include "numbering/ZelCountryRuleItem.h"
#include "numbering/ZelDialRulesItem.h"
#include "numbering/ZelNumberingConfig.h"

#include "dialable/ZelDialable.h"

#include <string>

namespace numbering {

/// Text tests, argument checks, error lines and checked look-ups that several facade operations share.
class ZelRulesSupport
{
public:
	/// True when number begins with "+": the only test the library makes for a canonical number.
	static bool isCanonical(const std::string& number);

	/// True when number holds the marker "***", which the conversions hand back untouched.
	static bool isMarked(const std::string& number);

	/// Trims number in place at both ends and, when it begins with "+", also right after the "+":
	/// " + 33 1 " becomes "+33 1".
	static void trimNumber(std::string& number);

	/// Throws std::invalid_argument for a null site or an empty number, with the texts the error lines quote.
	static void checkArguments(ZelDialRulesItem* item, const std::string& number);

	/// The error line of a guarded operation, to be called inside a catch clause:
	/// "ZelNumberingRules::" + operation + " exception: " + what() (or "..." for an exception without text)
	/// + context.
	static std::string errorLine(const std::string& operation, const std::string& context);

	/// The site's ToString(), or "" for a null site.
	static std::string describe(ZelDialRulesItem* item);

	/// The country's rule record; throws ZelUnsupportedCountryException when the configuration has none.
	static ZelCountryRuleItem* requireCountryRule(ZelNumberingConfig* config, const std::string& countryCode);

	/// The cached dialable maker of a country number; throws Poco::NullPointerException when there is none.
	static ZelDialable* requireDialable(const std::string& countryNumber);
};

} // namespace numbering

#endif // Numbering_ZelRulesSupport_INCLUDED
