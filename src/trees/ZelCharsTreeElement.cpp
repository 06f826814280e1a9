// ZelCharsTreeElement.cpp

#include "trees/ZelCharsTreeElement.h"

#include <utility>
#include <vector>

namespace numbering {

namespace {

using Children = Poco::HashMap<char, ZelCharsTreeElement*>;

/// An empty children map to copy from. A default-constructed map reserves 64 buckets (1.5 KB) while most nodes
/// of an area-code table have one child or none; a copy holds the one bucket of an empty map and grows with
/// its children, which keeps a country's full table in a fraction of the memory.
const Children& noChildren()
{
	static const Children empty;
	return empty;
}

} // namespace

int ZelCharsTreeElement::_count = 0;

ZelCharsTreeElement::ZelCharsTreeElement(char c):
	m_Character(c),
	m_AreaCode(false),
	m_Elements(noChildren()),
	m_RefCount(1)
{
	++_count;
}

ZelCharsTreeElement::~ZelCharsTreeElement()
{
	// Freed through a work list rather than by recursion, so that a very long stored code cannot exhaust the
	// stack: each node gives up its children before it is deleted.
	std::vector<ZelCharsTreeElement*> pending;
	takeChildren(pending);
	while (!pending.empty())
	{
		ZelCharsTreeElement* node = pending.back();
		pending.pop_back();
		node->takeChildren(pending);
		delete node;
	}
	--_count;
}

void ZelCharsTreeElement::insert(ZelCharsTreeElement* e)
{
	// A work list of (target, subtree) pairs instead of recursion, for the same reason as in the destructor.
	std::vector<std::pair<ZelCharsTreeElement*, ZelCharsTreeElement*>> merges{{this, e}};
	while (!merges.empty())
	{
		auto [target, element] = merges.back();
		merges.pop_back();
		if (element == nullptr) continue;
		auto found = target->m_Elements.find(element->getCharacter());
		if (found == target->m_Elements.end())
		{
			target->m_Elements[element->getCharacter()] = element;
			continue;
		}
		ZelCharsTreeElement* existing = found->second;
		if (existing == element) continue;
		// The existing node keeps its own mark: a string that is already a path stays unmarked, which the
		// area-code tree relies on when it refuses such codes.
		for (auto& child : element->getElements())
			merges.emplace_back(existing, child.second);
		// Emptied by a swap: clear() would reserve a full-size table for a node about to go.
		Children handedOn(noChildren());
		element->getElements().swap(handedOn);
		delete element;
	}
}

void ZelCharsTreeElement::insert(std::string s)
{
	// The tree gains what merging a fresh chain for s would give it, without building and freeing the part of
	// the chain that already exists: new nodes only below the existing path, the last one marked. A string
	// that is already a path changes nothing, as a merge leaves the existing nodes' marks as they are.
	ZelCharsTreeElement* node = this;
	std::string::size_type depth = 0;
	for (ZelCharsTreeElement* next; depth < s.size() && (next = node->get(s[depth])) != nullptr; ++depth)
		node = next;
	if (depth == s.size()) return;
	ZelCharsTreeElement* chain = nullptr;
	for (std::string::size_type i = s.size(); i-- > depth;)
	{
		auto* link = new ZelCharsTreeElement(s[i]);
		if (chain == nullptr)
			link->setAreaCode(true);
		else
			link->m_Elements[chain->getCharacter()] = chain;
		chain = link;
	}
	node->m_Elements[chain->getCharacter()] = chain;
}

std::string ZelCharsTreeElement::ToString()
{
	return ToString(0);
}

std::string ZelCharsTreeElement::ToString(int depth)
{
	std::string text;
	if (m_Character == '\0')
		text = "Root : ";
	else
	{
		text = m_Character;
		if (m_AreaCode) text += " (true)";
	}
	const std::string indent(depth > 0 ? depth : 0, ' ');
	for (auto& child : m_Elements)
	{
		// Every descendant gets the same indent as the first level.
		if (child.second != nullptr) text += "\n" + indent + child.second->ToString(depth);
	}
	return text;
}

char ZelCharsTreeElement::getCharacter()
{
	return m_Character;
}

Poco::HashMap<char, ZelCharsTreeElement*>& ZelCharsTreeElement::getElements()
{
	return m_Elements;
}

ZelCharsTreeElement* ZelCharsTreeElement::get(char c)
{
	auto found = m_Elements.find(c);
	return found == m_Elements.end() ? nullptr : found->second;
}

bool ZelCharsTreeElement::isAreaCode()
{
	return m_AreaCode;
}

void ZelCharsTreeElement::duplicate()
{
	++m_RefCount;
}

void ZelCharsTreeElement::release()
{
	if (--m_RefCount == 0) delete this;
}

void ZelCharsTreeElement::takeChildren(std::vector<ZelCharsTreeElement*>& nodes)
{
	// The entries are nulled rather than erased: clearing a Poco hash map allocates a fresh table.
	for (auto& child : m_Elements)
	{
		if (child.second != nullptr) nodes.push_back(child.second);
		child.second = nullptr;
	}
}

void ZelCharsTreeElement::setAreaCode(bool areaCode)
{
	m_AreaCode = areaCode;
}

int ZelCharsTreeElement::numberOfStoredCodes()
{
	int stored = 0;
	for (auto& child : m_Elements)
	{
		if (child.second != nullptr)
			stored += (child.second->isAreaCode() ? 1 : 0) + child.second->numberOfStoredCodes();
	}
	return stored;
}

ZelCharsTreeElement& ZelCharsTreeElement::operator=(const ZelCharsTreeElement& other)
{
	m_Character = other.m_Character;
	m_AreaCode = other.m_AreaCode;
	for (const auto& child : other.m_Elements)
	{
		// Assignment merges: a child already present under the key is kept and no copy is made for it.
		if (child.second == nullptr || m_Elements.find(child.first) != m_Elements.end()) continue;
		auto* copy = new ZelCharsTreeElement('\0');
		*copy = *child.second;
		m_Elements[child.first] = copy;
	}
	return *this;
}

} // namespace numbering
