// Logger.cpp

#include "numbering/Logger.h"

#include <utility>

Logger* Logger::getLogger(std::string name)
{
	// Every call hands out a new Logger, never deleted; callers keep the one they get.
	return new Logger(std::move(name));
}

Logger::Logger(std::string name):
	m_Name(std::move(name))
{
}

Logger::~Logger() = default;

void Logger::error(std::string message)
{
	write("ERROR ", message);
}

void Logger::debug(std::string message)
{
	write("DEBUG ", message);
}

void Logger::info(std::string message)
{
	write("INFO ", message);
}

const std::string& Logger::getName() const
{
	return m_Name;
}

void Logger::write(const char* level, const std::string& message)
{
	// The level word inside the text is the only distinction the sink gets: every line goes out at level 1.
	FlogWrite((level + m_Name + " - " + message).c_str(), 1);
}
