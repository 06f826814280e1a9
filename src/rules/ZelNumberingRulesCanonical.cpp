// ZelNumberingRulesCanonical.cpp

#include "numbering/ZelNumberingRules.h"

#include "dialable/ZelDialable.h"
#include "plans/ZelCNPManager.h"
#include "support/CanonicalNumber.h"
#include "support/Guards.h"
#include "support/Text.h"
#include "support/Trace.h"

#include "Poco/String.h"

#include <algorithm>
#include <optional>
#include <stdexcept>

namespace numbering {

namespace {

/// One makeCanonicalNumber call after its argument checks: classifies the number, brings it into the national
/// form of its country and hands it to that country's plan. Owns the temporary site record made for a
/// foreign country, so that it goes on every way out.
class CanonicalConversion
{
public:
	CanonicalConversion(ZelNumberingRules& rules, ZelNumberingConfig* config, Logger* logger, ZelDialRulesItem* item):
		m_Rules(rules),
		m_Config(config),
		m_Logger(logger),
		m_Item(item),
		m_WorkItem(item)
	{
	}

	/// The site record in use: the caller's, or the temporary one of the destination country.
	ZelDialRulesItem* workItem() const
	{
		return m_WorkItem;
	}

	/// The canonical number of number (trimmed, without external prefix), laid out by pattern; internal numbers
	/// and numbers of unknown countries come back without a plan's help, service codes as collected.
	std::string run(const std::string& number, const std::string& pattern)
	{
		m_Validated = m_Rules.validNumber(number);
		// The area is read with the country, from the one reading of a "+" number; its look-up is traced here.
		NUMBERING_TRACE(m_Logger, "extractAreaCodeOrNatPrefix('" + m_Validated + "')");
		if (m_Validated.empty()) throw std::invalid_argument("'strPhoneNumber' parameter can not be null");
		if (detail::isCanonical(m_Validated))
			classifyCanonical();
		else if (!classifyDialled(number))
			return std::move(m_Working);
		if (m_CountryCode.empty())
			m_Working = m_Validated;
		else
			convert();
		if (detail::isCanonical(m_Working)) m_Working = m_Rules.formatCanonicalNumber(std::move(m_Working), pattern);
		// The conversion is used once: its result is handed over, not copied.
		return std::move(m_Working);
	}

private:
	void useTemporaryItem(const std::string& countryCode)
	{
		m_Temporary.emplace(countryCode, "", 0, "", 0, "");
		m_WorkItem = &*m_Temporary;
	}

	/// A "+" number: its country's long-distance form, or nothing when the country number is unknown.
	void classifyCanonical()
	{
		// validNumber put the area run between the parentheses, so the runs give the area the brackets hold.
		const detail::CanonicalNumber runs = detail::CanonicalNumber::byRuns(m_Validated);
		NUMBERING_TRACE(m_Logger, "extractCountryNumber('" + m_Validated + "')");
		std::string countryNumber = runs.separatedCountry();
		const bool fromLayout = !countryNumber.empty();
		if (!fromLayout) countryNumber = m_Config->extractCountryNumber(m_Validated.substr(1));
		m_CountryCode = m_Config->getCountryCodeFromNumber(countryNumber);
		if (m_CountryCode.empty() && fromLayout)
		{
			// Digits written without a separator, as in "+3312 34", run on into the national part.
			countryNumber = m_Config->extractCountryNumber(countryNumber);
			m_CountryCode = m_Config->getCountryCodeFromNumber(countryNumber);
		}
		if (m_CountryCode.empty())
		{
			NUMBERING_TRACE(m_Logger, "No country code found for country number '" + countryNumber + "'");
			return;
		}
		if (runs.hasClosedArea()) m_AreaOrNatPrefix = runs.area();
		std::string digits = detail::digitsOf(m_Validated, countryNumber.size() + 1, m_Validated.size());
		useTemporaryItem(m_CountryCode);
		ZelCountryRuleItem* rule = detail::requireCountryRule(m_Config, m_CountryCode);
		ZelDialable* dialable = detail::requireDialable(countryNumber);
		// The collected digits carry the whole national number, so no area part is handed over.
		std::string area;
		m_Working = dialable->makeLongDistDialableNumber(area, digits, rule, m_WorkItem);
		m_NationalKnown = true;
	}

	/// A dialled number: false for a service code, whose digits and keypad characters are then the result.
	bool classifyDialled(const std::string& number)
	{
		if (collectDialled()) return false;
		m_CountryCode = m_Item->getCountryId();
		ZelCountryRuleItem* rule = detail::requireCountryRule(m_Config, m_CountryCode);
		const std::string intl = rule->getInternatPfx();
		if (!m_Rules.isPrefixNeeded(m_Item, number)) return true;
		if (Poco::startsWith(number, intl))
			classifyInternational(number, rule, intl);
		else
			classifyNational(number, rule);
		return true;
	}

	/// Collects the digits and keypad characters before any "|" into the working number, dropping layout
	/// characters; true when a keypad character makes it a service code.
	bool collectDialled()
	{
		const std::string::size_type end = std::min(m_Validated.find('|'), m_Validated.size());
		m_Working.reserve(end);
		bool serviceCode = false;
		for (std::string::size_type i = 0; i < end; ++i)
		{
			const char c = m_Validated[i];
			if (detail::isDigit(c))
			{
				m_Working += c;
			}
			else if (detail::isOneOf(c, ZelNumberingRules::TELEPHONENUMBER_SPECIAL_CHARACTER))
			{
				m_Working += c;
				serviceCode = true;
			}
			else if (!detail::isOneOf(c, ZelNumberingRules::TELEPHONENUMBER_FORMAT_CHARACTER))
			{
				NUMBERING_TRACE(m_Logger, "MakeCanonical : wrong character in number : " + m_Validated);
				throw std::invalid_argument("'strPhoneNumber' parameter is not a phone number");
			}
		}
		return serviceCode;
	}

	void classifyInternational(const std::string& number, ZelCountryRuleItem* rule, const std::string& intl)
	{
		const std::string rest = m_Working.substr(intl.size());
		const std::string op = detail::requireDialable(rule->getCountryNumber())->extractOperatorPrefix(rest);
		const std::string countryNumber = m_Config->extractCountryNumber(rest.substr(op.size()));
		const std::string foreignCode = m_Config->getCountryCodeFromNumber(countryNumber);
		if (foreignCode.empty())
		{
			NUMBERING_TRACE(m_Logger, "International number detected but no country code was found '" + number + "'");
			return;
		}
		NUMBERING_TRACE(
			m_Logger, "International number detected : '" + m_Working + "' with CountryCode '" + foreignCode + "'");
		const std::string ld = detail::requireCountryRule(m_Config, foreignCode)->getLongDistPrefix();
		const std::string subscriber = rest.substr(op.size() + countryNumber.size());
		// Calling one's own country from abroad is a national call, and the carrier chosen for it still applies.
		m_Working = foreignCode == m_CountryCode ? ld + op + subscriber : ld + subscriber;
		useTemporaryItem(foreignCode);
		m_CountryCode = foreignCode;
		m_NationalKnown = true;
	}

	void classifyNational(const std::string& number, ZelCountryRuleItem* rule)
	{
		const std::string ld = rule->getLongDistPrefix();
		if (ld.empty())
		{
			const std::string localRule = rule->getLocalRule();
			const std::string longDistRule = rule->getLongDistRule();
			m_NationalKnown = (longDistRule.empty() && localRule == "G") || longDistRule == localRule;
			if (m_NationalKnown)
			{
				NUMBERING_TRACE(
					m_Logger, "There is no difference between local and national phone number format'" + number + "'");
			}
		}
		else
		{
			m_NationalKnown = Poco::startsWith(number, ld);
			if (m_NationalKnown) NUMBERING_TRACE(m_Logger, "National number detected '" + number + "'");
		}
	}

	/// Internal numbers stay as they are, unless they carry the external prefix or came in "+" form.
	bool isToConvert()
	{
		if (!m_WorkItem->isLocalNumber(m_Working) && !m_WorkItem->isExceptionNumber(m_Working)) return true;
		return Poco::startsWith(m_Working, m_WorkItem->getExtPrefix()) || detail::isCanonical(m_Validated);
	}

	void convert()
	{
		ZelCNP* cnp = ZelCNPManager::getInstance()->getCNP(m_CountryCode);
		if (!isToConvert())
			NUMBERING_TRACE(m_Logger, "Nothing to do for" + m_Working);
		else if (cnp == nullptr)
			convertWithoutPlan();
		else
			convertWithPlan(cnp);
	}

	void convertWithoutPlan()
	{
		NUMBERING_TRACE(m_Logger, "No special format defined for country " + m_CountryCode);
		if (detail::isCanonical(m_Validated))
		{
			m_Working = m_Rules.generateDefaultCanonicalNumber(m_Working, m_CountryCode, m_AreaOrNatPrefix);
		}
		else if (!m_NationalKnown)
		{
			NUMBERING_TRACE(m_Logger, "Can't translate to a canonical phone number : we don't known if '" + m_Working +
										  "' is a local or national phone number");
		}
		else
		{
			m_Working = m_Rules.generateDefaultCanonicalNumber(m_Working, m_CountryCode, "");
		}
	}

	void convertWithPlan(ZelCNP* cnp)
	{
		std::string cleaned = m_Rules.checkPhoneNumber(m_Working);
		if (cleaned.empty())
		{
			// The label says "Altered" although the number is kept as it is; host log filters look for it.
			NUMBERING_TRACE(m_Logger, "Altered Source Number : '" + m_Working + "'");
			return;
		}
		m_Working = std::move(cleaned);
		if (detail::isMarked(m_Working)) return;
		NUMBERING_TRACE(m_Logger, "Source number to be altered : '" + m_Working + "'");
		m_Working = cnp->qap_Country_MakeCanonicalNumber(std::move(m_Working), m_WorkItem);
	}

	ZelNumberingRules& m_Rules;
	ZelNumberingConfig* m_Config;
	Logger* m_Logger;
	ZelDialRulesItem* m_Item;
	ZelDialRulesItem* m_WorkItem;
	std::optional<ZelDialRulesItem> m_Temporary;
	std::string m_Validated;
	std::string m_AreaOrNatPrefix;
	std::string m_Working;
	std::string m_CountryCode;
	bool m_NationalKnown = false;
};

} // namespace

std::string ZelNumberingRules::makeCanonicalNumber(ZelDialRulesItem* item, std::string number, std::string pattern)
{
	return makeCanonicalNumber(item, std::move(number), std::move(pattern), false);
}

std::string ZelNumberingRules::makeCanonicalNumber(
	ZelDialRulesItem* item, std::string number, std::string pattern, bool withExtPrefix)
{
	CanonicalConversion conversion(*this, config, logger, item);
	try
	{
		detail::checkArguments(item, number);
		if (detail::isMarked(number)) return number;
		NUMBERING_TRACE(logger, "MakeCanonicalNumber with : " + number);
		detail::trimNumber(number);
		if (withExtPrefix)
		{
			// A site without external prefix gives nothing here, even for numbers that would need none.
			const std::string extPrefix = item->getExtPrefix();
			if (extPrefix.empty()) return "";
			if (Poco::startsWith(number, extPrefix)) number.erase(0, extPrefix.size());
		}
		return conversion.run(number, pattern);
	}
	catch (...)
	{
		logger->error(
			detail::errorLine("makeCanonicalNumber", " - PhoneNumber: '" + number + "', Pattern: '" + pattern + "'" +
														 "\n  DialRules: " + detail::describe(conversion.workItem())));
	}
	return "";
}

} // namespace numbering
