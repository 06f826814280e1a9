// host.cpp
// The smallest host program: provides the trace sink and switch, then asks the library one question.

#include "numbering/numbering.h"

#include <iostream>

bool Logger::m_Traces = false;

extern "C" void FlogWrite(const char* text, short level)
{
	std::cerr << level << ' ' << text << '\n';
}

int main(int argc, char** argv)
{
	numbering::ZelNumberingConfig::setConfigDirectory(argc > 1 ? argv[1] : ".");
	std::cout << numbering::ZelNumberingConfig::getInstance()->getCountryCodeFromName("France") << std::endl;
	return 0;
}
