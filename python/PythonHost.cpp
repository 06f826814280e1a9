// PythonHost.cpp
// The module's host symbols: the library's log lines go to Python's logging.

#include "numbering/Logger.h"

#include "LogForwarder.h"

bool Logger::m_Traces = false;

// Exported explicitly: the module is built with hidden visibility, and the shared library looks the sink up.
extern "C" __attribute__((visibility("default"))) void FlogWrite(const char* text, short /*level*/)
{
	numbering::python::LogForwarder::write(text);
}
