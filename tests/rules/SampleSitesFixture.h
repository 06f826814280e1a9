// SampleSitesFixture.h
// Test fixture: the sample configuration, a site in every plan country and a few others, and numbers to all.

#ifndef Numbering_SampleSitesFixture_INCLUDED
#define Numbering_SampleSitesFixture_INCLUDED

#include "numbering/ZelDialRulesItem.h"

#include "support/ConfigFixture.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace numbering {
namespace test {

/// Reads the sample configuration of the repository, so that every plan and every table is the real one.
class SampleSitesFixture: public ConfigFixture
{
protected:
	void SetUp() override;

	void TearDown() override;

	/// Every site paired with every number of the sample list and with the site's own national numbers.
	std::vector<std::pair<ZelDialRulesItem*, std::string>> workload();

	/// The country codes of the sites, in their order.
	static std::vector<std::string> siteCountries();

	/// The results of every conversion of number at site, joined by "|"; an exception thrown by an
	/// unguarded operation is part of the result.
	static std::string convertAll(ZelDialRulesItem* site, const std::string& number);

private:
	std::vector<std::unique_ptr<ZelDialRulesItem>> m_Sites;
};

} // namespace test
} // namespace numbering

#endif // Numbering_SampleSitesFixture_INCLUDED
