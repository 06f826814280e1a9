// CodeListLint.cpp

#include "CodeListLint.h"

#include "Poco/Ascii.h"
#include "Poco/NumberFormatter.h"

#include <algorithm>

namespace numbering {
namespace tool {

namespace {

const int LAST_INDEX = 9998;
const int INDEX_WIDTH = 4;
/// Characters people write inside codes for readability; the library drops them with the rest.
const std::string LAYOUT = " -./()";

} // namespace

CodeListLint::CodeListLint(
	const ConfigFile& file, const std::string& keyPrefix, EmptyCode emptyCode, LintReport& report):
	m_File(file),
	m_KeyPrefix(keyPrefix),
	m_EmptyCode(emptyCode),
	m_Report(report)
{
	int index = 0;
	while (index <= LAST_INDEX && readEntry(index))
		++index;
}

void CodeListLint::reportUnreadKeys(const std::string& settingKey) const
{
	for (const std::string& key : m_File.keys())
	{
		if (key == settingKey || indexOf(key) >= 0) continue;
		m_File.add(m_Report, key, LintReport::SKIPPED,
			LintReport::quoted(key) + " is never read: the library reads only " + settingKey + " and " + keyOf(0) +
				" to " + keyOf(LAST_INDEX));
	}
}

const std::vector<std::pair<std::string, std::string>>& CodeListLint::storedCodes() const
{
	return m_Stored;
}

bool CodeListLint::readEntry(int index)
{
	const std::string key = keyOf(index);
	if (!m_File.properties().has(key))
	{
		reportGap(index);
		return false;
	}
	const std::string value = m_File.properties().getString(key);
	std::string code;
	std::copy_if(value.begin(), value.end(), std::back_inserter(code), Poco::Ascii::isDigit);
	if (code.empty()) return readsOnAfterEmpty(index, value);
	if (code != value)
	{
		const bool layoutOnly = std::all_of(value.begin(), value.end(),
			[](char c) { return Poco::Ascii::isDigit(c) || LAYOUT.find(c) != std::string::npos; });
		m_File.add(m_Report, key, layoutOnly ? LintReport::STYLE : LintReport::MISREAD,
			LintReport::quoted(value) + " is read as " + LintReport::quoted(code));
	}
	store(key, code);
	return true;
}

void CodeListLint::reportGap(int index) const
{
	const std::pair<int, std::string> unread = unreadAfter(index);
	if (unread.first == 0) return;
	m_File.add(m_Report, unread.second, LintReport::SKIPPED,
		keyOf(index) + " is missing, so the list ends there: this entry and those after it are never read (" +
			std::to_string(unread.first) + " in all)");
}

bool CodeListLint::readsOnAfterEmpty(int index, const std::string& value) const
{
	const std::string key = keyOf(index);
	if (m_EmptyCode == SKIPS_ENTRY)
	{
		m_File.add(
			m_Report, key, LintReport::SKIPPED, LintReport::quoted(value) + " holds no digit: the entry is skipped");
		return true;
	}
	const int unread = unreadAfter(index).first;
	m_File.add(m_Report, key, LintReport::SKIPPED,
		LintReport::quoted(value) + " holds no digit, so the list ends here" +
			(unread > 0 ? ": the entries after it are never read (" + std::to_string(unread) + " in all)" : ""));
	return false;
}

void CodeListLint::store(const std::string& key, const std::string& code)
{
	auto same = m_KeyOfCode.find(code);
	auto longer = m_KeyOfCode.lower_bound(code);
	if (same != m_KeyOfCode.end())
	{
		m_File.add(m_Report, key, LintReport::REFUSED,
			LintReport::quoted(code) + " is refused: " + same->second + " (line " +
				std::to_string(m_File.lineOf(same->second)) + ") has it already");
	}
	else if (longer != m_KeyOfCode.end() && longer->first.compare(0, code.size(), code) == 0)
	{
		m_File.add(m_Report, key, LintReport::REFUSED,
			LintReport::quoted(code) + " is refused: it begins " + LintReport::quoted(longer->first) + " of " +
				longer->second + " (line " + std::to_string(m_File.lineOf(longer->second)) +
				"), and a code that begins a stored one is never stored");
	}
	else
	{
		m_KeyOfCode.emplace(code, key);
		m_Stored.emplace_back(code, key);
	}
}

int CodeListLint::indexOf(const std::string& key) const
{
	const std::string::size_type digits = m_KeyPrefix.size();
	if (key.size() != digits + INDEX_WIDTH || key.compare(0, digits, m_KeyPrefix) != 0) return -1;
	if (!std::all_of(key.begin() + digits, key.end(), Poco::Ascii::isDigit)) return -1;
	const int index = std::stoi(key.substr(digits));
	return index <= LAST_INDEX ? index : -1;
}

std::pair<int, std::string> CodeListLint::unreadAfter(int index) const
{
	std::pair<int, std::string> unread(0, "");
	int first = LAST_INDEX + 1;
	for (const std::string& key : m_File.keys())
	{
		const int other = indexOf(key);
		if (other <= index) continue;
		++unread.first;
		if (other < first) unread.second = key;
		first = std::min(first, other);
	}
	return unread;
}

std::string CodeListLint::keyOf(int index) const
{
	return m_KeyPrefix + Poco::NumberFormatter::format0(index, INDEX_WIDTH);
}

} // namespace tool
} // namespace numbering
