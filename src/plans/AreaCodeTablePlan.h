// AreaCodeTablePlan.h
// Shared part of the plans that split national numbers with a table of area codes read from a file.

#ifndef Numbering_AreaCodeTablePlan_INCLUDED
#define Numbering_AreaCodeTablePlan_INCLUDED

#include "numbering/Logger.h"

#include "plans/ZelCNP.h"
#include "trees/ZelAreaCodeTree.h"

#include "Poco/AutoPtr.h"

namespace Poco {
namespace Util {
class AbstractConfiguration;
} // namespace Util
} // namespace Poco

namespace numbering {

/// A plan that knows its country's area codes. Its constructor reads "r7731cnp_<calling code>.properties" from
/// the configuration directory, or the "_default" twin when that cannot be opened: "Translate" ("1" keeps
/// local-number translation on, any other value turns it off; absent, it stays on) and the area codes under
/// "AC_0000", "AC_0001", ... up to the first missing key, digits only. The constructor never throws.
class AreaCodeTablePlan: public ZelCNP
{
protected:
	/// Reads the table; traces and info lines go to logger under className ("ZelCNP_49"). noCountryFileText is
	/// written at info level when the country file cannot be opened (nothing when it is ""), noDefaultFileText
	/// when the default file cannot be opened either. Any other failure is written at info level as
	/// className + " : " + what(), and the plan keeps what it had read.
	AreaCodeTablePlan(Logger* logger,
		const std::string& callingCode,
		const std::string& className,
		const std::string& noCountryFileText,
		const std::string& noDefaultFileText);

	/// Takes the longest known area code off the front of rest and returns it; when rest begins with no known
	/// code, rest stays whole and the site's own area code (rules->getAreaCode()) is returned. Traces which case
	/// applied. Throws Poco::NullPointerException when the plan has no tree.
	std::string takeAreaCode(std::string& rest, ZelDialRulesItem* rules);

	/// The longest known area code at the front of digits, "" when there is none; traces nothing. Throws
	/// Poco::NullPointerException when the plan has no tree.
	std::string findAreaCode(const std::string& digits);

	/// True unless the file's "Translate" is something other than "1".
	bool translates() const;

	/// Length of the longest area code read.
	std::string::size_type longestAreaCode() const;

	/// The subclass's logger, as given to the constructor.
	Logger* planLogger() const;

private:
	void readTable(const Poco::Util::AbstractConfiguration& table);

	bool m_Translate;
	int m_MaxAreaCodeLength;
	/// Number of area codes read, refused ones included.
	int m_AreaCodeCount;
	Poco::AutoPtr<ZelAreaCodeTree> m_AreaCodeTree;

	/// The subclass's logger.
	Logger* const m_Logger;
};

} // namespace numbering

#endif // Numbering_AreaCodeTablePlan_INCLUDED
