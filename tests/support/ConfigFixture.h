// ConfigFixture.h
// Test fixture: a fresh configuration directory per test, captured log lines, singletons reset afterwards.

#ifndef Numbering_ConfigFixture_INCLUDED
#define Numbering_ConfigFixture_INCLUDED

#include "numbering/Logger.h"
#include "numbering/ZelNumberingConfig.h"
#include "numbering/ZelNumberingRules.h"

#include "support/LogCapture.h"

#include "Poco/Format.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
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
	static std::string areaCodeTable(const std::string& head, const std::vector<std::string>& codes)
	{
		std::string text = head;
		for (std::size_t index = 0; index < codes.size(); ++index)
			text += Poco::format("AC_%04z=", index) + codes[index] + "\n";
		return text;
	}

protected:
	void SetUp() override
	{
		std::string pattern = (std::filesystem::temp_directory_path() / "numbering-test-XXXXXX").string();
		ASSERT_NE(nullptr, ::mkdtemp(pattern.data()));
		m_Dir = pattern + "/";
		resetLibrary();
		ZelNumberingConfig::setConfigDirectory(m_Dir);
		m_SavedTraces = Logger::m_Traces;
		LogCapture::clear();
	}

	void TearDown() override
	{
		resetLibrary();
		Logger::m_Traces = m_SavedTraces;
		std::error_code ignored;
		std::filesystem::remove_all(m_Dir, ignored);
	}

	/// Writes content to name inside the configuration directory.
	void writeFile(const std::string& name, const std::string& content)
	{
		std::ofstream out(m_Dir + name, std::ios::binary);
		out << content;
		ASSERT_TRUE(out.good()) << "cannot write " << m_Dir << name;
	}

	/// The configuration directory, ending with "/".
	const std::string& configDir() const
	{
		return m_Dir;
	}

	/// Releases every singleton of the library, so that the next use re-reads the files.
	static void resetLibrary()
	{
		ZelNumberingRules::resetInstance();
	}

private:
	std::string m_Dir;
	bool m_SavedTraces = false;
};

} // namespace test
} // namespace numbering

#endif // Numbering_ConfigFixture_INCLUDED
