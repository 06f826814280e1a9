// Conversion.h
// A conversion that a Python script asks for by name.

#ifndef Numbering_Conversion_INCLUDED
#define Numbering_Conversion_INCLUDED

#include "numbering/ZelNumberingRules.h"

#include "Site.h"

#include <string>
#include <tuple>
#include <variant>
#include <vector>

namespace numbering {
namespace python {

/// One of "canonical", "gsm", "dial", "clid", "parse" and "check", applied to numbers at a site. It builds no
/// Python object, so it runs without the GIL.
class Conversion
{
public:
	/// Nothing (a calling-line identity that cannot be made), a number, a calling-line identity (number, origin
	/// name), or a parsed number (canonical, country number, area part, extension).
	using Result = std::variant<std::monostate,
		std::string,
		std::tuple<std::string, std::string>,
		std::tuple<std::string, std::string, std::string, std::string>>;

	/// pattern lays out "canonical" ("" for the country's mask). Throws std::invalid_argument for another name.
	Conversion(const std::string& what, std::string pattern);

	/// The result for number at site. Exceptions of the library's unguarded operations ("gsm", "clid") reach
	/// the caller.
	Result operator()(ZelNumberingRules& rules, const Site& site, const std::string& number) const;

	/// The results for numbers, in their order; the first exception ends the run.
	std::vector<Result> all(ZelNumberingRules& rules, const Site& site, const std::vector<std::string>& numbers) const;

private:
	enum Kind
	{
		CANONICAL,
		GSM,
		DIAL,
		CLID,
		PARSE,
		CHECK
	};

	static Kind kindOf(const std::string& what);

	Kind m_Kind;
	std::string m_Pattern;
};

} // namespace python
} // namespace numbering

#endif // Numbering_Conversion_INCLUDED
