// BenchHost.cpp
// Host symbols of the benchmark programs: traces off, and a sink that counts lines instead of writing them, so
// that the figures are the library's own cost.

#include "BenchHost.h"

#include <atomic>

bool Logger::m_Traces = false;

namespace {

std::atomic<long> lines{0};

} // namespace

extern "C" void FlogWrite(const char*, short)
{
	lines.fetch_add(1, std::memory_order_relaxed);
}

namespace numbering {
namespace bench {

long BenchHost::logLines()
{
	return lines.load();
}

} // namespace bench
} // namespace numbering
