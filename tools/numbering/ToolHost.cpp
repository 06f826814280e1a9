// ToolHost.cpp
// The tool's host symbols: library log lines go to standard error.

#include "numbering/Logger.h"

#include <cstdio>
#include <cstring>

bool Logger::m_Traces = false;

extern "C" void FlogWrite(const char* text, short /*level*/)
{
	// Every library line arrives with level 1; the text's level word is the only distinction. Without
	// --traces only errors are shown, so that the info lines about missing site files do not drown the output.
	if (Logger::m_Traces || std::strncmp(text, "ERROR ", 6) == 0) std::fprintf(stderr, "%s\n", text);
}
