// ZelCNP_49.h
// German numbering plan: splits national numbers with the area codes of r7731cnp_49.properties.

#ifndef Numbering_ZelCNP_49_INCLUDED
#define Numbering_ZelCNP_49_INCLUDED

#include "plans/TrunkPrefixPlan.h"

namespace numbering {

/// Germany (calling code 49), an open plan: "0301234567" gives "+49 (30) 1234567". It reads more than the other
/// trunk-prefix plans: with translation on, a number not read as national is local whatever its first digit
/// and length, and a number that does not follow the external prefix is local whole; a code the table does not
/// know takes the site's area code, so a missing table leaves every national number with it. A number no rule
/// reads comes back unchanged.
class ZelCNP_49: public TrunkPrefixPlan
{
public:
	ZelCNP_49();

	/// Self test, not called by the library: prints "Dialing rules : " and four labelled conversions to standard
	/// output. Returns 0; args is ignored.
	static int main(std::string* args);

protected:
	/// The site's area code stands for a code the table does not know.
	bool readUnknownCode(const std::string& digits, const std::string& siteArea, std::string& result) override;

	/// Any number may be local.
	bool isLocal(const std::string& siteArea, const std::string& candidate) override;

	/// An empty external prefix stands in front of every number of 3 to 16 characters.
	bool isBehindExtPrefix(const std::string& number, const std::string& ext) override;

	/// Never: a number no rule reads keeps its form.
	bool keepCountry(const std::string& number, const std::string& stripped, std::string& result) override;

private:
	static Logger* logger;
};

} // namespace numbering

#endif // Numbering_ZelCNP_49_INCLUDED
