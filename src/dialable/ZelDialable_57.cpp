// ZelDialable_57.cpp

#include "dialable/ZelDialable_57.h"

#include "config/ZelPropertyFile.h"

#include "Poco/Exception.h"
#include "Poco/NumberFormatter.h"
#include "Poco/Util/PropertyFileConfiguration.h"

#include <algorithm>
#include <cctype>
#include <typeinfo>

namespace numbering {
namespace {

const std::string PLAN_FILE = "r7731cnp_57.properties";
const std::string PLAN_DEFAULT_FILE = "r7731cnp_57_default.properties";
const std::string OPERATOR_KEY = "OP_";
const int OPERATOR_KEY_WIDTH = 4;
const int LAST_OPERATOR_INDEX = 9998;

std::string digitsOf(const std::string& value)
{
	std::string digits;
	std::copy_if(
		value.begin(), value.end(), std::back_inserter(digits), [](unsigned char c) { return std::isdigit(c) != 0; });
	return digits;
}

bool hasRuleLetter(const std::string& rule, char letter)
{
	return rule.find(letter) != std::string::npos;
}

} // namespace

const std::string ZelDialable_57::MOBILE_PREFIX = "3";
const std::string ZelDialable_57::OP_DEFAULT_KEY = "OP_DEFAULT";
const std::string ZelDialable_57::DEFAULT_OP_PREFIX = "9";

Logger* ZelDialable_57::logger = Logger::getLogger(typeid(ZelDialable_57).name());

ZelDialable_57::ZelDialable_57():
	m_OperatorCode(DEFAULT_OP_PREFIX),
	m_Config(nullptr)
{
	if (Logger::m_Traces) logger->debug("ZelDialable_57()");
	m_OperatorTree = new ZelAreaCodeTree();
	m_Config = ZelNumberingConfig::getInstance();
	loadOperators();
}

void ZelDialable_57::loadOperators()
{
	// The directory is read now rather than at load time, since a host may choose it after start-up.
	const std::string directory = ZelNumberingConfig::getConfigDirectory();
	try
	{
		Poco::AutoPtr<Poco::Util::PropertyFileConfiguration> plan;
		try
		{
			plan = ZelPropertyFile::open(directory + PLAN_FILE);
		}
		catch (const Poco::FileNotFoundException&)
		{
			logger->info("No specific configuration file for Colombia");
			plan = ZelPropertyFile::open(directory + PLAN_DEFAULT_FILE);
		}
		catch (const Poco::OpenFileException&)
		{
			logger->info("No specific dialing rules configuration file");
			plan = ZelPropertyFile::open(directory + PLAN_DEFAULT_FILE);
		}
		m_OperatorCode = plan->getString(OP_DEFAULT_KEY, m_OperatorCode);
		// The first missing key throws and ends the list, so a gap hides every prefix after it.
		for (int i = 0; i <= LAST_OPERATOR_INDEX; ++i)
		{
			m_OperatorTree->insert(
				digitsOf(plan->getString(OPERATOR_KEY + Poco::NumberFormatter::format0(i, OPERATOR_KEY_WIDTH))));
		}
	}
	catch (const std::exception& e)
	{
		if (Logger::m_Traces) logger->debug("ZelDialable_57 : " + std::string(e.what()));
	}
}

std::string ZelDialable_57::extractOperatorPrefix(std::string number)
{
	if (m_OperatorTree.isNull()) throw Poco::NullPointerException();
	std::string found = m_OperatorTree->extractAreaCode(number);
	if (found.empty()) return found;
	if (Logger::m_Traces)
	{
		if (found == number)
			logger->debug("'" + number + "' is an Colombian operator prefix");
		else
			logger->debug("'" + number + "' isn't an Colombian operator prefix, but begins with '" + found +
						  "' which is an Colombian operator prefix");
	}
	return found;
}

std::string ZelDialable_57::makeLongDistDialableNumber(
	std::string& areaNatPfx, std::string& dest, ZelCountryRuleItem* rule, ZelDialRulesItem*)
{
	std::string result;
	result.reserve(ZelNumberingConfig::MAX_PHONE_NUMBER_LENGTH);
	result += areaNatPfx;
	result += dest;
	const bool mobile = result.at(0) == MOBILE_PREFIX[0];
	result.insert(0, mobile ? MOBILE_PREFIX : m_OperatorCode);
	result.insert(0, rule->getLongDistPrefix());
	return result;
}

std::string ZelDialable_57::makeInternationalDialableNumber(
	std::string& countryNumber, std::string& areaNatPfx, std::string& dest, ZelCountryRuleItem* rule)
{
	std::string result;
	result.reserve(ZelNumberingConfig::MAX_PHONE_NUMBER_LENGTH);
	result += rule->getInternatPfx();
	result += m_OperatorCode;
	const std::string internatRule = rule->getInternatRule();
	// Colombian exchanges take the subscriber number here where other countries take the country number; both
	// it and the one appended last are dialled.
	if (hasRuleLetter(internatRule, 'E')) result += dest;
	if (hasRuleLetter(internatRule, 'F'))
	{
		const std::string code = m_Config->getCountryCodeFromNumber(countryNumber);
		ZelCountryRuleItem* destination = code.empty() ? nullptr : m_Config->getCountryRule(code);
		if (destination)
		{
			const std::string trunkPrefix = destination->getLongDistPrefix();
			if (!trunkPrefix.empty() && trunkPrefix == areaNatPfx) areaNatPfx.clear();
		}
		result += areaNatPfx;
	}
	result += dest;
	return result;
}

} // namespace numbering
