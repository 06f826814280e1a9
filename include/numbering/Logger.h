// Logger.h
// Named trace writer of the library; FlogWrite and Logger::m_Traces are the host interface.

#ifndef Numbering_Logger_INCLUDED
#define Numbering_Logger_INCLUDED

#include "numbering/NumberingApi.h"

#include <string>

/// The host's trace sink: receives every finished log line, always with level 1. Defined by the host process.
extern "C" void FlogWrite(const char* text, short level);

/// Writes lines of the form "<LEVEL> <name> - <message>" to FlogWrite. It filters nothing: call sites test
/// m_Traces before they build a debug message.
class Numbering_API Logger
{
public:
	/// True when callers write debug lines. Defined by the host process, not by the library.
	static bool m_Traces;

	/// Returns a new Logger carrying name. Every call gives a fresh object that is never deleted: callers
	/// call it once per class, at start-up, and keep the pointer.
	static Logger* getLogger(std::string name);

	explicit Logger(std::string name);

	virtual ~Logger();

	/// Writes "ERROR <name> - <message>".
	void error(std::string message);

	/// Writes "DEBUG <name> - <message>".
	void debug(std::string message);

	/// Writes "INFO <name> - <message>".
	void info(std::string message);

	/// The name given to getLogger.
	const std::string& getName() const;

private:
	void write(const char* level, const std::string& message);

	std::string m_Name;
};

#endif // Numbering_Logger_INCLUDED
