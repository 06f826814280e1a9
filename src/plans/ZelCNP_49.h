// ZelCNP_49.h
// German numbering plan: splits national numbers with the area codes of r7731cnp_49.properties.

#ifndef Numbering_ZelCNP_49_INCLUDED
#define Numbering_ZelCNP_49_INCLUDED

#include "plans/TrunkPrefixPlan.h"

namespace numbering {

/// Germany (calling code 49), an open plan: "0301234567" gives "+49 (30) 1234567". Besides the trunk-prefix
/// plans' rules, with translation on, every number that is not read as national is local, whatever it begins
/// with; a number without the external prefix is read as local whole. A missing table leaves every national
/// number with the site's area code, and a number no rule reads is returned unchanged.
class ZelCNP_49: public TrunkPrefixPlan
{
public:
	ZelCNP_49();

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
