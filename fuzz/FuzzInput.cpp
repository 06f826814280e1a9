// FuzzInput.cpp

#include "FuzzInput.h"

#include <algorithm>

namespace numbering {
namespace fuzz {

FuzzInput::FuzzInput(const std::uint8_t* data, std::size_t size):
	m_Data(data),
	m_Size(size)
{
}

std::uint8_t FuzzInput::byte()
{
	return m_Position < m_Size ? m_Data[m_Position++] : 0;
}

std::string FuzzInput::textUntil(char separator)
{
	const std::uint8_t* begin = m_Data + m_Position;
	const std::uint8_t* end = m_Data + m_Size;
	const std::uint8_t* found = std::find(begin, end, static_cast<std::uint8_t>(separator));
	std::string text(begin, found);
	m_Position = found == end ? m_Size : m_Position + text.size() + 1;
	return text;
}

std::string FuzzInput::rest()
{
	std::string text(m_Data + m_Position, m_Data + m_Size);
	m_Position = m_Size;
	return text;
}

} // namespace fuzz
} // namespace numbering
