// ZelCNPFactory.cpp

#include "plans/ZelCNPFactory.h"

#include "plans/ZelCNP_1.h"
#include "plans/ZelCNP_31.h"
#include "plans/ZelCNP_32.h"
#include "plans/ZelCNP_33.h"
#include "plans/ZelCNP_353.h"
#include "plans/ZelCNP_41.h"
#include "plans/ZelCNP_43.h"
#include "plans/ZelCNP_44.h"
#include "plans/ZelCNP_49.h"
#include "plans/ZelCNP_52.h"
#include "plans/ZelCNP_54.h"
#include "plans/ZelCNP_57.h"
#include "plans/ZelCNP_61.h"
#include "plans/ZelCNP_64.h"
#include "plans/ZelCNP_7.h"

namespace numbering {

ZelCNP* ZelCNPFactory::CreateInstance(std::string countryNumber)
{
	// One test per plan, in the order 1, 31, 32, 33, 41, 43, 44, 49, 52, 54, 57, 61, 64, 7, 353.
	if (countryNumber == "1") return new ZelCNP_1();
	if (countryNumber == "31") return new ZelCNP_31();
	if (countryNumber == "32") return new ZelCNP_32();
	if (countryNumber == "33") return new ZelCNP_33();
	if (countryNumber == "41") return new ZelCNP_41();
	if (countryNumber == "43") return new ZelCNP_43();
	if (countryNumber == "44") return new ZelCNP_44();
	if (countryNumber == "49") return new ZelCNP_49();
	if (countryNumber == "52") return new ZelCNP_52();
	if (countryNumber == "54") return new ZelCNP_54();
	if (countryNumber == "57") return new ZelCNP_57();
	if (countryNumber == "61") return new ZelCNP_61();
	if (countryNumber == "64") return new ZelCNP_64();
	if (countryNumber == "7") return new ZelCNP_7();
	if (countryNumber == "353") return new ZelCNP_353();
	return nullptr;
}

} // namespace numbering
