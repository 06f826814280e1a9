// Row.h
// One line of the tool's output.

#ifndef Numbering_Row_INCLUDED
#define Numbering_Row_INCLUDED

#include <string>
#include <vector>

namespace numbering {
namespace tool {

/// The values of one result, in the order of the command's columns, and whether the conversion gave a result.
struct Row
{
	std::vector<std::string> values;
	bool converted = true;
};

} // namespace tool
} // namespace numbering

#endif // Numbering_Row_INCLUDED
