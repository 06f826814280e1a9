// LogForwarder.h
// Hands the library's log lines to Python's logging.

#ifndef Numbering_LogForwarder_INCLUDED
#define Numbering_LogForwarder_INCLUDED

#include <pybind11/pybind11.h>

namespace numbering {
namespace python {

/// Writes each line of the library to the Python logger "numbering", at the level its first word names
/// (DEBUG, INFO or ERROR), without that word. Lines come from whichever thread converts, the GIL released.
class LogForwarder
{
public:
	/// Looks the logger up; called once, with the GIL, when the module is imported.
	static void install();

	/// Logs one line of the library, taking the GIL for the call. Lines before install, or while the
	/// interpreter shuts down, are dropped.
	static void write(const char* text);

private:
	/// Never freed: a Python object must not be released after the interpreter has gone.
	static pybind11::object* m_Logger;
};

} // namespace python
} // namespace numbering

#endif // Numbering_LogForwarder_INCLUDED
