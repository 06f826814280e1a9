// BenchHost.h
// What the benchmark programs' trace sink has received.

#ifndef Numbering_BenchHost_INCLUDED
#define Numbering_BenchHost_INCLUDED

#include "numbering/Logger.h"

namespace numbering {
namespace bench {

/// The benchmark host: FlogWrite counts lines and Logger::m_Traces is false.
class BenchHost
{
public:
	/// Lines written to FlogWrite so far (error and info lines: debug lines are off).
	static long logLines();
};

} // namespace bench
} // namespace numbering

#endif // Numbering_BenchHost_INCLUDED
