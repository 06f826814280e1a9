// CanonicalSitesFixture.h
// Test fixture: a configuration with Germany, Spain, Italy, Portugal and Colombia, and one site in each.

#ifndef Numbering_CanonicalSitesFixture_INCLUDED
#define Numbering_CanonicalSitesFixture_INCLUDED

#include "numbering/ZelDialRulesItem.h"
#include "numbering/ZelNumberingRules.h"

#include "support/ConfigFixture.h"

#include <map>
#include <memory>
#include <string>

namespace numbering {
namespace test {

/// Writes the dialing rules, a German mask "+C (A) xxx xxxx", a German area-code table (30, 89, 221, 7071) and
/// the Colombian carrier codes 5 and 7, then builds the sites "Berlin" (external prefix 0, local length 5,
/// area 30, exception numbers 11...), "BerlinDirect" (the same without external prefix), "Madrid", "Rome",
/// "Lisbon" and "Bogota" (prefix 0, length 5), and "Unconfigured", a default record whose country "FR" the
/// configuration does not know. Germany and Colombia have plans; Spain (no trunk prefix), Italy (trunk 0) and
/// Portugal (local and national numbers not told apart) have none. The log is cleared once all is loaded.
class CanonicalSitesFixture: public ConfigFixture
{
protected:
	void SetUp() override;

	void TearDown() override;

	/// The named site, or null for "none".
	ZelDialRulesItem* site(const std::string& name) const;

	static ZelNumberingRules* rules();

private:
	std::map<std::string, std::unique_ptr<ZelDialRulesItem>> m_Sites;
};

} // namespace test
} // namespace numbering

#endif // Numbering_CanonicalSitesFixture_INCLUDED
