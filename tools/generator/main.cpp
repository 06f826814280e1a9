// main.cpp
// numbering-sample-generator: writes the sample configuration set into a directory.

#include "SampleConfigGenerator.h"

#include "Poco/Exception.h"

#include <exception>
#include <iostream>

namespace {

const char* const ISO_CODES_JSON = "/usr/share/iso-codes/json/iso_3166-1.json";

} // namespace

int main(int argc, char** argv)
{
	if (argc != 2)
	{
		std::cerr << "usage: numbering-sample-generator OUTPUT_DIRECTORY\n";
		return 2;
	}
	try
	{
		numbering::generator::SampleConfigGenerator(ISO_CODES_JSON, argv[1]).run(std::cout);
		return 0;
	}
	catch (const Poco::Exception& e)
	{
		std::cerr << "numbering-sample-generator: " << e.displayText() << '\n';
		return 1;
	}
	catch (const std::exception& e)
	{
		std::cerr << "numbering-sample-generator: " << e.what() << '\n';
		return 1;
	}
}
