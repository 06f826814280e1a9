// ConfigFuzzer.cpp
// libFuzzer target: the fuzzer's bytes as one configuration file, loaded afresh, then a few numbers converted.
//
// Input, read with libFuzzer's FuzzedDataProvider: from the end a byte choosing the file (dialing rules, masks,
// activation, an area-code table, the Colombian operator file), a byte choosing the table's country, a byte
// switching traces (bit 0) and choosing the first of the numbers converted (the other bits); the bytes before them
// are the file's content. The file is written under the site's own name beside a small complete set of "_default"
// files, so it takes their place.

#include "numbering/Logger.h"
#include "numbering/ZelDialRulesItem.h"
#include "numbering/ZelNumberingConfig.h"
#include "numbering/ZelNumberingRules.h"

#include "FacadeExercise.h"

#include "Poco/File.h"
#include "Poco/Path.h"
#include "Poco/TemporaryFile.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <fuzzer/FuzzedDataProvider.h>
#include <iterator>
#include <string>

using numbering::ZelDialRulesItem;
using numbering::ZelNumberingConfig;
using numbering::ZelNumberingRules;

namespace {

const char* const dialingRules = "AR=54:00:EFG:0FG:G:Argentina:P\n"
								 "AT=43:00:EFG:0FG:G:Austria:P\n"
								 "AU=61:0011:EFG:0FG:G:Australia:P\n"
								 "CO=57:00:EFG:0FG:G:Colombia:P\n"
								 "DE=49:00:EFG:0FG:G:Germany:P\n"
								 "ES=34:00:EFG:FG:FG:Spain:P\n"
								 "FR=33:00:EFG:0FG:0FG:France:P\n"
								 "GB=44:00:EFG:0FG:G:United Kingdom:P\n"
								 "IE=353:00:EFG:0FG:G:Ireland:P\n"
								 "NL=31:00:EFG:0FG:G:Netherlands:P\n"
								 "RU=7:810:EFG:8FG:G:Russian Federation:P\n"
								 "KZ=7:810:EFG:8FG:G:Kazakhstan\n"
								 "US=1:011:EFG:1FG:G:United States:P\n";

const char* const masks = "Mask_33_1=+C ax xx xx xx xx\nMask_49_1=+C (A) x\nMask_57_1=+C (A) x\n";

const char* const activation = "cnp_1=true\ncnp_7=true\ncnp_31=true\ncnp_33=true\ncnp_43=true\ncnp_44=true\n"
							   "cnp_49=true\ncnp_54=true\ncnp_57=true\ncnp_61=true\ncnp_353=true\n";

struct TableRow
{
	const char* countryNumber;
	const char* siteCountry;
	const char* siteArea;
	const char* content;
};

// The countries whose plans read an area-code table, each with a site and a short table.
const TableRow tables[] = {{"49", "DE", "30", "Translate=1\nAC_0000=30\nAC_0001=89\nAC_0002=8031\nAC_0003=151\n"},
	{"44", "GB", "20", "Translate=1\nAC_0000=20\nAC_0001=161\nAC_0002=1632\n"},
	{"61", "AU", "2", "Translate=1\nAC_0000=2\nAC_0001=3\nAC_0002=7\nAC_0003=8\n"},
	{"54", "AR", "11", "Translate=1\nAC_0000=11\nAC_0001=221\nAC_0002=2221\n"},
	{"43", "AT", "1", "Translate=0\nAC_0000=1\nAC_0001=316\nAC_0002=662\n"},
	{"31", "NL", "20", "AC_0000=20\nAC_0001=10\nAC_0002=6\n"},
	{"353", "IE", "1", "Translate=1\nAC_0000=1\nAC_0001=21\nAC_0002=91\n"}};

const TableRow colombia = {"57", "CO", "1", "OP_DEFAULT=9\nOP_0000=5\nOP_0001=7\nOP_0002=9\n"};

// Three consecutive numbers of this list are converted per input: all of them would slow the fuzzer down.
const char* const numbers[] = {"030 1234567", "+49 89 1234567", "0049 8031 12345", "0151 12345678", "+44 20 7946 0123",
	"0011 61 2 9876 5432", "+54 11 4321 5678", "0 221 456 7890", "+57 1 234 5678", "09 1 2345678", "+7 495 1234567",
	"+33 1 23 45 67 89", "+34 912 345 678", "1234", "+43 316 123456", "+31 20 123 4567", "+353 1 234 5678"};

std::string configDir;

void writeFile(const std::string& name, const std::string& content)
{
	std::ofstream(configDir + name, std::ios::binary | std::ios::trunc) << content;
}

/// The file name the fuzzed content is written to, and the table whose site converts the numbers.
const TableRow& chooseFile(std::uint8_t kind, std::uint8_t tableChoice, std::string& name)
{
	const char* const configurationFiles[] = {"dialingrules", "qap_cnp_mask", "specific_format_activation"};
	const TableRow& table = tables[tableChoice % std::size(tables)];
	const TableRow& chosen = kind % 5 == 4 ? colombia : table;
	name = kind % 5 < 3 ? configurationFiles[kind % 5] : std::string("r7731cnp_") + chosen.countryNumber;
	name += ".properties";
	return chosen;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
	configDir = Poco::Path(Poco::TemporaryFile::tempName()).toString() + "/";
	Poco::File(configDir).createDirectories();
	std::atexit([] { Poco::File(configDir).remove(true); });
	writeFile("dialingrules_default.properties", dialingRules);
	writeFile("qap_cnp_mask_default.properties", masks);
	writeFile("specific_format_activation_default.properties", activation);
	for (const TableRow& row : tables)
	{
		writeFile(std::string("r7731cnp_") + row.countryNumber + "_default.properties", row.content);
	}
	writeFile("r7731cnp_57_default.properties", colombia.content);
	ZelNumberingConfig::setConfigDirectory(configDir);
	return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
	FuzzedDataProvider input(data, size);
	const auto kind = input.ConsumeIntegral<std::uint8_t>();
	const auto tableChoice = input.ConsumeIntegral<std::uint8_t>();
	const auto flags = input.ConsumeIntegral<std::uint8_t>();
	Logger::m_Traces = (flags & 1) != 0;
	std::string name;
	const TableRow& row = chooseFile(kind, tableChoice, name);
	writeFile(name, input.ConsumeRemainingBytesAsString());

	ZelNumberingRules* rules = ZelNumberingRules::getInstance();
	rules->getCountryList();
	// A site in the country, or in the default country when the loaded dialing rules do not know it.
	ZelDialRulesItem site;
	numbering::fuzz::allowingStdExceptions([&] { site.setCountryId(row.siteCountry); });
	site.setExtPrefix("0");
	site.setLocalNbLength(5);
	site.setAreaCode(row.siteArea);
	for (std::size_t i = 0; i < 3; ++i)
		numbering::fuzz::exerciseFacade(rules, &site, numbers[((flags >> 1) + i) % std::size(numbers)], "", false);
	ZelNumberingRules::resetInstance();
	std::remove((configDir + name).c_str());
	return 0;
}
