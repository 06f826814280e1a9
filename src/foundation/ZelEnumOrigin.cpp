// ZelEnumOrigin.cpp

#include "numbering/ZelEnumOrigin.h"

namespace numbering {

// Ids follow construction order, and only within one file is that order fixed: keep all five here, in this order.
ZelEnumOrigin ZelEnumOrigin::ANY("Any");
ZelEnumOrigin ZelEnumOrigin::INTERNATIONAL("International");
ZelEnumOrigin ZelEnumOrigin::NATIONAL("National");
ZelEnumOrigin ZelEnumOrigin::PRIVATE_1("Private");
ZelEnumOrigin ZelEnumOrigin::PUBLIC_1("Public");

ZelEnumOrigin::ZelEnumOrigin(std::string name):
	m_Name(std::move(name))
{
}

ZelEnumOrigin::~ZelEnumOrigin() = default;

std::string ZelEnumOrigin::getName() const
{
	return m_Name;
}

} // namespace numbering
