// FacadeExercise.h
// Calls every operation of the facade on one number, as a host would, for the fuzz targets.

#ifndef Numbering_FacadeExercise_INCLUDED
#define Numbering_FacadeExercise_INCLUDED

#include "numbering/ZelDialRulesItem.h"
#include "numbering/ZelNumberingRules.h"

#include <string>

namespace numbering {
namespace fuzz {

/// Drives the whole facade with one number, and the canonical number made of it, with one pattern at one site.
/// The guarded operations are called bare: an exception escaping one of them ends the process, and the fuzzer
/// reports it. The unguarded ones may throw a std::exception to their host, which is allowed; anything else
/// escapes and is reported too. site may be null except for makeDialableNumber, which hosts only call with a site;
/// it is then skipped.
void exerciseFacade(ZelNumberingRules* rules,
	ZelDialRulesItem* site,
	const std::string& number,
	const std::string& pattern,
	bool withExtPrefix);

} // namespace fuzz
} // namespace numbering

#endif // Numbering_FacadeExercise_INCLUDED
