// LintReport.h
// The findings of "numbering lint", in the order of the files and their lines.

#ifndef Numbering_LintReport_INCLUDED
#define Numbering_LintReport_INCLUDED

#include "ResultWriter.h"

#include <string>
#include <vector>

namespace numbering {
namespace tool {

/// Collects findings about configuration files and writes them as rows of file, line, level and text. Line 0
/// stands for the file as a whole.
class LintReport
{
public:
	/// What the library will do with what a finding points at; the level follows from it (see isError).
	enum Effect
	{
		SKIPPED,    ///< the loader skips the line or never reaches it
		MISREAD,    ///< the line is read otherwise than it is written
		UNUSED,     ///< the entry is read but nothing ever reaches it
		REFUSED,    ///< the area-code tree refuses the code
		MISSING,    ///< a file the library needs is not there
		ROUND_TRIP, ///< a number of the site's country comes back changed from a dialled round trip
		SHADOWED,   ///< a file the library does not read because another one comes first
		STYLE       ///< read as meant, but written in a way that invites mistakes
	};

	/// The output columns: "file", "line", "level" and "text".
	static const std::vector<std::string>& columns();

	/// True for the effects where the library does something the administrator did not mean.
	static bool isError(Effect effect);

	/// text in single quotes, as findings quote what a file holds.
	static std::string quoted(const std::string& text);

	/// Files are written in the order of their first mention here; call it in the order the library reads them.
	void addFile(const std::string& file);

	void add(const std::string& file, int line, Effect effect, const std::string& text);

	bool hasErrors() const;

	/// Writes every finding: files in the order of addFile (unknown files last), lines ascending, and findings
	/// of one line in the order they were added.
	void write(ResultWriter& writer) const;

private:
	struct Finding
	{
		std::size_t fileRank;
		std::string file;
		int line;
		Effect effect;
		std::string text;
	};

	std::size_t rankOf(const std::string& file) const;

	std::vector<std::string> m_Files;
	std::vector<Finding> m_Findings;
};

} // namespace tool
} // namespace numbering

#endif // Numbering_LintReport_INCLUDED
