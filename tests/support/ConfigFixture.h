// ConfigFixture.h
// Test fixture: a fresh configuration directory per test, captured log lines, singletons reset afterwards.

#ifndef Numbering_ConfigFixture_INCLUDED
#define Numbering_ConfigFixture_INCLUDED

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace numbering {
namespace test {

/// Points the library at a new temporary directory, clears the captured log and saves Logger::m_Traces in
/// SetUp; resets the library's singletons, restores the switch and removes the directory in TearDown.
class ConfigFixture: public ::testing::Test
{
public:
	/// An area-code table file: head, then the entries AC_0000=codes[0], AC_0001=codes[1], ...
	static std::string areaCodeTable(const std::string& head, const std::vector<std::string>& codes);

protected:
	void SetUp() override;

	void TearDown() override;

	/// Writes content to name inside the configuration directory.
	void writeFile(const std::string& name, const std::string& content);

	/// The configuration directory, ending with "/".
	const std::string& configDir() const;

	/// Releases every singleton of the library, so that the next use re-reads the files.
	static void resetLibrary();

private:
	std::string m_Dir;
	bool m_SavedTraces = false;
};

} // namespace test
} // namespace numbering

#endif // Numbering_ConfigFixture_INCLUDED
