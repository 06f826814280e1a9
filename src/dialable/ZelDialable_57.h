// ZelDialable_57.h
// Colombian dialable maker: long-distance and international calls carry a carrier (operator) code.

#ifndef Numbering_ZelDialable_57_INCLUDED
#define Numbering_ZelDialable_57_INCLUDED

#include "dialable/ZelDialable.h"
#include "trees/ZelAreaCodeTree.h"

#include "Poco/AutoPtr.h"

namespace numbering {

/// Colombia (country number 57). Reads the operator code to dial (key OP_DEFAULT) and the known operator prefixes
/// (keys OP_0000, OP_0001, ... numbered without gaps) from "r7731cnp_57.properties" in the configuration directory,
/// or from "r7731cnp_57_default.properties" when the site has no file of its own. Local dialling follows the
/// generic rules.
class ZelDialable_57: public ZelDialable
{
public:
	/// Loads the operator code and prefixes. Never throws for a missing or malformed file: what could be read
	/// before the failure is kept, with the operator code DEFAULT_OP_PREFIX when none was read.
	ZelDialable_57();

	/// International prefix and operator code, then dest (rule E), the area part (rule F; dropped, also in the
	/// caller's string, when it is only the destination's trunk prefix) and dest once more. With the prefix "00",
	/// operator "9" and rule "E", country "33", dest "123456789" gives "009123456789123456789".
	std::string makeInternationalDialableNumber(
		std::string& countryNumber, std::string& areaNatPfx, std::string& dest, ZelCountryRuleItem* rule) override;

	/// Long-distance prefix, then MOBILE_PREFIX for a mobile (a number beginning with it) or the operator code,
	/// then area part and dest. With the prefix "0" and operator "9": "1" and "2345678" give "0912345678",
	/// "" and "3001234567" give "033001234567". Throws std::out_of_range when area part and dest are both empty.
	std::string makeLongDistDialableNumber(
		std::string& areaNatPfx, std::string& dest, ZelCountryRuleItem* rule, ZelDialRulesItem* site) override;

	/// The longest known operator prefix that number begins with, or "". Throws Poco::NullPointerException when
	/// the prefix table is missing.
	std::string extractOperatorPrefix(std::string number) override;

	/// First digit of Colombian mobile numbers, dialled in place of the operator code: "3".
	static const std::string MOBILE_PREFIX;

	/// Key of the operator code in the plan file: "OP_DEFAULT".
	static const std::string OP_DEFAULT_KEY;

	/// Operator code used when the plan file has none: "9".
	static const std::string DEFAULT_OP_PREFIX;

private:
	void loadOperators();

	static Logger* logger;

	std::string m_OperatorCode;
	Poco::AutoPtr<ZelAreaCodeTree> m_OperatorTree;
	ZelNumberingConfig* m_Config;
};

} // namespace numbering

#endif // Numbering_ZelDialable_57_INCLUDED
