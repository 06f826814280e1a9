// ZelNumberingConfig.h
// Process-wide singleton holding the country tables read from the configuration files.

#ifndef Numbering_ZelNumberingConfig_INCLUDED
#define Numbering_ZelNumberingConfig_INCLUDED

#include "numbering/Logger.h"
#include "numbering/NumberingApi.h"
#include "numbering/ZelCountryRuleItem.h"

#include "Poco/AutoPtr.h"
#include "Poco/HashMap.h"

#include <string>
#include <vector>

namespace numbering {

/// Reads the dialing-rules, mask and activation files once, in its constructor, each from the site file or,
/// when that is missing, its "_default" twin, and answers read-only country queries. A missing or malformed
/// file is logged and leaves its tables empty; nothing is thrown. Neither getInstance nor resetInstance is
/// thread-safe: create the instance before concurrent use.
class Numbering_API ZelNumberingConfig
{
public:
	/// The instance, created (and all files read) on the first call.
	static ZelNumberingConfig* getInstance();

	/// Deletes the instance; the next getInstance reads the files again.
	static void resetInstance();

	/// Chooses the directory all configuration files are read from ("/" is appended when missing) and rewrites
	/// the six file paths below. Takes effect at the next getInstance and the next plan or maker construction.
	static void setConfigDirectory(std::string directory);

	/// The configuration directory, ending with "/".
	static std::string getConfigDirectory();

	static std::string DIALING_RULES_FILE;
	static std::string DIALING_RULES_DEFAULT_FILE;
	static std::string COUNTRY_MASKS_FILE;
	static std::string COUNTRY_MASKS_DEFAULT_FILE;
	static std::string SPECIFIC_FORMAT_FILE;
	static std::string SPECIFIC_FORMAT_DEFAULT_FILE;

	/// Longest country number; extractCountryNumber deliberately tries one character more.
	static constexpr int MAX_COUNTRY_NUMBER_LENGTH = 3;

	/// Capacity reserved for built numbers and the scan bound of makeDialableNumber.
	static constexpr int MAX_PHONE_NUMBER_LENGTH = 30;

	ZelNumberingConfig();

	// Hosts compiled against this header depend on the order of the virtual functions below.
	virtual ~ZelNumberingConfig();

	/// True for "" and for every number that does not convert to 0: the activation flag is kept under 0.
	virtual bool isSpecificFormatActiveForCountry(std::string countryNumber);

	/// The mask file's pattern for exactly key, or "".
	virtual std::string getDefaultPattern(std::string key);

	/// The sorted country names: the stored list itself, not a copy.
	virtual std::vector<std::string>& getCountryList();

	/// Exact, case-sensitive lookup of a country name; "" if unknown.
	virtual std::string getCountryCodeFromName(std::string name);

	/// Exact lookup of a whole country number ("33" gives "FR", "331" gives ""); "" if unknown.
	virtual std::string getCountryCodeFromNumber(std::string countryNumber);

	virtual std::string getCountryName(std::string countryCode);

	virtual std::string getCountryNumber(std::string countryCode);

	/// True when code has two characters and is a key of the dialing-rules file.
	virtual bool validCountryCode(std::string countryCode);

	/// The stored record, borrowed (no reference added), or null.
	virtual ZelCountryRuleItem* getCountryRule(std::string countryCode);

	/// The shortest leading part of number that is a known country number: "331234" gives "33".
	virtual std::string extractCountryNumber(std::string number);

	bool loadDialingRules();

	bool loadCountryMasks();

	bool loadSpecificFormatActivation();

	void createListCountryDisplay();

	ZelNumberingConfig(const ZelNumberingConfig&) = delete;

	ZelNumberingConfig& operator=(const ZelNumberingConfig&) = delete;

private:
	static ZelNumberingConfig* instance;
	static Logger* logger;

	Poco::HashMap<std::string, std::string> m_CountryNumberMap;
	Poco::HashMap<std::string, std::string> m_CountryNameMap;
	Poco::HashMap<std::string, Poco::AutoPtr<ZelCountryRuleItem>> m_CountryRuleMap;
	Poco::HashMap<std::string, std::string> m_CountryMaskMap;
	std::vector<std::string> m_CountryList;
	Poco::HashMap<int, bool> m_SpecificFormatMap;
};

} // namespace numbering

#endif // Numbering_ZelNumberingConfig_INCLUDED
