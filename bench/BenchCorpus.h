// BenchCorpus.h
// The benchmark corpus: numbers dialled at a site of every plan country, with the sites and canonical forms.

#ifndef Numbering_BenchCorpus_INCLUDED
#define Numbering_BenchCorpus_INCLUDED

#include "numbering/ZelDialRulesItem.h"
#include "numbering/ZelNumberingRules.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace numbering {
namespace bench {

/// One corpus number: the site that dials it, its shape ("national", "mobile", ...) and its canonical form.
struct CorpusEntry
{
	ZelDialRulesItem* site;
	std::string region;
	std::string shape;
	std::string number;
	std::string canonical;
};

/// Every "<country>.txt" file of the corpus directory. Build it after the configuration has been loaded: the
/// site records check their country against it.
class BenchCorpus
{
public:
	explicit BenchCorpus(const std::string& directory);

	/// Makes every number canonical once, which builds every plan and dialable maker the corpus needs, so that
	/// the timed runs find them cached and threads share them read-only.
	void warmUp(ZelNumberingRules& rules);

	/// The country codes of the corpus files, in alphabetical order.
	const std::vector<std::string>& countries() const;

	/// The numbers of one country, or of all countries taken in turn for "mixed".
	const std::vector<CorpusEntry>& dialled(const std::string& country) const;

	/// The entries whose canonical form begins with "+", for the operations that start from one.
	const std::vector<CorpusEntry>& canonical(const std::string& country) const;

	/// Name of the whole corpus in dialled() and canonical().
	static const std::string MIXED;

private:
	void load(const std::string& path);
	void mix();

	std::vector<std::unique_ptr<ZelDialRulesItem>> m_Sites;
	std::vector<std::string> m_Countries;
	std::map<std::string, std::vector<CorpusEntry>> m_Dialled;
	std::map<std::string, std::vector<CorpusEntry>> m_Canonical;
};

} // namespace bench
} // namespace numbering

#endif // Numbering_BenchCorpus_INCLUDED
