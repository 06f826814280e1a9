// ZelCNPFactory.cpp

#include "plans/ZelCNPFactory.h"

#include "plans/ZelCNP_49.h"

namespace numbering {

ZelCNP* ZelCNPFactory::CreateInstance(std::string countryNumber)
{
	// One test per plan, in the order 1, 31, 32, 33, 41, 43, 44, 49, 52, 54, 57, 61, 64, 7, 353.
	if (countryNumber == "49") return new ZelCNP_49();
	return nullptr;
}

} // namespace numbering
