// FuzzHost.cpp
// Host symbols of the fuzz targets: a trace sink that reads every line and keeps none.

#include "numbering/Logger.h"

#include <cstring>

bool Logger::m_Traces = false;

namespace {

// Read through the checker so that an unterminated or freed line is reported, without the cost of printing.
volatile std::size_t tracedBytes = 0;

} // namespace

extern "C" void FlogWrite(const char* text, short level)
{
	tracedBytes = tracedBytes + std::strlen(text) + static_cast<std::size_t>(level);
}
