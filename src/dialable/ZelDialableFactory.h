// ZelDialableFactory.h
// Chooses the dialable maker class of a country number.

#ifndef Numbering_ZelDialableFactory_INCLUDED
#define Numbering_ZelDialableFactory_INCLUDED

#include "dialable/ZelDialable.h"

#include <string>

namespace numbering {

/// Maps a country number to its maker class; countries without a variant of their own get the generic maker.
class ZelDialableFactory
{
public:
	/// A new maker for countryNumber ("57"), reference count 1, owned by the caller. Never null: an unknown or
	/// empty country number gets the generic ZelDialable.
	static ZelDialable* CreateInstance(std::string countryNumber);
};

} // namespace numbering

#endif // Numbering_ZelDialableFactory_INCLUDED
