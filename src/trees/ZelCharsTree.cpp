// ZelCharsTree.cpp

#include "trees/ZelCharsTree.h"

#include <stdexcept>

namespace numbering {

ZelCharsTree::ZelCharsTree():
	m_Root('\0')
{
}

ZelCharsTree::~ZelCharsTree() = default;

bool ZelCharsTree::insert(std::string s)
{
	if (s.empty()) throw std::invalid_argument(" Unexpected value:" + s);
	m_Root.insert(std::move(s));
	return true;
}

std::string ZelCharsTree::isPresent(std::string s)
{
	return isPresent(std::move(s), m_Root);
}

std::string ZelCharsTree::isPresent(std::string s, ZelCharsTreeElement& from)
{
	ZelCharsTreeElement* node = &from;
	std::string::size_type length = 0;
	while (length < s.size() && (node = node->get(s[length])) != nullptr)
		++length;
	s.resize(length);
	return s;
}

bool ZelCharsTree::isAreaCode(std::string s)
{
	ZelCharsTreeElement* node = &m_Root;
	for (char c : s)
	{
		node = node->get(c);
		if (node == nullptr) return false;
	}
	return node->isAreaCode();
}

std::string ZelCharsTree::ToString()
{
	return m_Root.ToString();
}

ZelCharsTree& ZelCharsTree::operator=(const ZelCharsTree& other)
{
	m_Root = other.m_Root;
	return *this;
}

} // namespace numbering
