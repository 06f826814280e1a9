// ZelNumberingConfig.cpp

#include "numbering/ZelNumberingConfig.h"

#include "support/PropertyFile.h"
#include "support/Trace.h"

#include "Poco/String.h"
#include "Poco/StringTokenizer.h"
#include "Poco/Util/PropertyFileConfiguration.h"

#include <algorithm>
#include <cstdlib>
#include <typeinfo>

namespace numbering {

namespace {

const std::size_t DIALING_RULE_FIELDS = 7;
const std::size_t MAX_MASK_KEY_LENGTH = 3;
const std::string MASK_KEY_MARK = "Mask_";
const std::string ACTIVATION_KEY_PREFIX = "cnp_";
const std::string COUNTRY_MASKS_LOADED = " country masks loaded";
const std::string NO_DIALING_RULES_FILE = "No specific dialing rules configuration file";
const char* const DIALING_RULES_NAME = "dialingrules.properties";
const char* const DIALING_RULES_DEFAULT_NAME = "dialingrules_default.properties";
const char* const COUNTRY_MASKS_NAME = "qap_cnp_mask.properties";
const char* const COUNTRY_MASKS_DEFAULT_NAME = "qap_cnp_mask_default.properties";
const char* const SPECIFIC_FORMAT_NAME = "specific_format_activation.properties";
const char* const SPECIFIC_FORMAT_DEFAULT_NAME = "specific_format_activation_default.properties";

std::string withTrailingSlash(std::string directory)
{
	if (directory.empty() || directory.back() != '/') directory += '/';
	return directory;
}

// A function-local static, so that the paths below can be initialised from it at load time.
std::string& configDirectory()
{
	static std::string directory = withTrailingSlash(NUMBERING_CONFIG_DIR);
	return directory;
}

/// Opens file, or defaultFile after writing missingText, and hands each top-level key to visit. Traces loader + "()"
/// first; logs any failure as the error of loader and returns false then.
template <typename Visit>
bool walkProperties(Logger* logger,
	const char* loader,
	const std::string& file,
	const std::string& defaultFile,
	const std::string& missingText,
	Visit visit)
{
	NUMBERING_TRACE(logger, std::string(loader) + "()");
	try
	{
		const auto properties = detail::openPropertyFile(file, defaultFile, logger, missingText, missingText);
		Poco::Util::AbstractConfiguration::Keys keys;
		properties->keys(keys);
		for (const std::string& key : keys)
			visit(*properties, key);
		return true;
	}
	catch (std::exception& exception)
	{
		logger->error("ZelNumberingConfig::" + std::string(loader) + " Exception : " + exception.what());
		return false;
	}
}

/// The mask key of "Mask_33_1" is "33": the text from just after "Mask_" to the next "_", or "" without one.
std::string maskKeyOf(const std::string& key)
{
	if (key.find(MASK_KEY_MARK) == std::string::npos) return std::string();
	// The cut starts after the mark's length even when the mark stands later in the key.
	const std::string::size_type start = MASK_KEY_MARK.size();
	const std::string::size_type end = key.find('_', start);
	return end == std::string::npos ? std::string() : key.substr(start, end - start);
}

using RuleMap = Poco::HashMap<std::string, Poco::AutoPtr<ZelCountryRuleItem>>;

ZelCountryRuleItem* findRule(RuleMap& rules, const std::string& countryCode)
{
	if (countryCode.size() != 2) return nullptr;
	RuleMap::Iterator found = rules.find(countryCode);
	return found == rules.end() ? nullptr : found->second.get();
}

/// HashMap::insert keeps an entry already present: the first key in file order wins.
template <typename Map>
void insertFirst(Map& map, const typename Map::KeyType& key, const typename Map::MappedType& value)
{
	map.insert(typename Map::ValueType(key, value));
}

template <typename Map>
std::string lookUp(const Map& map, const std::string& key)
{
	typename Map::ConstIterator found = map.find(key);
	return found == map.end() ? std::string() : found->second;
}

} // namespace

ZelNumberingConfig* ZelNumberingConfig::instance = nullptr;
Logger* ZelNumberingConfig::logger = Logger::getLogger(typeid(ZelNumberingConfig).name());

std::string ZelNumberingConfig::DIALING_RULES_FILE = configDirectory() + DIALING_RULES_NAME;
std::string ZelNumberingConfig::DIALING_RULES_DEFAULT_FILE = configDirectory() + DIALING_RULES_DEFAULT_NAME;
std::string ZelNumberingConfig::COUNTRY_MASKS_FILE = configDirectory() + COUNTRY_MASKS_NAME;
std::string ZelNumberingConfig::COUNTRY_MASKS_DEFAULT_FILE = configDirectory() + COUNTRY_MASKS_DEFAULT_NAME;
std::string ZelNumberingConfig::SPECIFIC_FORMAT_FILE = configDirectory() + SPECIFIC_FORMAT_NAME;
std::string ZelNumberingConfig::SPECIFIC_FORMAT_DEFAULT_FILE = configDirectory() + SPECIFIC_FORMAT_DEFAULT_NAME;

ZelNumberingConfig* ZelNumberingConfig::getInstance()
{
	if (instance == nullptr) instance = new ZelNumberingConfig();
	return instance;
}

void ZelNumberingConfig::resetInstance()
{
	delete instance;
	instance = nullptr;
}

void ZelNumberingConfig::setConfigDirectory(std::string directory)
{
	configDirectory() = withTrailingSlash(std::move(directory));
	DIALING_RULES_FILE = configDirectory() + DIALING_RULES_NAME;
	DIALING_RULES_DEFAULT_FILE = configDirectory() + DIALING_RULES_DEFAULT_NAME;
	COUNTRY_MASKS_FILE = configDirectory() + COUNTRY_MASKS_NAME;
	COUNTRY_MASKS_DEFAULT_FILE = configDirectory() + COUNTRY_MASKS_DEFAULT_NAME;
	SPECIFIC_FORMAT_FILE = configDirectory() + SPECIFIC_FORMAT_NAME;
	SPECIFIC_FORMAT_DEFAULT_FILE = configDirectory() + SPECIFIC_FORMAT_DEFAULT_NAME;
}

std::string ZelNumberingConfig::getConfigDirectory()
{
	return configDirectory();
}

ZelNumberingConfig::ZelNumberingConfig()
{
	NUMBERING_TRACE(logger, "ZelNumberingConfig()");
	if (loadDialingRules()) createListCountryDisplay();
	loadCountryMasks();
	loadSpecificFormatActivation();
}

ZelNumberingConfig::~ZelNumberingConfig()
{
	NUMBERING_TRACE(logger, "~ZelNumberingConfig()");
}

bool ZelNumberingConfig::loadDialingRules()
{
	return walkProperties(logger, "loadDialingRules", DIALING_RULES_FILE, DIALING_RULES_DEFAULT_FILE,
		NO_DIALING_RULES_FILE, [this](const Poco::Util::AbstractConfiguration& properties, const std::string& key) {
			// Fields: number, international prefix and rule, long-distance rule, local rule, name, principal flag.
			Poco::StringTokenizer tokens(properties.getString(key), ":");
			std::string fields[DIALING_RULE_FIELDS];
			std::copy_n(tokens.begin(), std::min(tokens.count(), DIALING_RULE_FIELDS), fields);
			Poco::AutoPtr<ZelCountryRuleItem> rule(
				new ZelCountryRuleItem(fields[0], fields[1], fields[2], fields[3], fields[4], fields[5]));
			// Several countries may share a calling code; the one flagged "P" is the one the code resolves to.
			if (fields[6] == "P") insertFirst(m_CountryNumberMap, fields[0], key);
			insertFirst(m_CountryNameMap, fields[5], key);
			insertFirst(m_CountryRuleMap, key, rule);
		});
}

bool ZelNumberingConfig::loadCountryMasks()
{
	std::size_t masks = 0;
	// The masks file has no notice of its own: a missing one is reported with the dialing-rules text.
	const bool loaded = walkProperties(logger, "loadCountryMasks", COUNTRY_MASKS_FILE, COUNTRY_MASKS_DEFAULT_FILE,
		NO_DIALING_RULES_FILE,
		[this, &masks](const Poco::Util::AbstractConfiguration& properties, const std::string& key) {
			const std::string maskKey = maskKeyOf(key);
			if (maskKey.empty() || maskKey.size() > MAX_MASK_KEY_LENGTH) return;
			const std::string pattern = properties.getString(key);
			if (pattern.empty()) return;
			insertFirst(m_CountryMaskMap, maskKey, pattern);
			++masks;
		});
	// The count drops that many leading characters instead of being printed; the line has always read so.
	if (loaded) NUMBERING_TRACE(logger, COUNTRY_MASKS_LOADED.substr(std::min(masks, COUNTRY_MASKS_LOADED.size())));
	return loaded;
}

bool ZelNumberingConfig::loadSpecificFormatActivation()
{
	return walkProperties(logger, "loadSpecificFormatActivation", SPECIFIC_FORMAT_FILE, SPECIFIC_FORMAT_DEFAULT_FILE,
		"No specific format activation configuration file",
		[this](const Poco::Util::AbstractConfiguration& properties, const std::string& key) {
			if (key.compare(0, ACTIVATION_KEY_PREFIX.size(), ACTIVATION_KEY_PREFIX) != 0) return;
			const std::string number = key.substr(ACTIVATION_KEY_PREFIX.size());
			if (number.empty() || number.size() > static_cast<std::size_t>(MAX_COUNTRY_NUMBER_LENGTH)) return;
			const std::string countryCode = getCountryCodeFromNumber(number);
			if (countryCode.empty())
			{
				NUMBERING_TRACE(logger, "Invalid property 'cnp_" + number + "'");
				return;
			}
			const std::string value = properties.getString(key);
			if (value.empty()) return;
			const std::string lowered = Poco::toLower(value);
			const bool active = lowered == "true" || lowered == "on" || lowered == "1";
			if (!active && lowered != "false" && lowered != "off" && lowered != "0")
			{
				NUMBERING_TRACE(logger, "Invalid value for property 'cnp_' : " + value);
				return;
			}
			NUMBERING_TRACE(logger,
				(active ? "Activating" : "Desactivating") + (" specific format for " + getCountryName(countryCode)));
			// The flag always goes under 0 and the first one stays: lookups by real country numbers miss it and
			// report the format as active. Hosts rely on that.
			insertFirst(m_SpecificFormatMap, 0, active);
		});
}

void ZelNumberingConfig::createListCountryDisplay()
{
	NUMBERING_TRACE(logger, "createListCountryDisplay()");
	for (const auto& entry : m_CountryNameMap)
		m_CountryList.push_back(entry.first);
	std::sort(m_CountryList.begin(), m_CountryList.end());
}

bool ZelNumberingConfig::isSpecificFormatActiveForCountry(std::string countryNumber)
{
	if (countryNumber.empty()) return true;
	const int key = static_cast<int>(std::strtol(countryNumber.c_str(), nullptr, 10));
	Poco::HashMap<int, bool>::ConstIterator found = m_SpecificFormatMap.find(key);
	return found == m_SpecificFormatMap.end() ? true : found->second;
}

std::string ZelNumberingConfig::getDefaultPattern(std::string key)
{
	return key.empty() ? std::string() : lookUp(m_CountryMaskMap, key);
}

std::vector<std::string>& ZelNumberingConfig::getCountryList()
{
	return m_CountryList;
}

std::string ZelNumberingConfig::getCountryCodeFromName(std::string name)
{
	return name.empty() ? std::string() : lookUp(m_CountryNameMap, name);
}

std::string ZelNumberingConfig::getCountryCodeFromNumber(std::string countryNumber)
{
	return countryNumber.empty() ? std::string() : lookUp(m_CountryNumberMap, countryNumber);
}

std::string ZelNumberingConfig::getCountryName(std::string countryCode)
{
	ZelCountryRuleItem* rule = findRule(m_CountryRuleMap, countryCode);
	return rule == nullptr ? std::string() : rule->getCountryName();
}

std::string ZelNumberingConfig::getCountryNumber(std::string countryCode)
{
	ZelCountryRuleItem* rule = findRule(m_CountryRuleMap, countryCode);
	return rule == nullptr ? std::string() : rule->getCountryNumber();
}

bool ZelNumberingConfig::validCountryCode(std::string countryCode)
{
	return findRule(m_CountryRuleMap, countryCode) != nullptr;
}

ZelCountryRuleItem* ZelNumberingConfig::getCountryRule(std::string countryCode)
{
	return findRule(m_CountryRuleMap, countryCode);
}

std::string ZelNumberingConfig::extractCountryNumber(std::string number)
{
	// One character more than the longest country number is tried; the shortest known prefix still wins.
	const std::size_t longest = std::min<std::size_t>(number.size(), MAX_COUNTRY_NUMBER_LENGTH + 1);
	for (std::size_t length = 1; length <= longest; ++length)
	{
		std::string prefix = number.substr(0, length);
		if (m_CountryNumberMap.find(prefix) != m_CountryNumberMap.end()) return prefix;
	}
	return std::string();
}

} // namespace numbering
