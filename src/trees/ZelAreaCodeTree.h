// ZelAreaCodeTree.h
// The area codes of one country, and the longest of them that a national number begins with.

#ifndef Numbering_ZelAreaCodeTree_INCLUDED
#define Numbering_ZelAreaCodeTree_INCLUDED

#include "numbering/Logger.h"

#include "trees/ZelCharsTree.h"

#include <string>

namespace numbering {

/// A trie of digit strings, filled once by the plan that owns it and only read afterwards. Reference-counted
/// (1 after construction, not atomic) so that holders can share it through Poco::AutoPtr.
class ZelAreaCodeTree
{
public:
	ZelAreaCodeTree();

	// The order of the virtual functions below is part of the tree's interface; keep it.
	virtual ~ZelAreaCodeTree();

	/// Stores one area code and returns true, or returns false when strDigits is already a path of the tree
	/// (so "12" can never be added after "123"). Throws std::invalid_argument ("strDigits empty") for "" and
	/// number_format_exception for a character other than a digit; the tree is then unchanged.
	virtual bool insert(std::string strDigits);

	/// The longest stored area code that number begins with, or "". With "123" and "1234" stored, "12356"
	/// gives "123".
	virtual std::string extractAreaCode(std::string number);

	/// "Root : " followed by one line per node, marked nodes carrying " (true)".
	virtual std::string ToString();

	/// Adds one to the reference count.
	virtual void duplicate();

	/// Subtracts one and deletes the tree at 0.
	virtual void release();

	/// Assigns the tries, merging other's codes into this tree.
	ZelAreaCodeTree& operator=(const ZelAreaCodeTree& other);

	ZelAreaCodeTree(const ZelAreaCodeTree&) = delete;

	/// Self test: fills a tree with sample codes and prints three extractions and the tree to standard
	/// output. Returns 0; args is ignored.
	static int main(std::string* args);

	/// Number of live trees (diagnostics).
	static int _count;

private:
	static Logger* logger;

	ZelCharsTree m_Tree;
	int m_RefCount;
};

} // namespace numbering

#endif // Numbering_ZelAreaCodeTree_INCLUDED
