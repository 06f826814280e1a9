// callgrind_main.cpp
// numbering-callgrind-bench <canonical|phone>: converts the mixed corpus once between callgrind's collection
// marks, so that scripts/callgrind.sh counts the instructions of the calls alone, warm-up excluded.

#include "numbering/ZelNumberingConfig.h"
#include "numbering/ZelNumberingRules.h"

#include "BenchCorpus.h"

#include <iostream>
#include <string>
#include <valgrind/callgrind.h>

namespace {

using numbering::ZelNumberingRules;
using numbering::bench::BenchCorpus;
using numbering::bench::CorpusEntry;

/// Runs convert over entries with collection on, and returns how many numbers it converted.
template <typename Convert>
std::size_t collect(const std::vector<CorpusEntry>& entries, Convert convert)
{
	std::size_t length = 0;
	CALLGRIND_TOGGLE_COLLECT;
	for (const CorpusEntry& entry : entries)
	{
		length += convert(entry).size();
	}
	CALLGRIND_TOGGLE_COLLECT;
	// The lengths keep the calls from being optimised away.
	std::cerr << "characters: " << length << '\n';
	return entries.size();
}

} // namespace

int main(int argc, char** argv)
{
	const std::string operation = argc == 2 ? argv[1] : "";
	if (operation != "canonical" && operation != "phone")
	{
		std::cerr << "usage: numbering-callgrind-bench canonical|phone\n";
		return 2;
	}
	numbering::ZelNumberingConfig::setConfigDirectory(NUMBERING_SAMPLE_CONFIG_DIR);
	ZelNumberingRules* rules = ZelNumberingRules::getInstance();
	BenchCorpus corpus(NUMBERING_BENCH_CORPUS_DIR);
	corpus.warmUp(*rules);
	const std::size_t numbers = operation == "canonical"
									? collect(corpus.dialled(BenchCorpus::MIXED),
										  [rules](const CorpusEntry& entry) {
											  return rules->makeCanonicalNumber(entry.site, entry.number, "");
										  })
									: collect(corpus.canonical(BenchCorpus::MIXED), [rules](const CorpusEntry& entry) {
										  return rules->makePhoneNumber(entry.site, entry.canonical);
									  });
	std::cout << numbers << '\n';
	ZelNumberingRules::resetInstance();
	return 0;
}
