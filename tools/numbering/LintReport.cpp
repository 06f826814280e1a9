// LintReport.cpp

#include "LintReport.h"

#include <algorithm>

namespace numbering {
namespace tool {

const std::vector<std::string>& LintReport::columns()
{
	static const std::vector<std::string> all = {"file", "line", "level", "text"};
	return all;
}

bool LintReport::isError(Effect effect)
{
	// An error is anything that makes the library act otherwise than the administrator wrote: a line skipped or
	// misread, an entry nothing reaches, a refused code, a missing file, a number that does not survive dialling.
	// Warnings tell of files not read because the site's own comes first, and of style.
	return effect != SHADOWED && effect != STYLE;
}

std::string LintReport::quoted(const std::string& text)
{
	return "'" + text + "'";
}

void LintReport::addFile(const std::string& file)
{
	if (std::find(m_Files.begin(), m_Files.end(), file) == m_Files.end()) m_Files.push_back(file);
}

void LintReport::add(const std::string& file, int line, Effect effect, const std::string& text)
{
	m_Findings.push_back({rankOf(file), file, line, effect, text});
}

bool LintReport::hasErrors() const
{
	return std::any_of(
		m_Findings.begin(), m_Findings.end(), [](const Finding& finding) { return isError(finding.effect); });
}

void LintReport::write(ResultWriter& writer) const
{
	std::vector<Finding> sorted = m_Findings;
	std::stable_sort(sorted.begin(), sorted.end(), [](const Finding& a, const Finding& b) {
		return a.fileRank != b.fileRank ? a.fileRank < b.fileRank : a.line < b.line;
	});
	for (const Finding& finding : sorted)
		writer.write({{finding.file, std::to_string(finding.line), isError(finding.effect) ? "error" : "warning",
			finding.text}});
	writer.finish();
}

std::size_t LintReport::rankOf(const std::string& file) const
{
	return std::find(m_Files.begin(), m_Files.end(), file) - m_Files.begin();
}

} // namespace tool
} // namespace numbering
