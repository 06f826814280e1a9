// NumberSource.cpp

#include "NumberSource.h"

#include <algorithm>
#include <cctype>

namespace numbering {
namespace tool {

namespace {

bool isBlank(const std::string& line)
{
	return std::all_of(line.begin(), line.end(), [](unsigned char c) { return std::isspace(c); });
}

} // namespace

NumberSource::NumberSource(const std::vector<std::string>& arguments, std::istream& input):
	m_Arguments(arguments),
	m_Input(input)
{
}

bool NumberSource::next(std::string& number)
{
	if (m_Arguments.empty()) return nextLine(number);
	if (m_Index >= m_Arguments.size()) return false;
	number = m_Arguments[m_Index++];
	return true;
}

bool NumberSource::nextLine(std::string& number)
{
	while (std::getline(m_Input, number))
	{
		if (!number.empty() && number.back() == '\r') number.pop_back();
		if (!isBlank(number)) return true;
	}
	return false;
}

} // namespace tool
} // namespace numbering
