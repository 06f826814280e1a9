// NumberSource.h
// The numbers a command works on: the arguments, or standard input.

#ifndef Numbering_NumberSource_INCLUDED
#define Numbering_NumberSource_INCLUDED

#include <istream>
#include <string>
#include <vector>

namespace numbering {
namespace tool {

/// Hands out the numbers given as arguments or, when there are none, the lines of an input stream one at a
/// time, so that a stream of any length is read in constant memory. Blank lines are skipped and a carriage
/// return before the line end is dropped.
class NumberSource
{
public:
	NumberSource(const std::vector<std::string>& arguments, std::istream& input);

	/// Sets number to the next one; false when there is none left.
	bool next(std::string& number);

private:
	bool nextLine(std::string& number);

	const std::vector<std::string>& m_Arguments;
	std::size_t m_Index = 0;
	std::istream& m_Input;
};

} // namespace tool
} // namespace numbering

#endif // Numbering_NumberSource_INCLUDED
