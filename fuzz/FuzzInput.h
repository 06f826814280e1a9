// FuzzInput.h
// Reads the fuzzer's bytes as control bytes followed by texts.

#ifndef Numbering_FuzzInput_INCLUDED
#define Numbering_FuzzInput_INCLUDED

#include <cstddef>
#include <cstdint>
#include <string>

namespace numbering {
namespace fuzz {

/// A cursor over one fuzz input. Control bytes are taken from the front; reading past the end gives 0 and
/// empty texts, so every input, the empty one included, is a valid test case.
class FuzzInput
{
public:
	FuzzInput(const std::uint8_t* data, std::size_t size);

	/// The next byte, or 0 at the end.
	std::uint8_t byte();

	/// The bytes up to the next separator (which is skipped), or the rest when there is none.
	std::string textUntil(char separator);

	/// All the bytes not read yet.
	std::string rest();

private:
	const std::uint8_t* m_Data;
	std::size_t m_Size;
	std::size_t m_Position = 0;
};

} // namespace fuzz
} // namespace numbering

#endif // Numbering_FuzzInput_INCLUDED
