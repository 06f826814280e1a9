// BenchCorpus.cpp

#include "BenchCorpus.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace numbering {
namespace bench {

const std::string BenchCorpus::MIXED = "mixed";

BenchCorpus::BenchCorpus(const std::string& directory)
{
	std::vector<std::string> paths;
	for (const auto& file : std::filesystem::directory_iterator(directory))
	{
		if (file.path().extension() == ".txt") paths.push_back(file.path().string());
	}
	std::sort(paths.begin(), paths.end());
	for (const std::string& path : paths)
		load(path);
	if (m_Countries.empty()) throw std::runtime_error("no corpus file in " + directory);
	mix();
}

void BenchCorpus::load(const std::string& path)
{
	std::ifstream in(path);
	std::string line;
	std::string country;
	while (std::getline(in, line))
	{
		if (line.empty() || line[0] == '#') continue;
		const std::string::size_type blank = line.find(' ');
		const std::string key = line.substr(0, blank);
		const std::string rest = blank == std::string::npos ? std::string() : line.substr(blank + 1);
		if (key == "site")
		{
			std::istringstream fields(rest);
			std::string extPrefix, area;
			int localLength = 0;
			fields >> country >> extPrefix >> localLength >> area;
			m_Sites.push_back(std::make_unique<ZelDialRulesItem>(country, extPrefix, localLength, area, 0, ""));
			m_Countries.push_back(country);
		}
		else if (!m_Sites.empty())
			m_Dialled[country].push_back({m_Sites.back().get(), country, key, rest, ""});
	}
}

void BenchCorpus::mix()
{
	// Country after country, one number each, as calls of a multi-country exchange arrive.
	std::vector<CorpusEntry>& mixed = m_Dialled[MIXED];
	for (std::size_t index = 0;; ++index)
	{
		const std::size_t before = mixed.size();
		for (const std::string& country : m_Countries)
		{
			const std::vector<CorpusEntry>& entries = m_Dialled[country];
			if (index < entries.size()) mixed.push_back(entries[index]);
		}
		if (mixed.size() == before) break;
	}
}

void BenchCorpus::warmUp(ZelNumberingRules& rules)
{
	for (auto& [name, entries] : m_Dialled)
	{
		std::vector<CorpusEntry>& canonical = m_Canonical[name];
		for (CorpusEntry& entry : entries)
		{
			entry.canonical = rules.makeCanonicalNumber(entry.site, entry.number, "");
			if (!entry.canonical.empty() && entry.canonical[0] == '+') canonical.push_back(entry);
		}
	}
}

const std::vector<std::string>& BenchCorpus::countries() const
{
	return m_Countries;
}

const std::vector<CorpusEntry>& BenchCorpus::dialled(const std::string& country) const
{
	return m_Dialled.at(country);
}

const std::vector<CorpusEntry>& BenchCorpus::canonical(const std::string& country) const
{
	return m_Canonical.at(country);
}

} // namespace bench
} // namespace numbering
