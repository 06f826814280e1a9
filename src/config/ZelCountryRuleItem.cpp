// ZelCountryRuleItem.cpp

#include "numbering/ZelCountryRuleItem.h"

#include "Poco/String.h"

namespace numbering {

namespace {

// A rule names its prefix as the digits before the first "F" or, when there is none, before the first "I".
std::string prefixOfRule(const std::string& rule)
{
	std::string::size_type end = rule.find('F');
	if (end == std::string::npos) end = rule.find('I');
	return end == std::string::npos ? std::string() : rule.substr(0, end);
}

} // namespace

int ZelCountryRuleItem::_count = 0;

ZelCountryRuleItem::ZelCountryRuleItem(std::string countryNumber,
	std::string internatPfx,
	std::string internatRule,
	std::string longDistRule,
	std::string localRule,
	std::string countryName):
	m_CountryNumber(std::move(countryNumber)),
	m_InternatPfx(std::move(internatPfx)),
	m_InternatRule(std::move(internatRule)),
	m_LongDistRule(Poco::trim(longDistRule)),
	m_LocalRule(std::move(localRule)),
	m_LongDistPrefix(prefixOfRule(m_LongDistRule)),
	m_LocalDistPrefix(prefixOfRule(m_LocalRule)),
	m_CountryName(std::move(countryName)),
	m_RefCount(1)
{
	++_count;
}

ZelCountryRuleItem::~ZelCountryRuleItem()
{
	--_count;
}

std::string ZelCountryRuleItem::getCountryNumber()
{
	return m_CountryNumber;
}

std::string ZelCountryRuleItem::getInternatPfx()
{
	return m_InternatPfx;
}

std::string ZelCountryRuleItem::getInternatRule()
{
	return m_InternatRule;
}

std::string ZelCountryRuleItem::getLongDistRule()
{
	return m_LongDistRule;
}

std::string ZelCountryRuleItem::getLocalRule()
{
	return m_LocalRule;
}

std::string ZelCountryRuleItem::getLongDistPrefix()
{
	return m_LongDistPrefix;
}

std::string ZelCountryRuleItem::getLocalDistPrefix()
{
	return m_LocalDistPrefix;
}

std::string ZelCountryRuleItem::getCountryName()
{
	return m_CountryName;
}

void ZelCountryRuleItem::duplicate()
{
	++m_RefCount;
}

void ZelCountryRuleItem::release()
{
	if (--m_RefCount == 0) delete this;
}

} // namespace numbering
