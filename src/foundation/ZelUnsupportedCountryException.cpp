// ZelUnsupportedCountryException.cpp

#include "numbering/ZelUnsupportedCountryException.h"

namespace numbering {

namespace {

std::string notSupported(const std::string& code)
{
	return "Country code '" + code + "' is not supported";
}

} // namespace

ZelUnsupportedCountryException::ZelUnsupportedCountryException(std::string code):
	std::runtime_error(notSupported(code))
{
}

ZelUnsupportedCountryException::ZelUnsupportedCountryException(std::string code, std::string reason):
	std::runtime_error(notSupported(code) + " : " + reason)
{
}

ZelUnsupportedCountryException::~ZelUnsupportedCountryException() = default;

} // namespace numbering
