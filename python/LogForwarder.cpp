// LogForwarder.cpp

#include "LogForwarder.h"

#include <cstring>

namespace py = pybind11;

namespace numbering {
namespace python {

namespace {

/// The level word of a library line ("ERROR ", ...) and the level Python's logging gives it.
struct Level
{
	const char* word;
	int level;
};

// The numbers of Python's logging.DEBUG, INFO and ERROR, which Python fixes.
const int DEBUG = 10;
const int INFO = 20;
const int ERROR = 40;
const Level LEVELS[] = {{"DEBUG ", DEBUG}, {"INFO ", INFO}, {"ERROR ", ERROR}};

} // namespace

py::object* LogForwarder::m_Logger = nullptr;

void LogForwarder::install()
{
	m_Logger = new py::object(py::module_::import("logging").attr("getLogger")("numbering"));
}

void LogForwarder::write(const char* text)
{
	if (m_Logger == nullptr || !Py_IsInitialized() || _Py_IsFinalizing()) return;
	int level = INFO;
	for (const Level& candidate : LEVELS)
	{
		if (std::strncmp(text, candidate.word, std::strlen(candidate.word)) == 0)
		{
			level = candidate.level;
			text += std::strlen(candidate.word);
			break;
		}
	}
	const py::gil_scoped_acquire gil;
	try
	{
		m_Logger->attr("log")(level, text);
	}
	catch (py::error_already_set& error)
	{
		// A conversion must not fail because a handler did: Python reports it as it does for callbacks.
		error.discard_as_unraisable("numbering log line");
	}
}

} // namespace python
} // namespace numbering
