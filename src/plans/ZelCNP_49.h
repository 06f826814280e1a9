// ZelCNP_49.h
// German numbering plan: splits national numbers with the area codes of r7731cnp_49.properties.

#ifndef Numbering_ZelCNP_49_INCLUDED
#define Numbering_ZelCNP_49_INCLUDED

#include "numbering/Logger.h"
#include "numbering/ZelDialRulesItem.h"

#include "plans/ZelAreaCodeTablePlan.h"

#include <string>

namespace numbering {

/// Germany (calling code 49). A missing table leaves every national number with the site's area code.
class ZelCNP_49: public ZelAreaCodeTablePlan
{
public:
	ZelCNP_49();

	~ZelCNP_49() override;

	/// The canonical number of a national number ("0301234567" gives "+49 (30) 1234567"), of one behind the
	/// site's external prefix, or, with translation on, of a local number behind the external prefix or of
	/// any number not carrying it, which takes the site's area code. Anything else, and any number shorter
	/// than 3, is returned unchanged. Throws Poco::NullPointerException when the plan has no tree.
	std::string qap_Country_MakeCanonicalNumber(std::string number, ZelDialRulesItem* rules) override;

	/// Self test: prints "Dialing rules : " and four labelled conversions to standard output. Returns 0; args
	/// is ignored.
	static int main(std::string* args);

private:
	/// The canonical number of a national number ("0" + area code + subscriber), or "" when it is not one.
	std::string makeNational(const std::string& working, ZelDialRulesItem* rules);

	/// The canonical number of a local number with the site's area code, or fallback when translation is off
	/// or the site has no area code.
	std::string makeLocal(const std::string& working, ZelDialRulesItem* rules, const std::string& fallback) const;

	static Logger* logger;
};

} // namespace numbering

#endif // Numbering_ZelCNP_49_INCLUDED
