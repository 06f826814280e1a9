// Command.h
// The tool's commands: each a thin call of the facade.

#ifndef Numbering_Command_INCLUDED
#define Numbering_Command_INCLUDED

#include "numbering/ZelDialRulesItem.h"
#include "numbering/ZelNumberingRules.h"

#include "ResultWriter.h"
#include "Row.h"

#include <string>
#include <vector>

namespace numbering {
namespace tool {

/// One command of the tool, chosen by name: what it prints and how it converts one number.
class Command
{
public:
	/// Throws Poco::NotFoundException for an unknown name.
	explicit Command(const std::string& name);

	/// One line per command, "name  what it does", for the help text.
	static std::string summary();

	/// Column names; a number command's first column is the number as given.
	const std::vector<std::string>& columns() const;

	/// False for the country list and the configuration check, which read no numbers.
	bool takesNumbers() const;

	/// True for the configuration check, "lint".
	bool isLint() const;

	/// True when the command needs the site (--country and the other site options).
	bool needsSite() const;

	/// The row for number at site (null when the command needs none). pattern is the display pattern of
	/// "canonical" and "explain" ("" for the country's mask). Exceptions of the unguarded facade calls are
	/// reported on standard error and give empty values.
	Row convert(
		ZelNumberingRules& rules, ZelDialRulesItem* site, const std::string& number, const std::string& pattern) const;

	/// Writes name, code and calling number of every configured country.
	void listCountries(ZelNumberingRules& rules, ResultWriter& writer) const;

private:
	enum Kind
	{
		CANONICAL,
		GSM,
		DIAL,
		PREFIX,
		CLID,
		PARSE,
		CHECK,
		COUNTRIES,
		EXPLAIN,
		LINT
	};

	struct Definition
	{
		const char* name;
		Kind kind;
		std::vector<std::string> columns;
		const char* description;
	};

	static const std::vector<Definition>& definitions();

	const Definition* m_Definition;
};

} // namespace tool
} // namespace numbering

#endif // Numbering_Command_INCLUDED
