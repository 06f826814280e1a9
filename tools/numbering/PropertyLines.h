// PropertyLines.h
// Where each key of a property file stands.

#ifndef Numbering_PropertyLines_INCLUDED
#define Numbering_PropertyLines_INCLUDED

#include <istream>
#include <map>
#include <string>
#include <vector>

namespace numbering {
namespace tool {

/// The line numbers of the keys of a property file. The property reader gives keys and values but no
/// positions, so the file is split again here the way that reader splits it: blank lines and lines that begin
/// with "#" or "!" are skipped, a key runs to the first "=", ":" or line end and is trimmed, and a value goes
/// on over lines that end with a backslash. A key's line is the line where its entry begins.
class PropertyLines
{
public:
	/// An empty index: the file could not be read.
	PropertyLines() = default;

	explicit PropertyLines(std::istream& in);

	/// The line of the entry the reader keeps for key, the last one. For a key the loaders see cut at a "." (no
	/// entry has it, some entry's key begins with key + "."), the line of the first such entry. 0 for neither.
	int lineOf(const std::string& key) const;

	/// Every key of the file, each once, in key order.
	std::vector<std::string> keys() const;

	/// Every key written more than once, with the lines of its entries in file order.
	std::map<std::string, std::vector<int>> repeatedKeys() const;

private:
	std::map<std::string, std::vector<int>> m_Lines;
};

} // namespace tool
} // namespace numbering

#endif // Numbering_PropertyLines_INCLUDED
