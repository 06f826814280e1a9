// ConversionBenchmarks.cpp

#include "ConversionBenchmarks.h"

#include "numbering/ZelClid.h"

#include "BenchLoop.h"

#include "Poco/AutoPtr.h"

#include <benchmark/benchmark.h>

namespace numbering {
namespace bench {

void registerConversionBenchmarks(const BenchCorpus& corpus, ZelNumberingRules* rules)
{
	auto dialled = [&corpus](
					   const std::string& name) -> const std::vector<CorpusEntry>& { return corpus.dialled(name); };
	auto canonical = [&corpus](
						 const std::string& name) -> const std::vector<CorpusEntry>& { return corpus.canonical(name); };
	// The floor: one pass over each number, the least that any conversion must do.
	registerPerCountry(corpus, "check", dialled,
		[rules](const CorpusEntry& entry) { benchmark::DoNotOptimize(rules->checkPhoneNumber(entry.number)); });
	auto makeCanonical = [rules](const CorpusEntry& entry) {
		benchmark::DoNotOptimize(rules->makeCanonicalNumber(entry.site, entry.number, ""));
	};
	registerPerCountry(corpus, "canonical", dialled, makeCanonical);
	registerPerCountry(corpus, "phone", canonical, [rules](const CorpusEntry& entry) {
		benchmark::DoNotOptimize(rules->makePhoneNumber(entry.site, entry.canonical));
	});
	registerPerCountry(corpus, "extprefix", canonical, [rules](const CorpusEntry& entry) {
		benchmark::DoNotOptimize(rules->addExternalPrefix(entry.site, entry.canonical));
	});
	registerPerCountry(corpus, "clid", dialled, [rules](const CorpusEntry& entry) {
		Poco::AutoPtr<ZelClid> clid(rules->makeClid(entry.site, entry.number));
		benchmark::DoNotOptimize(clid.get());
	});
	registerPerCountry(corpus, "gsm", dialled, [rules](const CorpusEntry& entry) {
		benchmark::DoNotOptimize(rules->makeGSMCanonicalNumber(entry.site, entry.number, false));
	});
	registerPerCountry(corpus, "format", canonical, [rules](const CorpusEntry& entry) {
		benchmark::DoNotOptimize(rules->formatCanonicalNumber(entry.canonical, ""));
	});
	const std::vector<CorpusEntry>* mixed = &corpus.dialled(BenchCorpus::MIXED);
	benchmark::RegisterBenchmark("threads/canonical/mixed",
		[mixed, makeCanonical](benchmark::State& state) { runOver(state, *mixed, makeCanonical); })
		->Threads(1)
		->Threads(2)
		->UseRealTime();
}

} // namespace bench
} // namespace numbering
