// ZelCharsTreeElement.h
// One node of the character trie: a character, the mark of a stored code and the children it owns.

#ifndef Numbering_ZelCharsTreeElement_INCLUDED
#define Numbering_ZelCharsTreeElement_INCLUDED

#include "Poco/HashMap.h"

#include <string>
#include <vector>

namespace numbering {

/// A trie node. It owns its children and deletes them with itself. The reference count (1 after construction,
/// not atomic) serves holders of a single node; the tree itself does not use it.
class ZelCharsTreeElement
{
public:
	/// A node for c, unmarked, without children.
	explicit ZelCharsTreeElement(char c);

	// The order of the virtual functions below is part of the node's interface; keep it.
	virtual ~ZelCharsTreeElement();

	/// Merges the subtree e into the children and takes ownership of e. A child already stored under e's
	/// character keeps its own mark and receives e's children; e itself is then deleted.
	virtual void insert(ZelCharsTreeElement* e);

	/// Stores s below this node and marks its last node when that node is new; "" does nothing.
	virtual void insert(std::string s);

	/// ToString(0).
	virtual std::string ToString();

	/// "Root : " for the root, else the character with " (true)" when marked, then per child a newline, depth
	/// blanks and the child's rendering at the same depth.
	virtual std::string ToString(int depth);

	virtual char getCharacter();

	/// The children map itself.
	virtual Poco::HashMap<char, ZelCharsTreeElement*>& getElements();

	/// The child stored under c, or null.
	virtual ZelCharsTreeElement* get(char c);

	/// True when a stored code ends at this node.
	virtual bool isAreaCode();

	/// Adds one to the reference count.
	virtual void duplicate();

	/// Subtracts one and deletes the node at 0.
	virtual void release();

	void setAreaCode(bool areaCode);

	/// Number of marked nodes strictly below this node.
	int numberOfStoredCodes();

	/// Copies the character and the mark, and merges deep copies of other's children into the children:
	/// a child already stored under a key is kept, and children missing from other stay.
	ZelCharsTreeElement& operator=(const ZelCharsTreeElement& other);

	ZelCharsTreeElement(const ZelCharsTreeElement&) = delete;

	/// Number of live nodes (diagnostics).
	static int _count;

private:
	/// Appends the non-null children to nodes and leaves null entries behind.
	void takeChildren(std::vector<ZelCharsTreeElement*>& nodes);

	char m_Character;
	bool m_AreaCode;
	Poco::HashMap<char, ZelCharsTreeElement*> m_Elements;
	int m_RefCount;
};

} // namespace numbering

#endif // Numbering_ZelCharsTreeElement_INCLUDED
