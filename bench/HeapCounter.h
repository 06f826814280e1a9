// HeapCounter.h
// Counts the heap bytes that the program holds, through its own global operator new and delete.

#ifndef Numbering_HeapCounter_INCLUDED
#define Numbering_HeapCounter_INCLUDED

#include <cstddef>

namespace numbering {
namespace bench {

/// Live bytes and blocks allocated through operator new (usable sizes, so allocator rounding is included).
/// Linked into the start-up benchmark only, as it replaces the program's operator new and delete.
class HeapCounter
{
public:
	static std::size_t liveBytes();
	static std::size_t liveBlocks();
};

} // namespace bench
} // namespace numbering

#endif // Numbering_HeapCounter_INCLUDED
