// BenchLoop.h
// The timed loop shared by the conversion benchmarks: one corpus number per iteration.

#ifndef Numbering_BenchLoop_INCLUDED
#define Numbering_BenchLoop_INCLUDED

#include "BenchCorpus.h"

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace numbering {
namespace bench {

/// Runs convert on the entries in turn, one per iteration, so that the reported time is the time per number.
/// Each thread starts at its own share of the corpus.
template <typename Convert>
void runOver(benchmark::State& state, const std::vector<CorpusEntry>& entries, Convert convert)
{
	if (entries.empty())
	{
		state.SkipWithError("no number in this corpus");
		return;
	}
	const std::size_t threads = static_cast<std::size_t>(state.threads());
	std::size_t index = entries.size() * static_cast<std::size_t>(state.thread_index()) / threads;
	for (auto _ : state)
	{
		convert(entries[index]);
		if (++index == entries.size()) index = 0;
	}
	state.SetItemsProcessed(state.iterations());
}

/// Registers "<operation>/<corpus>" for every country of the corpus and for the mixed corpus; entriesOf picks the
/// entries of a corpus name.
template <typename EntriesOf, typename Convert>
void registerPerCountry(const BenchCorpus& corpus, const std::string& operation, EntriesOf entriesOf, Convert convert)
{
	std::vector<std::string> names = corpus.countries();
	names.push_back(BenchCorpus::MIXED);
	for (const std::string& name : names)
	{
		const std::vector<CorpusEntry>* entries = &entriesOf(name);
		benchmark::RegisterBenchmark((operation + "/" + name).c_str(),
			[entries, convert](benchmark::State& state) { runOver(state, *entries, convert); });
	}
}

} // namespace bench
} // namespace numbering

#endif // Numbering_BenchLoop_INCLUDED
