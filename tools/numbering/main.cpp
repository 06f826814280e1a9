// main.cpp
// Entry point of the numbering tool.

#include "numbering/ZelNumberingRules.h"

#include "NumberingApp.h"

#include "Poco/AutoPtr.h"
#include "Poco/Exception.h"

#include <iostream>

int main(int argc, char** argv)
{
	std::ios::sync_with_stdio(false);
	std::cin.tie(nullptr);
	Poco::AutoPtr<numbering::tool::NumberingApp> app = new numbering::tool::NumberingApp;
	try
	{
		app->init(argc, argv);
	}
	catch (const Poco::Exception& e)
	{
		// Unknown options, missing or invalid option values.
		return numbering::tool::NumberingApp::usageError(e.displayText());
	}
	const int status = app->run();
	numbering::ZelNumberingRules::resetInstance();
	return status;
}
