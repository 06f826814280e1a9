// LogCapture.cpp

#include "support/LogCapture.h"

#include "numbering/Logger.h"

#include <algorithm>
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

int LogCapture::count(const std::string& text)
{
	std::lock_guard<std::mutex> lock(captureMutex);
	return static_cast<int>(std::count_if(capturedLines.begin(), capturedLines.end(),
		[&text](const std::string& line) { return line.find(text) != std::string::npos; }));
}

std::vector<std::string> LogCapture::matching(const std::string& start, const std::string& text)
{
	std::vector<std::string> result;
	for (const std::string& line : lines())
		if (line.rfind(start, 0) == 0 && line.find(text) != std::string::npos) result.push_back(line);
	return result;
}

std::vector<std::string> LogCapture::messages()
{
	std::vector<std::string> result;
	for (const std::string& line : lines())
		result.push_back(line.substr(line.find(" - ") + 3));
	return result;
}

} // namespace test
} // namespace numbering
