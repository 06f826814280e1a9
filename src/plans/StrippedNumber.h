// StrippedNumber.h
// An Argentine number split into area code, subscriber number and mobile flag.

#ifndef Numbering_StrippedNumber_INCLUDED
#define Numbering_StrippedNumber_INCLUDED

#include <string>

namespace numbering {

/// What ZelCNP_54::StripNbr reads from an Argentine number; the dialable maker rebuilds the number from it.
class StrippedNumber
{
public:
	/// Stores the three values as given.
	StrippedNumber(std::string areaCode, std::string number, bool mobile);

	/// The area code, without trunk prefix and without the mobile "9".
	std::string getAreaCode();

	/// The subscriber number, without the mobile "15".
	std::string getNumber();

	/// True for a mobile number.
	bool isMobile();

	/// "areaCode : '11', number : '23456789', mobile : true".
	std::string ToString();

private:
	std::string m_AreaCode;
	std::string m_Number;
	bool m_Mobile;
};

} // namespace numbering

#endif // Numbering_StrippedNumber_INCLUDED
