// FacadeFuzzer.cpp
// libFuzzer target: every facade operation at one of a few sites, with the fuzzer's bytes as number and pattern.
//
// Input: a site byte, a flag byte (traces, withExtPrefix, country of a made-up site), the local and exception
// lengths of a made-up site, then the number, the pattern and, for a made-up site, its external prefix, area
// codes and exception beginning, separated by new lines.

#include "numbering/Logger.h"
#include "numbering/ZelDialRulesItem.h"
#include "numbering/ZelNumberingConfig.h"
#include "numbering/ZelNumberingRules.h"

#include "FacadeExercise.h"
#include "FuzzInput.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

using numbering::ZelDialRulesItem;
using numbering::ZelNumberingConfig;
using numbering::ZelNumberingRules;
using numbering::fuzz::FuzzInput;

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
	FuzzInput input(data, size);
	const std::size_t choice = input.byte() % (sites.size() + 2);
	const std::uint8_t flags = input.byte();
	const int localLength = static_cast<std::int8_t>(input.byte());
	const int exceptLength = static_cast<std::int8_t>(input.byte());
	const std::string number = input.textUntil('\n');
	const std::string pattern = input.textUntil('\n');
	Logger::m_Traces = (flags & 1) != 0;

	// One choice more than there are sites is no site, two more a made-up site.
	ZelDialRulesItem madeUp(sites[(flags >> 2) % sites.size()].getCountryId(), "", 0, "", 0, "");
	ZelDialRulesItem* site = choice < sites.size() ? &sites[choice] : nullptr;
	if (choice == sites.size() + 1)
	{
		madeUp.setExtPrefix(input.textUntil('\n'));
		madeUp.setAreaCode(input.textUntil('\n'));
		madeUp.setExceptNbBegin(input.rest());
		madeUp.setLocalNbLength(localLength);
		madeUp.setExceptNbLength(exceptLength);
		site = &madeUp;
	}
	numbering::fuzz::exerciseFacade(ZelNumberingRules::getInstance(), site, number, pattern, (flags & 2) != 0);
	return 0;
}
