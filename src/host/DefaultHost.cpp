// DefaultHost.cpp
// Host symbols for programs that do not provide their own trace sink.

#include "numbering/Logger.h"

#include <cstdio>

bool Logger::m_Traces = false;

extern "C" void FlogWrite(const char* text, short level)
{
	std::fprintf(stderr, "%d %s\n", level, text);
}
