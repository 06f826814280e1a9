// ZelUnsupportedCountryException.h
// Thrown when a country code is not in the configuration.

#ifndef Numbering_ZelUnsupportedCountryException_INCLUDED
#define Numbering_ZelUnsupportedCountryException_INCLUDED

#include "numbering/NumberingApi.h"

#include <stdexcept>
#include <string>

namespace numbering {

/// A well-formed country code that the configuration does not know, or no configuration at all.
class Numbering_API ZelUnsupportedCountryException: public std::runtime_error
{
public:
	/// what() is "Country code '<code>' is not supported".
	explicit ZelUnsupportedCountryException(std::string code);

	/// what() is "Country code '<code>' is not supported : <reason>".
	ZelUnsupportedCountryException(std::string code, std::string reason);

	~ZelUnsupportedCountryException() override;
};

} // namespace numbering

#endif // Numbering_ZelUnsupportedCountryException_INCLUDED
