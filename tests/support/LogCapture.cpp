// LogCapture.cpp

#include "support/LogCapture.h"

#include "numbering/Logger.h"

#include <mutex>

bool Logger::m_Traces = false;

namespace {

std::mutex captureMutex;
std::vector<std::string> capturedLines;
std::vector<short> capturedLevels;

} // namespace

extern "C" void FlogWrite(const char* text, short level)
{
	std::lock_guard<std::mutex> lock(captureMutex);
	capturedLines.emplace_back(text);
	capturedLevels.push_back(level);
}

namespace numbering {
namespace test {

void LogCapture::clear()
{
	std::lock_guard<std::mutex> lock(captureMutex);
	capturedLines.clear();
	capturedLevels.clear();
}

std::vector<std::string> LogCapture::lines()
{
	std::lock_guard<std::mutex> lock(captureMutex);
	return capturedLines;
}

std::vector<short> LogCapture::levels()
{
	std::lock_guard<std::mutex> lock(captureMutex);
	return capturedLevels;
}

std::vector<std::string> LogCapture::matching(const std::string& start)
{
	std::vector<std::string> result;
	for (const std::string& line : lines())
		if (line.rfind(start, 0) == 0) result.push_back(line);
	return result;
}

} // namespace test
} // namespace numbering
