// ZelDialRulesItem.h
// Description of the site a number is dialled from.

#ifndef Numbering_ZelDialRulesItem_INCLUDED
#define Numbering_ZelDialRulesItem_INCLUDED

#include "numbering/Logger.h"
#include "numbering/NumberingApi.h"

#include <string>
#include <vector>

namespace numbering {

/// The site: its country (ISO 3166 alpha-2 code known to the configuration), the exchange's external prefix,
/// the length below which a number is local, its area codes and one class of exception numbers. The caller
/// owns it and passes it by pointer to every conversion.
class Numbering_API ZelDialRulesItem
{
public:
	/// Country "FR" (not validated), everything else empty or 0.
	ZelDialRulesItem();

	/// Validates the country as setCountryId does (and throws the same exceptions); negative lengths become 0.
	ZelDialRulesItem(std::string countryId,
		std::string extPrefix,
		int localNbLength,
		std::string areaCode,
		int exceptNbLength,
		std::string exceptNbBegin);

	// Hosts compiled against this header depend on the order of the virtual functions below.
	virtual ~ZelDialRulesItem();

	/// Throws std::invalid_argument unless the code has two characters, ZelUnsupportedCountryException when the
	/// configuration cannot be loaded or does not know the code; the previous country then stays.
	virtual void setCountryId(std::string countryId);

	virtual std::string getCountryId();

	virtual void setExtPrefix(std::string extPrefix);

	virtual std::string getExtPrefix();

	/// Stores the length, or 0 when it is negative.
	virtual void setLocalNbLength(int length);

	virtual int getLocalNbLength();

	/// " 1, 2,,3 " gives the area code "1" and the list "1", "2", "3"; "" clears the area code only.
	virtual void setAreaCode(std::string areaCodes);

	virtual std::string getAreaCode();

	/// A copy of the area-code list.
	virtual std::vector<std::string> getAreaCodesList();

	/// Stores the length if the length stored so far is not negative, else 0 (the old value is tested).
	virtual void setExceptNbLength(int length);

	virtual int getExceptNbLength();

	virtual void setExceptNbBegin(std::string begin);

	virtual std::string getExceptNbBegin();

	/// True when the number is shorter than the local number length.
	virtual bool isLocalNumber(std::string number);

	/// True when the number begins with the exception beginning (the exception length never changes the outcome).
	virtual bool isExceptionNumber(std::string number);

	/// "CountryCode : 'FR', External Prefix : '0', Local length : 5, AreaCode : '1', m_areaCodesList :  '1',
	/// Except length : 0, Except begin : ''".
	virtual std::string ToString();

private:
	static Logger* logger;

	std::string m_CountryId;
	std::string m_ExtPrefix;
	int m_LocalNbLength;
	std::string m_AreaCode;
	std::vector<std::string> m_AreaCodesList;
	int m_ExceptNbLength;
	std::string m_ExceptNbBegin;
};

} // namespace numbering

#endif // Numbering_ZelDialRulesItem_INCLUDED
