// ConversionBenchmarks.h
// Registers the benchmarks of the library's conversions, their floor and the two-thread run.

#ifndef Numbering_ConversionBenchmarks_INCLUDED
#define Numbering_ConversionBenchmarks_INCLUDED

#include "numbering/ZelNumberingRules.h"

#include "BenchCorpus.h"

namespace numbering {
namespace bench {

/// "check", "canonical", "phone", "extprefix", "clid", "gsm" and "format" per country and mixed, and
/// "threads/canonical/mixed" with one and two threads. The corpus must be warmed up and outlive the run.
void registerConversionBenchmarks(const BenchCorpus& corpus, ZelNumberingRules* rules);

} // namespace bench
} // namespace numbering

#endif // Numbering_ConversionBenchmarks_INCLUDED
