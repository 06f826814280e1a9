// ZelDialableFactory.cpp

#include "dialable/ZelDialableFactory.h"

#include "dialable/ZelDialable_54.h"

namespace numbering {

ZelDialable* ZelDialableFactory::CreateInstance(std::string countryNumber)
{
	// Country variants are chosen here by exact country number, in the order 61, 7, 52, 54, 57.
	if (countryNumber == "54") return new ZelDialable_54();
	return new ZelDialable();
}

} // namespace numbering
