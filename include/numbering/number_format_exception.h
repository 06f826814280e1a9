// number_format_exception.h
// Thrown for a digit string that holds something other than digits.

#ifndef Numbering_number_format_exception_INCLUDED
#define Numbering_number_format_exception_INCLUDED

#include "numbering/NumberingApi.h"

#include <stdexcept>
#include <string>

namespace numbering {

/// A malformed digit string; what() is the message given.
class Numbering_API number_format_exception: public std::invalid_argument
{
public:
	explicit number_format_exception(std::string message);

	~number_format_exception() override;
};

} // namespace numbering

#endif // Numbering_number_format_exception_INCLUDED
