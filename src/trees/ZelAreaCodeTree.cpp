// ZelAreaCodeTree.cpp

#include "trees/ZelAreaCodeTree.h"

#include "numbering/number_format_exception.h"

#include "support/Text.h"
#include "support/Trace.h"

#include <iostream>
#include <stdexcept>
#include <typeinfo>

namespace numbering {

namespace {

void checkDigits(const std::string& strDigits)
{
	if (strDigits.empty()) throw std::invalid_argument("strDigits empty");
	const std::string::size_type position = detail::skipDigits(strDigits, 0, strDigits.size());
	if (position == strDigits.size()) return;
	throw number_format_exception("Unexpected digit:" + std::string(1, strDigits[position]) +
								  " at position: " + std::to_string(position) + " in :" + strDigits);
}

} // namespace

int ZelAreaCodeTree::_count = 0;
Logger* ZelAreaCodeTree::logger = Logger::getLogger(typeid(ZelAreaCodeTree).name());

ZelAreaCodeTree::ZelAreaCodeTree():
	m_RefCount(1)
{
	++_count;
	NUMBERING_TRACE(logger, "ZelAreaCodeTree()");
}

ZelAreaCodeTree::~ZelAreaCodeTree()
{
	--_count;
}

bool ZelAreaCodeTree::insert(std::string strDigits)
{
	NUMBERING_TRACE(logger, "Inserting '" + strDigits + "' ...");
	checkDigits(strDigits);
	// A code that is already a path stays unknown, even when the path ends unmarked: the trie would not mark
	// it, so it is refused here and the order of insertion decides.
	const bool stored = m_Tree.isPresent(strDigits) != strDigits && m_Tree.insert(strDigits);
	NUMBERING_TRACE(logger, (stored ? "Insert successful for '" : "Insert failed for '") + strDigits + "'");
	return stored;
}

std::string ZelAreaCodeTree::extractAreaCode(std::string number)
{
	std::string candidate = m_Tree.isPresent(std::move(number));
	while (!candidate.empty() && !m_Tree.isAreaCode(candidate))
		candidate.pop_back();
	return candidate;
}

std::string ZelAreaCodeTree::ToString()
{
	return m_Tree.ToString();
}

void ZelAreaCodeTree::duplicate()
{
	++m_RefCount;
}

void ZelAreaCodeTree::release()
{
	if (--m_RefCount == 0) delete this;
}

ZelAreaCodeTree& ZelAreaCodeTree::operator=(const ZelAreaCodeTree& other)
{
	m_Tree = other.m_Tree;
	return *this;
}

int ZelAreaCodeTree::main(std::string* /*args*/)
{
	ZelAreaCodeTree tree;
	for (const char* code :
		{"123", "126", "1234", "235", "456", "789", "123456", "45698", "11234556", "7894614", "4711417"})
		tree.insert(code);
	for (const char* number : {"123456789", "123056789", "987654321"})
		std::cout << "Extract area code from '" << number << "' : " << tree.extractAreaCode(number);
	std::cout << tree.ToString();
	return 0;
}

} // namespace numbering
