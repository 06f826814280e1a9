// ConfigFile.cpp

#include "ConfigFile.h"

#include "Poco/Exception.h"
#include "Poco/File.h"
#include "Poco/FileStream.h"
#include "Poco/Path.h"

namespace numbering {
namespace tool {

namespace {

/// The properties at path, or null when the library could not open them either.
Poco::AutoPtr<Poco::Util::PropertyFileConfiguration> open(const std::string& path)
{
	try
	{
		// The library refuses a directory before its property reader sees it.
		if (Poco::File(path).isDirectory()) return nullptr;
		return new Poco::Util::PropertyFileConfiguration(path);
	}
	catch (const Poco::FileNotFoundException&)
	{
	}
	catch (const Poco::OpenFileException&)
	{
	}
	return nullptr;
}

PropertyLines linesOf(const std::string& path)
{
	Poco::FileInputStream in(path);
	return PropertyLines(in);
}

std::string fileName(const std::string& path)
{
	return Poco::Path(path).getFileName();
}

} // namespace

ConfigFile::ConfigFile(const std::string& sitePath, const std::string& defaultPath):
	m_SitePath(sitePath),
	m_DefaultPath(defaultPath)
{
	for (const std::string* candidate : {&m_SitePath, &m_DefaultPath})
	{
		m_Properties = open(*candidate);
		if (m_Properties.isNull()) continue;
		m_Path = *candidate;
		m_Lines = linesOf(m_Path);
		break;
	}
}

bool ConfigFile::exists() const
{
	return !m_Properties.isNull();
}

const std::string& ConfigFile::path() const
{
	return m_Path;
}

const std::string& ConfigFile::sitePath() const
{
	return m_SitePath;
}

void ConfigFile::addFilesTo(LintReport& report) const
{
	report.addFile(m_SitePath);
	report.addFile(m_DefaultPath);
}

const Poco::Util::AbstractConfiguration& ConfigFile::properties() const
{
	return *m_Properties;
}

std::vector<std::string> ConfigFile::keys() const
{
	return m_Lines.keys();
}

std::string ConfigFile::valueOf(const std::string& key) const
{
	return m_Properties->getString(key);
}

int ConfigFile::lineOf(const std::string& key) const
{
	return m_Lines.lineOf(key);
}

void ConfigFile::reportFiles(LintReport& report) const
{
	const bool siteExists = Poco::File(m_SitePath).exists();
	const bool defaultExists = Poco::File(m_DefaultPath).exists();
	if (m_Path == m_SitePath && defaultExists)
		report.add(m_DefaultPath, 0, LintReport::SHADOWED, "not read: " + fileName(m_SitePath) + " comes first");
	else if (m_Path == m_SitePath)
		report.add(m_SitePath, 0, LintReport::STYLE, "has no default twin " + fileName(m_DefaultPath));
	else if (siteExists)
		report.add(m_SitePath, 0, LintReport::SKIPPED,
			"cannot be opened: " + (exists() ? fileName(m_DefaultPath) + " is read instead" : "nothing is read"));
	for (const auto& [key, lines] : m_Lines.repeatedKeys())
		for (std::size_t i = 0; i + 1 < lines.size(); ++i)
			report.add(m_Path, lines[i], LintReport::SKIPPED,
				"'" + key + "' is written again on line " + std::to_string(lines.back()) + ": only that entry is read");
}

bool ConfigFile::walkAsLoader(LintReport& report, const Visit& visit) const
{
	Poco::Util::AbstractConfiguration::Keys keys;
	m_Properties->keys(keys);
	for (std::size_t i = 0; i < keys.size(); ++i)
	{
		try
		{
			visit(keys[i]);
		}
		catch (const Poco::Exception& e)
		{
			const std::size_t unread = keys.size() - i - 1;
			report.add(m_Path, lineOf(keys[i]), LintReport::SKIPPED,
				"the loader sees this key as '" + keys[i] + "' and cannot read it (" + e.displayText() +
					"), so it stops here" +
					(unread > 0
							? ": the keys after it in key order are not read (" + std::to_string(unread) + " in all)"
							: ""));
			return false;
		}
	}
	return true;
}

void ConfigFile::add(
	LintReport& report, const std::string& key, LintReport::Effect effect, const std::string& text) const
{
	report.add(m_Path, lineOf(key), effect, text);
}

} // namespace tool
} // namespace numbering
