// number_format_exception.cpp

#include "numbering/number_format_exception.h"

namespace numbering {

number_format_exception::number_format_exception(std::string message):
	std::invalid_argument(message)
{
}

number_format_exception::~number_format_exception() = default;

} // namespace numbering
