// MaskLint.cpp

#include "MaskLint.h"

#include "Poco/Ascii.h"

#include <algorithm>

namespace numbering {
namespace tool {

namespace {

const std::string MASK_MARK = "Mask_";
const std::size_t LONGEST_MASK_KEY = 3;
/// C the country number, A the area code, a the area code unless it is only the trunk prefix, x one digit.
const std::string PATTERN_LETTERS = "CAax";

/// The mask key the loader takes from key: the text from just after where "Mask_" would begin the key up to
/// the next "_", when "Mask_" is anywhere in it; "" otherwise.
std::string maskKeyOf(const std::string& key)
{
	if (key.find(MASK_MARK) == std::string::npos) return std::string();
	const std::string::size_type end = key.find('_', MASK_MARK.size());
	return end == std::string::npos ? std::string() : key.substr(MASK_MARK.size(), end - MASK_MARK.size());
}

} // namespace

MaskLint::MaskLint(const ConfigFile& file, const DialingRulesLint* dialingRules, LintReport& report):
	m_File(file),
	m_DialingRules(dialingRules),
	m_Report(report)
{
	file.walkAsLoader(report, [this](const std::string& key) { checkMask(key); });
}

void MaskLint::checkMask(const std::string& key)
{
	const std::string maskKey = maskKeyOf(key);
	if (maskKey.empty() || maskKey.size() > LONGEST_MASK_KEY)
	{
		m_File.add(m_Report, key, LintReport::SKIPPED, "not read: mask keys are Mask_<country number>_<anything>");
		return;
	}
	const std::string pattern = m_File.valueOf(key);
	if (pattern.empty())
	{
		m_File.add(m_Report, key, LintReport::SKIPPED, "empty pattern: the line is skipped");
		return;
	}
	if (key.compare(0, MASK_MARK.size(), MASK_MARK) != 0)
		m_File.add(m_Report, key, LintReport::STYLE, "read as the mask of country number '" + maskKey + "'");
	if (m_DialingRules && !m_DialingRules->hasNumber(maskKey))
	{
		m_File.add(m_Report, key, LintReport::UNUSED,
			"no dialing-rules line has country number '" + maskKey + "': the mask is never used");
	}
	checkPattern(key, pattern);
	auto winner = m_Winners.emplace(maskKey, key).first;
	if (winner->second != key)
	{
		m_File.add(m_Report, key, LintReport::UNUSED,
			"never used: " + winner->second + " (line " + std::to_string(m_File.lineOf(winner->second)) +
				") comes first in key order and gives country number " + maskKey + " its mask");
	}
}

void MaskLint::checkPattern(const std::string& key, const std::string& pattern)
{
	if (pattern.find('C') == std::string::npos)
	{
		m_File.add(
			m_Report, key, LintReport::MISREAD, "pattern has no C: numbers laid out by it lose their country number");
	}
	auto odd = std::find_if(pattern.begin(), pattern.end(),
		[](char c) { return Poco::Ascii::isAlpha(c) && PATTERN_LETTERS.find(c) == std::string::npos; });
	if (odd != pattern.end())
	{
		m_File.add(m_Report, key, LintReport::MISREAD,
			"pattern holds '" + std::string(1, *odd) + "', which the layout copies as it stands");
	}
}

} // namespace tool
} // namespace numbering
