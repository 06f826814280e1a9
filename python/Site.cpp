// Site.cpp

#include "Site.h"

#include <utility>

namespace numbering {
namespace python {

Site::Site(std::string country,
	std::string extPrefix,
	int localLength,
	std::string areaCodes,
	int exceptLength,
	std::string exceptBegin):
	m_Country(std::move(country)),
	m_ExtPrefix(std::move(extPrefix)),
	m_LocalLength(localLength),
	m_AreaCodes(std::move(areaCodes)),
	m_ExceptLength(exceptLength),
	m_ExceptBegin(std::move(exceptBegin)),
	m_Item(std::make_unique<ZelDialRulesItem>(
		m_Country, m_ExtPrefix, m_LocalLength, m_AreaCodes, m_ExceptLength, m_ExceptBegin))
{
}

const std::string& Site::country() const
{
	return m_Country;
}

const std::string& Site::extPrefix() const
{
	return m_ExtPrefix;
}

int Site::localLength() const
{
	return m_LocalLength;
}

const std::string& Site::areaCodes() const
{
	return m_AreaCodes;
}

int Site::exceptLength() const
{
	return m_ExceptLength;
}

const std::string& Site::exceptBegin() const
{
	return m_ExceptBegin;
}

ZelDialRulesItem* Site::item() const
{
	return m_Item.get();
}

} // namespace python
} // namespace numbering
