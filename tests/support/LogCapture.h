// LogCapture.h
// The tests' host: a trace sink that keeps every line, and the trace switch.

#ifndef Numbering_LogCapture_INCLUDED
#define Numbering_LogCapture_INCLUDED

#include <string>
#include <vector>

namespace numbering {
namespace test {

/// Lines handed to FlogWrite since the last clear(), in order. Thread-safe.
class LogCapture
{
public:
	static void clear();

	/// A copy of the captured lines.
	static std::vector<std::string> lines();

	/// The levels FlogWrite received, one per line.
	static std::vector<short> levels();

	/// The captured lines that begin with start: matching("ERROR ") gives the error lines.
	static std::vector<std::string> matching(const std::string& start);
};

} // namespace test
} // namespace numbering

#endif // Numbering_LogCapture_INCLUDED
