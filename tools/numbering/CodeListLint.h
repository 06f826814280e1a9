// CodeListLint.h
// Checks a numbered list of codes in a plan file: "AC_0000", "AC_0001", ... or "OP_0000", ...

#ifndef Numbering_CodeListLint_INCLUDED
#define Numbering_CodeListLint_INCLUDED

#include "ConfigFile.h"
#include "LintReport.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace numbering {
namespace tool {

/// Reads the list as the library does, from index 0 up to the first missing key, keeping only the digits of
/// each value and storing the codes in a prefix tree that refuses a code already present as a path. Reports
/// the gap that ends the list early (with the entries it hides), values with other characters than digits
/// (and what they become), and refused codes with the code that made the tree refuse them.
class CodeListLint
{
public:
	/// What the library does with an entry that holds no digit at all.
	enum EmptyCode
	{
		SKIPS_ENTRY, ///< the entry is left out and the list goes on (area-code tables)
		ENDS_LIST    ///< the tree throws and the list ends there (operator prefixes)
	};

	/// Checks the list of keyPrefix + four digits in file, which must exist.
	CodeListLint(const ConfigFile& file, const std::string& keyPrefix, EmptyCode emptyCode, LintReport& report);

	/// Reports every key of the file that is neither settingKey nor a key of the list: the library never reads it.
	void reportUnreadKeys(const std::string& settingKey) const;

	/// The codes stored, each with its key, in the order they were read.
	const std::vector<std::pair<std::string, std::string>>& storedCodes() const;

private:
	/// Reads the entry of index; false when the list ends there.
	bool readEntry(int index);

	/// Reports the entries that a list ending at the missing key of index leaves unread.
	void reportGap(int index) const;

	/// Reports the entry of index, whose value holds no digit; true when the list goes on after it.
	bool readsOnAfterEmpty(int index, const std::string& value) const;

	void store(const std::string& key, const std::string& code);

	/// The index of key when it is a key of the list the library can read, else -1.
	int indexOf(const std::string& key) const;

	/// How many keys of the list come after index, and the first of them.
	std::pair<int, std::string> unreadAfter(int index) const;

	std::string keyOf(int index) const;

	const ConfigFile& m_File;
	std::string m_KeyPrefix;
	EmptyCode m_EmptyCode;
	LintReport& m_Report;
	std::map<std::string, std::string> m_KeyOfCode;
	std::vector<std::pair<std::string, std::string>> m_Stored;
};

} // namespace tool
} // namespace numbering

#endif // Numbering_CodeListLint_INCLUDED
