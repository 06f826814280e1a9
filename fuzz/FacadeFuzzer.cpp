// FacadeFuzzer.cpp
// libFuzzer target: every facade operation at one of a few sites, with the fuzzer's bytes as number and pattern.
//
// Input, read with libFuzzer's FuzzedDataProvider: from the end a site byte, a flag byte (traces, withExtPrefix,
// country of a made-up site), the local and exception lengths of a made-up site; from the front the number, the
// pattern and, for a made-up site, its external prefix and area codes, each ended by a backslash and another
// character ("\\" is a backslash), then its exception beginning.

#include "numbering/Logger.h"
#include "numbering/ZelDialRulesItem.h"
#include "numbering/ZelNumberingConfig.h"
#include "numbering/ZelNumberingRules.h"

#include "FacadeExercise.h"

#include <cstddef>
#include <cstdint>
#include <fuzzer/FuzzedDataProvider.h>
#include <string>
#include <vector>

using numbering::ZelDialRulesItem;
using numbering::ZelNumberingConfig;
using numbering::ZelNumberingRules;

namespace {

// Built once the configuration is known: a site's country must be in it.
std::vector<ZelDialRulesItem> sites;

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
	ZelNumberingConfig::setConfigDirectory(NUMBERING_SAMPLE_CONFIG_DIR);
	ZelNumberingRules::getInstance();
	// Sites in plan countries of every kind, a country without a plan, and one with several area codes and
	// exception numbers.
	sites = {{"DE", "0", 5, "30", 0, ""}, {"FR", "0", 5, "1", 0, ""}, {"GB", "9", 4, "20", 0, ""},
		{"US", "9", 5, "212", 0, ""}, {"CO", "0", 5, "1", 0, ""}, {"MX", "0", 5, "55", 0, ""},
		{"AU", "0", 5, "2", 0, ""}, {"RU", "9", 5, "495", 0, ""}, {"AR", "0", 5, "11", 0, ""},
		{"CH", "0", 4, "44", 0, ""}, {"NZ", "0", 5, "9", 0, ""}, {"AT", "0", 4, "1", 0, ""}, {"IE", "9", 4, "1", 0, ""},
		{"ES", "0", 5, "", 0, ""}, {"DE", "", 0, " 89, 30,,8031 ", 3, "11"}};
	return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
	FuzzedDataProvider input(data, size);
	const std::size_t choice = input.ConsumeIntegral<std::uint8_t>() % (sites.size() + 2);
	const auto flags = input.ConsumeIntegral<std::uint8_t>();
	const int localLength = input.ConsumeIntegral<std::int8_t>();
	const int exceptLength = input.ConsumeIntegral<std::int8_t>();
	const std::string number = input.ConsumeRandomLengthString();
	const std::string pattern = input.ConsumeRandomLengthString();
	Logger::m_Traces = (flags & 1) != 0;

	// One choice more than there are sites is no site, two more a made-up site.
	ZelDialRulesItem madeUp(sites[(flags >> 2) % sites.size()].getCountryId(), "", 0, "", 0, "");
	ZelDialRulesItem* site = choice < sites.size() ? &sites[choice] : nullptr;
	if (choice == sites.size() + 1)
	{
		madeUp.setExtPrefix(input.ConsumeRandomLengthString());
		madeUp.setAreaCode(input.ConsumeRandomLengthString());
		madeUp.setExceptNbBegin(input.ConsumeRemainingBytesAsString());
		madeUp.setLocalNbLength(localLength);
		madeUp.setExceptNbLength(exceptLength);
		site = &madeUp;
	}
	numbering::fuzz::exerciseFacade(ZelNumberingRules::getInstance(), site, number, pattern, (flags & 2) != 0);
	return 0;
}
