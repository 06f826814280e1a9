// ZelDialableFactory.cpp

#include "dialable/ZelDialableFactory.h"

#include "dialable/ZelDialable_52.h"
#include "dialable/ZelDialable_54.h"
#include "dialable/ZelDialable_57.h"
#include "dialable/ZelDialable_61.h"
#include "dialable/ZelDialable_7.h"

namespace numbering {

ZelDialable* ZelDialableFactory::CreateInstance(std::string countryNumber)
{
	// Country variants are chosen here by exact country number, in the order 61, 7, 52, 54, 57.
	if (countryNumber == "61") return new ZelDialable_61();
	if (countryNumber == "7") return new ZelDialable_7();
	if (countryNumber == "52") return new ZelDialable_52();
	if (countryNumber == "54") return new ZelDialable_54();
	if (countryNumber == "57") return new ZelDialable_57();
	return new ZelDialable();
}

} // namespace numbering
