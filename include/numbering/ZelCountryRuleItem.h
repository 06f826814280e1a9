// ZelCountryRuleItem.h
// One country's dialling rules, as read from one line of the dialing-rules file.

#ifndef Numbering_ZelCountryRuleItem_INCLUDED
#define Numbering_ZelCountryRuleItem_INCLUDED

#include "numbering/NumberingApi.h"

#include <string>

namespace numbering {

/// Immutable, reference-counted record (count 1 after construction, not atomic). The long-distance and local
/// prefixes are derived from their rules: the part before the first "F", else before the first "I", else "".
class Numbering_API ZelCountryRuleItem
{
public:
	/// Arguments in the order of the fields of a dialing-rules line; the long-distance rule is trimmed.
	ZelCountryRuleItem(std::string countryNumber,
		std::string internatPfx,
		std::string internatRule,
		std::string longDistRule,
		std::string localRule,
		std::string countryName);

	// Hosts compiled against this header depend on the order of the virtual functions below.
	virtual ~ZelCountryRuleItem();

	virtual std::string getCountryNumber();

	virtual std::string getInternatPfx();

	virtual std::string getInternatRule();

	virtual std::string getLongDistRule();

	virtual std::string getLocalRule();

	virtual std::string getLongDistPrefix();

	virtual std::string getLocalDistPrefix();

	virtual std::string getCountryName();

	/// Adds one to the reference count.
	virtual void duplicate();

	/// Subtracts one and deletes the record at 0.
	virtual void release();

	/// Number of live records (diagnostics).
	static int _count;

	ZelCountryRuleItem(const ZelCountryRuleItem&) = delete;

	ZelCountryRuleItem& operator=(const ZelCountryRuleItem&) = delete;

private:
	std::string m_CountryNumber;
	std::string m_InternatPfx;
	std::string m_InternatRule;
	std::string m_LongDistRule;
	std::string m_LocalRule;
	std::string m_LongDistPrefix;
	std::string m_LocalDistPrefix;
	std::string m_CountryName;
	int m_RefCount;
};

} // namespace numbering

#endif // Numbering_ZelCountryRuleItem_INCLUDED
