// PhoneNumberBenchmarks.cpp

#include "PhoneNumberBenchmarks.h"

#include "BenchLoop.h"

#include <benchmark/benchmark.h>

#include <phonenumbers/phonenumber.pb.h>
#include <phonenumbers/phonenumberutil.h>

namespace numbering {
namespace bench {

void registerPhoneNumberBenchmarks(const BenchCorpus& corpus)
{
	using i18n::phonenumbers::PhoneNumber;
	using i18n::phonenumbers::PhoneNumberUtil;
	PhoneNumberUtil* util = PhoneNumberUtil::GetInstance();
	auto dialled = [&corpus](
					   const std::string& name) -> const std::vector<CorpusEntry>& { return corpus.dialled(name); };
	auto canonical = [&corpus](
						 const std::string& name) -> const std::vector<CorpusEntry>& { return corpus.canonical(name); };
	// A number that fails to parse still costs its parse, as it would in a host; its output stays empty.
	registerPerCountry(corpus, "lpn_e164", dialled, [util](const CorpusEntry& entry) {
		PhoneNumber number;
		std::string formatted;
		if (util->Parse(entry.number, entry.region, &number) == PhoneNumberUtil::NO_PARSING_ERROR)
			util->Format(number, PhoneNumberUtil::E164, &formatted);
		benchmark::DoNotOptimize(formatted);
	});
	registerPerCountry(corpus, "lpn_outofcountry", canonical, [util](const CorpusEntry& entry) {
		PhoneNumber number;
		std::string formatted;
		if (util->Parse(entry.canonical, entry.region, &number) == PhoneNumberUtil::NO_PARSING_ERROR)
			util->FormatOutOfCountryCallingNumber(number, entry.region, &formatted);
		benchmark::DoNotOptimize(formatted);
	});
}

} // namespace bench
} // namespace numbering
