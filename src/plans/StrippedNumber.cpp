// StrippedNumber.cpp

#include "plans/StrippedNumber.h"

#include <utility>

namespace numbering {

StrippedNumber::StrippedNumber(std::string areaCode, std::string number, bool mobile):
	m_AreaCode(std::move(areaCode)),
	m_Number(std::move(number)),
	m_Mobile(mobile)
{
}

std::string StrippedNumber::getAreaCode()
{
	return m_AreaCode;
}

std::string StrippedNumber::getNumber()
{
	return m_Number;
}

bool StrippedNumber::isMobile()
{
	return m_Mobile;
}

std::string StrippedNumber::ToString()
{
	return "areaCode : '" + m_AreaCode + "', number : '" + m_Number + "', mobile : " + (m_Mobile ? "true" : "false");
}

} // namespace numbering
