// PhoneNumberBenchmarks.h
// Registers the general-purpose phone-number library's conversions of the same corpus, for comparison.

#ifndef Numbering_PhoneNumberBenchmarks_INCLUDED
#define Numbering_PhoneNumberBenchmarks_INCLUDED

#include "BenchCorpus.h"

namespace numbering {
namespace bench {

/// "lpn_e164" (Parse of the dialled number in the site's region and Format as E164) and "lpn_outofcountry"
/// (Parse of the canonical number and FormatOutOfCountryCallingNumber from the site's region), per country and
/// mixed.
void registerPhoneNumberBenchmarks(const BenchCorpus& corpus);

} // namespace bench
} // namespace numbering

#endif // Numbering_PhoneNumberBenchmarks_INCLUDED
