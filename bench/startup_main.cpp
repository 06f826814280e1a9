// startup_main.cpp
// numbering-startup-bench: the facade's start-up on the full sample configuration with the first German
// conversion, and the construction of the German plan with its full area-code table, in time and heap bytes.

#include "numbering/ZelDialRulesItem.h"
#include "numbering/ZelNumberingConfig.h"
#include "numbering/ZelNumberingRules.h"

#include "BenchHost.h"
#include "HeapCounter.h"
#include "plans/ZelCNP_49.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace {

using numbering::ZelDialRulesItem;
using numbering::ZelNumberingRules;
using numbering::bench::HeapCounter;

/// getInstance(), a site in Berlin and its first conversion: what a host pays before its first German call.
std::string startAndConvert()
{
	ZelNumberingRules* rules = ZelNumberingRules::getInstance();
	ZelDialRulesItem site("DE", "9", 5, "30", 0, "");
	return rules->makeCanonicalNumber(&site, "089 1234567", "");
}

void startUp(benchmark::State& state)
{
	for (auto _ : state)
	{
		state.PauseTiming();
		ZelNumberingRules::resetInstance();
		state.ResumeTiming();
		benchmark::DoNotOptimize(startAndConvert());
	}
	ZelNumberingRules::resetInstance();
	const std::size_t before = HeapCounter::liveBytes();
	startAndConvert();
	state.counters["heap_bytes"] = static_cast<double>(HeapCounter::liveBytes() - before);
	ZelNumberingRules::resetInstance();
}

void germanPlan(benchmark::State& state)
{
	ZelNumberingRules::getInstance();
	for (auto _ : state)
	{
		auto* plan = new numbering::ZelCNP_49();
		benchmark::DoNotOptimize(plan);
		plan->release();
	}
	const std::size_t bytesBefore = HeapCounter::liveBytes();
	const std::size_t blocksBefore = HeapCounter::liveBlocks();
	auto* plan = new numbering::ZelCNP_49();
	state.counters["heap_bytes"] = static_cast<double>(HeapCounter::liveBytes() - bytesBefore);
	state.counters["heap_blocks"] = static_cast<double>(HeapCounter::liveBlocks() - blocksBefore);
	plan->release();
	ZelNumberingRules::resetInstance();
}

} // namespace

BENCHMARK(startUp)->Name("startup/getInstance+first_DE")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(germanPlan)->Name("startup/plan_DE")->Unit(benchmark::kMillisecond)->UseRealTime();

int main(int argc, char** argv)
{
	benchmark::Initialize(&argc, argv);
	if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
	numbering::ZelNumberingConfig::setConfigDirectory(NUMBERING_SAMPLE_CONFIG_DIR);
	benchmark::RunSpecifiedBenchmarks();
	benchmark::Shutdown();
	return 0;
}
