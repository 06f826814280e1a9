// conversion_main.cpp
// numbering-conversion-bench: every conversion of the corpus per country and mixed, beside the general-purpose
// phone-number library when it was found at build time.

#include "numbering/ZelNumberingConfig.h"
#include "numbering/ZelNumberingRules.h"

#include "BenchCorpus.h"
#include "BenchHost.h"
#include "ConversionBenchmarks.h"
#ifdef NUMBERING_BENCH_PHONENUMBER
#include "PhoneNumberBenchmarks.h"
#endif

#include <benchmark/benchmark.h>

#include <iostream>

int main(int argc, char** argv)
{
	using namespace numbering;
	benchmark::Initialize(&argc, argv);
	if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
	ZelNumberingConfig::setConfigDirectory(NUMBERING_SAMPLE_CONFIG_DIR);
	ZelNumberingRules* rules = ZelNumberingRules::getInstance();
	bench::BenchCorpus corpus(NUMBERING_BENCH_CORPUS_DIR);
	corpus.warmUp(*rules);
	std::cerr << "corpus: " << corpus.dialled(bench::BenchCorpus::MIXED).size() << " numbers, "
			  << corpus.canonical(bench::BenchCorpus::MIXED).size()
			  << " canonical; log lines while warming up: " << bench::BenchHost::logLines() << '\n';
	bench::registerConversionBenchmarks(corpus, rules);
#ifdef NUMBERING_BENCH_PHONENUMBER
	bench::registerPhoneNumberBenchmarks(corpus);
#endif
	benchmark::RunSpecifiedBenchmarks();
	benchmark::Shutdown();
	ZelNumberingRules::resetInstance();
	return 0;
}
