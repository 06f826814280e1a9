// HeapCounter.cpp

#include "HeapCounter.h"

#include <atomic>
#include <cstdlib>
#include <malloc.h>
#include <new>

namespace {

std::atomic<std::size_t> bytes{0};
std::atomic<std::size_t> blocks{0};

void* allocate(std::size_t size)
{
	void* block = std::malloc(size == 0 ? 1 : size);
	if (block == nullptr) throw std::bad_alloc();
	bytes += malloc_usable_size(block);
	++blocks;
	return block;
}

void deallocate(void* block) noexcept
{
	if (block == nullptr) return;
	bytes -= malloc_usable_size(block);
	--blocks;
	std::free(block);
}

} // namespace

void* operator new(std::size_t size)
{
	return allocate(size);
}

void* operator new[](std::size_t size)
{
	return allocate(size);
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
	try
	{
		return allocate(size);
	}
	catch (...)
	{
		return nullptr;
	}
}

void* operator new[](std::size_t size, const std::nothrow_t& tag) noexcept
{
	return operator new(size, tag);
}

void operator delete(void* block) noexcept
{
	deallocate(block);
}

void operator delete[](void* block) noexcept
{
	deallocate(block);
}

void operator delete(void* block, std::size_t) noexcept
{
	deallocate(block);
}

void operator delete[](void* block, std::size_t) noexcept
{
	deallocate(block);
}

namespace numbering {
namespace bench {

std::size_t HeapCounter::liveBytes()
{
	return bytes.load();
}

std::size_t HeapCounter::liveBlocks()
{
	return blocks.load();
}

} // namespace bench
} // namespace numbering
