// ZelCharsTree.h
// Character trie: stores strings and finds the longest stored path at the start of a string.

#ifndef Numbering_ZelCharsTree_INCLUDED
#define Numbering_ZelCharsTree_INCLUDED

#include "trees/ZelCharsTreeElement.h"

#include <string>

namespace numbering {

/// A trie rooted in a node with the character '\0'. It only grows; dropping it frees every node.
class ZelCharsTree
{
public:
	ZelCharsTree();

	// The order of the virtual functions below is part of the tree's interface; keep it.
	virtual ~ZelCharsTree();

	/// Stores s and returns true. Throws std::invalid_argument (" Unexpected value:") when s is empty.
	virtual bool insert(std::string s);

	/// isPresent(s, root).
	virtual std::string isPresent(std::string s);

	/// The longest prefix of s that is a path of children below from; marks are ignored. With "123" stored,
	/// "1299" gives "12".
	virtual std::string isPresent(std::string s, ZelCharsTreeElement& from);

	/// True when s is a path from the root whose last node is marked; "" gives false.
	virtual bool isAreaCode(std::string s);

	/// "Root : " followed by one line per node.
	virtual std::string ToString();

	/// Assigns the roots, merging other's nodes into this tree.
	ZelCharsTree& operator=(const ZelCharsTree& other);

	ZelCharsTree(const ZelCharsTree&) = delete;

private:
	ZelCharsTreeElement m_Root;
};

} // namespace numbering

#endif // Numbering_ZelCharsTree_INCLUDED
