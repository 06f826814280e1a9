// ZelStrippedNbr.cpp

#include "plans/ZelStrippedNbr.h"

#include <utility>

namespace numbering {

ZelStrippedNbr::ZelStrippedNbr(std::string areaCode, std::string number, bool mobile):
	m_AreaCode(std::move(areaCode)),
	m_Number(std::move(number)),
	m_Mobile(mobile)
{
}

std::string ZelStrippedNbr::getAreaCode()
{
	return m_AreaCode;
}

std::string ZelStrippedNbr::getNumber()
{
	return m_Number;
}

bool ZelStrippedNbr::isMobile()
{
	return m_Mobile;
}

std::string ZelStrippedNbr::ToString()
{
	return "areaCode : '" + m_AreaCode + "', number : '" + m_Number + "', mobile : " + (m_Mobile ? "true" : "false");
}

} // namespace numbering
