// main.cpp
// numbering-corpus-generator: writes the benchmark corpus of every plan country into a directory.

#include "CorpusGenerator.h"

#include "Poco/Exception.h"

#include <exception>
#include <iostream>

namespace {

/// Numbers per country: enough to visit most shapes and area-code lengths, small enough to commit.
const int NUMBERS_PER_COUNTRY = 300;

} // namespace

int main(int argc, char** argv)
{
	if (argc != 3)
	{
		std::cerr << "usage: numbering-corpus-generator CONFIG_DIRECTORY OUTPUT_DIRECTORY\n";
		return 2;
	}
	try
	{
		numbering::corpus::CorpusGenerator generator(argv[1]);
		for (const auto& profile : numbering::corpus::CountryProfile::planCountries())
			generator.write(profile, argv[2], NUMBERS_PER_COUNTRY);
		return 0;
	}
	catch (const Poco::Exception& e)
	{
		std::cerr << "numbering-corpus-generator: " << e.displayText() << '\n';
		return 1;
	}
	catch (const std::exception& e)
	{
		std::cerr << "numbering-corpus-generator: " << e.what() << '\n';
		return 1;
	}
}
