// SiteOptions.cpp

#include "SiteOptions.h"

namespace numbering {
namespace tool {

void SiteOptions::setCountry(const std::string& country)
{
	m_Country = country;
}

void SiteOptions::setExtPrefix(const std::string& prefix)
{
	m_ExtPrefix = prefix;
}

void SiteOptions::setLocalLength(int length)
{
	m_LocalLength = length;
}

void SiteOptions::setAreaCodes(const std::string& areaCodes)
{
	m_AreaCodes = areaCodes;
}

void SiteOptions::setExceptLength(int length)
{
	m_ExceptLength = length;
}

void SiteOptions::setExceptBegin(const std::string& begin)
{
	m_ExceptBegin = begin;
}

bool SiteOptions::hasCountry() const
{
	return !m_Country.empty();
}

std::unique_ptr<ZelDialRulesItem> SiteOptions::makeSite() const
{
	return std::make_unique<ZelDialRulesItem>(
		m_Country, m_ExtPrefix, m_LocalLength, m_AreaCodes, m_ExceptLength, m_ExceptBegin);
}

} // namespace tool
} // namespace numbering
