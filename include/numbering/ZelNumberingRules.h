// ZelNumberingRules.h
// The facade through which hosts convert and inspect telephone numbers.

#ifndef Numbering_ZelNumberingRules_INCLUDED
#define Numbering_ZelNumberingRules_INCLUDED

#include "numbering/Logger.h"
#include "numbering/NumberingApi.h"
#include "numbering/ZelClid.h"
#include "numbering/ZelDialRulesItem.h"
#include "numbering/ZelNumberingConfig.h"

#include <string>
#include <vector>

namespace numbering {

/// Single entry point of the library. Guarded operations (makeCanonicalNumber, makePhoneNumber,
/// addExternalPrefix, formatCanonicalNumber, formatToGSMCanonicalNumber) never throw: they log one error line
/// and return "" (the two layout operations return their input). makeClid, makeDialableNumber and
/// makeGSMCanonicalNumber let exceptions reach the caller. Create the instance before concurrent use and reset
/// it only when no call is in progress.
class Numbering_API ZelNumberingRules
{
public:
	/// The instance, created on first use (which loads the configuration).
	static ZelNumberingRules* getInstance();

	/// Releases the plan cache, the dialable cache, the configuration and the facade, in that order; the next
	/// getInstance re-reads the configuration files.
	static void resetInstance();

	ZelNumberingRules();

	// Deliberately not virtual: the class has no destructor slot, and hosts depend on the slot order below.
	~ZelNumberingRules();

	// Hosts compiled against this header depend on the order of the virtual functions below.

	/// The configuration's sorted list of country names.
	virtual std::vector<std::string>& getCountryList();

	/// Country code of a country name ("France" gives "FR"), or "".
	virtual std::string getCountryCode(std::string countryName);

	/// Name of a country code, or "".
	virtual std::string getCountryName(std::string countryCode);

	/// Country code of a country calling number ("33" gives "FR"), or "".
	virtual std::string getCountryCodeFromNumber(std::string countryNumber);

	/// makeCanonicalNumber with the country's default mask, then the compact form:
	/// "030 1234567" at a Berlin site gives "+49301234567". Unguarded.
	virtual std::string makeGSMCanonicalNumber(ZelDialRulesItem* item, std::string number, bool withExtPrefix);

	/// makeCanonicalNumber(item, number, pattern, false).
	virtual std::string makeCanonicalNumber(ZelDialRulesItem* item, std::string number, std::string pattern);

	/// The canonical form laid out by pattern (or the country's mask when pattern is empty):
	/// "030 1234567" at a Berlin site gives "+49 (30) 1234567". Internal numbers come back unchanged, service
	/// codes as their digits and keypad characters; "" on failure.
	virtual std::string makeCanonicalNumber(
		ZelDialRulesItem* item, std::string number, std::string pattern, bool withExtPrefix);

	/// What the site's exchange must dial, external prefix included; "" on failure.
	virtual std::string makePhoneNumber(ZelDialRulesItem* item, std::string number);

	/// Like makePhoneNumber, but a number without "+" is only cleaned, not converted.
	virtual std::string addExternalPrefix(ZelDialRulesItem* item, std::string number);

	/// The calling-line identity of a received number, owned by the caller, or null when it cannot be made
	/// canonical. Throws std::invalid_argument for a null item or an empty number.
	virtual ZelClid* makeClid(ZelDialRulesItem* item, std::string number);

	/// The digits and keypad characters of number without layout characters, or "" when it holds any other
	/// character: "01 23-45.67" gives "01234567".
	std::string checkPhoneNumber(std::string number);

	/// The digits the site must dial for a canonical number, without external prefix. Unguarded.
	std::string makeDialableNumber(ZelDialRulesItem* item, std::string canonicalNumber);

	/// True when the site's external prefix is wanted in front of number.
	bool isPrefixNeeded(ZelDialRulesItem* item, std::string number);

	/// Lays a canonical number out by pattern ("C" country, "A" area, "a" area unless it is the trunk prefix,
	/// "x" one subscriber digit); returns the input when it cannot.
	std::string formatCanonicalNumber(std::string canonicalNumber, std::string pattern);

	/// A canonical number for a country without a plan of its own, or "".
	std::string generateDefaultCanonicalNumber(std::string number, std::string countryCode, std::string areaCode);

	/// "+44 (0) 2012345678" gives "+442012345678"; returns the input when it cannot.
	std::string formatToGSMCanonicalNumber(std::string canonicalNumber);

	/// The subscriber digits after the area part, or "".
	std::string extractExtensionFromCanonicalNumber(std::string canonicalNumber);

	/// The text between the parentheses, or "".
	std::string extractAreaCodeOrNatPrefixFromCanonicalNumber(std::string canonicalNumber);

	/// The country number of a canonical number, or "".
	std::string extractCountryNumberFromCanonicalNumber(std::string canonicalNumber);

	/// The number trimmed and, when it begins with "+", rebuilt in canonical layout.
	std::string validNumber(std::string number);

	/// Layout characters, dropped from numbers: " ()-.".
	static std::string TELEPHONENUMBER_FORMAT_CHARACTER;

	/// Keypad characters, kept; a number holding one is a service code: "*#ABCD".
	static std::string TELEPHONENUMBER_SPECIAL_CHARACTER;

	ZelNumberingRules(const ZelNumberingRules&) = delete;

	ZelNumberingRules& operator=(const ZelNumberingRules&) = delete;

private:
	static ZelNumberingRules* instance;
	static ZelNumberingConfig* config;
	static Logger* logger;
};

} // namespace numbering

#endif // Numbering_ZelNumberingRules_INCLUDED
