// ZelCNPFactory.h
// Chooses the numbering plan class of a country by its calling code.

#ifndef Numbering_ZelCNPFactory_INCLUDED
#define Numbering_ZelCNPFactory_INCLUDED

#include "plans/ZelCNP.h"

namespace numbering {

/// Maker of country numbering plans.
class ZelCNPFactory
{
public:
	/// A new plan (reference count 1, owned by the caller) for the calling code, compared exactly: "49" gives
	/// a ZelCNP_49. Null for a calling code without a plan, "" included.
	static ZelCNP* CreateInstance(std::string countryNumber);
};

} // namespace numbering

#endif // Numbering_ZelCNPFactory_INCLUDED
