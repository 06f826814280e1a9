// ConfigFixture.cpp

#include "support/ConfigFixture.h"

#include "numbering/Logger.h"
#include "numbering/ZelNumberingConfig.h"
#include "numbering/ZelNumberingRules.h"

#include "support/LogCapture.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace numbering {
namespace test {

void ConfigFixture::SetUp()
{
	std::string pattern = (std::filesystem::temp_directory_path() / "numbering-test-XXXXXX").string();
	ASSERT_NE(nullptr, ::mkdtemp(pattern.data()));
	m_Dir = pattern + "/";
	resetLibrary();
	ZelNumberingConfig::setConfigDirectory(m_Dir);
	m_SavedTraces = Logger::m_Traces;
	LogCapture::clear();
}

void ConfigFixture::TearDown()
{
	resetLibrary();
	Logger::m_Traces = m_SavedTraces;
	std::error_code ignored;
	std::filesystem::remove_all(m_Dir, ignored);
}

void ConfigFixture::writeFile(const std::string& name, const std::string& content)
{
	std::ofstream out(m_Dir + name, std::ios::binary);
	out << content;
	ASSERT_TRUE(out.good()) << "cannot write " << m_Dir << name;
}

const std::string& ConfigFixture::configDir() const
{
	return m_Dir;
}

void ConfigFixture::resetLibrary()
{
	ZelNumberingRules::resetInstance();
}

std::string ConfigFixture::areaCodeTable(const std::string& head, const std::vector<std::string>& codes)
{
	std::string text = head;
	char key[32];
	for (std::size_t index = 0; index < codes.size(); ++index)
	{
		std::snprintf(key, sizeof(key), "AC_%04zu=", index);
		text += key + codes[index] + "\n";
	}
	return text;
}

} // namespace test
} // namespace numbering
