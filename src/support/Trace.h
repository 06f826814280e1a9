// Trace.h
// The library's debug lines: their text is built only when the host has traces on.

#ifndef Numbering_Trace_INCLUDED
#define Numbering_Trace_INCLUDED

#include "numbering/Logger.h"

/// Writes text at debug level on logger when Logger::m_Traces is set. text is an expression that is not
/// evaluated otherwise, so a debug line costs one test of a flag on the conversion paths.
#define NUMBERING_TRACE(logger, text)                                                                                  \
	do                                                                                                                 \
	{                                                                                                                  \
		if (::Logger::m_Traces) (logger)->debug(text);                                                                 \
	} while (false)

#endif // Numbering_Trace_INCLUDED
