// ZelDialRulesItem.cpp

#include "numbering/ZelDialRulesItem.h"

#include "numbering/ZelNumberingConfig.h"
#include "numbering/ZelUnsupportedCountryException.h"

#include "support/Trace.h"

#include "Poco/StringTokenizer.h"

#include <sstream>
#include <stdexcept>
#include <typeinfo>

namespace numbering {

namespace {

int notNegative(int length)
{
	return length < 0 ? 0 : length;
}

std::string testTrace(const char* test, const std::string& number, bool result)
{
	return std::string(test) + "('" + number + "')=" + (result ? "true" : "false");
}

} // namespace

Logger* ZelDialRulesItem::logger = Logger::getLogger(typeid(ZelDialRulesItem).name());

ZelDialRulesItem::ZelDialRulesItem():
	m_CountryId("FR"),
	m_LocalNbLength(0),
	m_ExceptNbLength(0)
{
}

ZelDialRulesItem::ZelDialRulesItem(std::string countryId,
	std::string extPrefix,
	int localNbLength,
	std::string areaCode,
	int exceptNbLength,
	std::string exceptNbBegin):
	m_ExtPrefix(std::move(extPrefix)),
	m_LocalNbLength(notNegative(localNbLength)),
	m_ExceptNbLength(notNegative(exceptNbLength)),
	m_ExceptNbBegin(std::move(exceptNbBegin))
{
	setCountryId(std::move(countryId));
	setAreaCode(std::move(areaCode));
}

ZelDialRulesItem::~ZelDialRulesItem() = default;

void ZelDialRulesItem::setCountryId(std::string countryId)
{
	if (countryId.size() != 2)
		throw std::invalid_argument(
			"'strCountryCode' parameter can not be null and must be an Alpha-2 ISO 3166 country code");
	ZelNumberingConfig* config = ZelNumberingConfig::getInstance();
	if (config == nullptr)
		throw ZelUnsupportedCountryException(countryId, "Dialing rules configuration can not be loaded");
	if (!config->validCountryCode(countryId)) throw ZelUnsupportedCountryException(countryId);
	m_CountryId = std::move(countryId);
}

std::string ZelDialRulesItem::getCountryId()
{
	return m_CountryId;
}

void ZelDialRulesItem::setExtPrefix(std::string extPrefix)
{
	m_ExtPrefix = std::move(extPrefix);
}

std::string ZelDialRulesItem::getExtPrefix()
{
	return m_ExtPrefix;
}

void ZelDialRulesItem::setLocalNbLength(int length)
{
	m_LocalNbLength = notNegative(length);
}

int ZelDialRulesItem::getLocalNbLength()
{
	return m_LocalNbLength;
}

void ZelDialRulesItem::setAreaCode(std::string areaCodes)
{
	m_AreaCode.clear();
	// An empty text clears the site's own area code but keeps the list of further area codes.
	if (areaCodes.empty()) return;
	m_AreaCodesList.clear();
	Poco::StringTokenizer tokens(
		areaCodes, ",", Poco::StringTokenizer::TOK_TRIM | Poco::StringTokenizer::TOK_IGNORE_EMPTY);
	m_AreaCodesList.assign(tokens.begin(), tokens.end());
	if (!m_AreaCodesList.empty()) m_AreaCode = m_AreaCodesList.front();
}

std::string ZelDialRulesItem::getAreaCode()
{
	return m_AreaCode;
}

std::vector<std::string> ZelDialRulesItem::getAreaCodesList()
{
	return m_AreaCodesList;
}

void ZelDialRulesItem::setExceptNbLength(int length)
{
	// The stored length is tested, not the new one: a negative length survives one call, then becomes 0.
	m_ExceptNbLength = m_ExceptNbLength < 0 ? 0 : length;
}

int ZelDialRulesItem::getExceptNbLength()
{
	return m_ExceptNbLength;
}

void ZelDialRulesItem::setExceptNbBegin(std::string begin)
{
	m_ExceptNbBegin = std::move(begin);
}

std::string ZelDialRulesItem::getExceptNbBegin()
{
	return m_ExceptNbBegin;
}

bool ZelDialRulesItem::isLocalNumber(std::string number)
{
	const bool local = m_LocalNbLength > 0 && number.size() < static_cast<std::size_t>(m_LocalNbLength);
	NUMBERING_TRACE(logger, testTrace("isLocalNumber", number, local));
	return local;
}

bool ZelDialRulesItem::isExceptionNumber(std::string number)
{
	// Only the beginning decides: a number of the exception length that lacks it is no exception either.
	const bool exception =
		!number.empty() && !m_ExceptNbBegin.empty() && number.compare(0, m_ExceptNbBegin.size(), m_ExceptNbBegin) == 0;
	NUMBERING_TRACE(logger, testTrace("isExceptionNumber", number, exception));
	return exception;
}

std::string ZelDialRulesItem::ToString()
{
	std::ostringstream text;
	text << "CountryCode : '" << m_CountryId << "', External Prefix : '" << m_ExtPrefix
		 << "', Local length : " << m_LocalNbLength << ", AreaCode : '" << m_AreaCode << "', m_areaCodesList : ";
	for (const std::string& areaCode : m_AreaCodesList)
		text << " '" << areaCode << "'";
	text << ", Except length : " << m_ExceptNbLength << ", Except begin : '" << m_ExceptNbBegin << "'";
	return text.str();
}

} // namespace numbering
