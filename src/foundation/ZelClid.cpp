// ZelClid.cpp

#include "numbering/ZelClid.h"

namespace numbering {

int ZelClid::_count = 0;

ZelClid::ZelClid():
	ZelClid(std::string(), &ZelEnumOrigin::ANY)
{
}

ZelClid::ZelClid(std::string number, ZelEnumOrigin* origin):
	m_Number(std::move(number)),
	m_Origin(origin),
	m_RefCount(1)
{
	++_count;
}

ZelClid::~ZelClid() = default;

void ZelClid::setNumber(std::string number)
{
	m_Number = std::move(number);
}

void ZelClid::setOrigin(ZelEnumOrigin* origin)
{
	m_Origin = origin;
}

std::string ZelClid::getNumber()
{
	return m_Number;
}

ZelEnumOrigin* ZelClid::getOrigin()
{
	return m_Origin;
}

void ZelClid::duplicate()
{
	++m_RefCount;
}

void ZelClid::release()
{
	if (--m_RefCount == 0) delete this;
}

} // namespace numbering
