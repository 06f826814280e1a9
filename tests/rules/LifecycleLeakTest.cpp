// LifecycleLeakTest.cpp

#include "numbering/ZelCountryRuleItem.h"
#include "numbering/ZelNumberingRules.h"

#include "SampleSitesFixture.h"
#include "dialable/ZelDialable.h"
#include "plans/ZelCNP.h"
#include "trees/ZelAreaCodeTree.h"
#include "trees/ZelCharsTreeElement.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

using numbering::ZelAreaCodeTree;
using numbering::ZelCharsTreeElement;
using numbering::ZelCNP;
using numbering::ZelCountryRuleItem;
using numbering::ZelDialable;
using numbering::ZelNumberingRules;
using numbering::test::SampleSitesFixture;

namespace {

struct LiveCount
{
	const char* what;
	const int& count;
};

// ZelClid::_count is left out: it counts constructions, not live records. LeakSanitizer watches those.
const std::vector<LiveCount> liveCounts{{"plans", ZelCNP::_count}, {"dialable makers", ZelDialable::_count},
	{"country rules", ZelCountryRuleItem::_count}, {"area-code trees", ZelAreaCodeTree::_count},
	{"tree elements", ZelCharsTreeElement::_count}};

using LifecycleLeakTest = SampleSitesFixture;

// Run under LeakSanitizer by scripts/sanitize.sh, which also catches what the counters do not count.
TEST_F(LifecycleLeakTest, ResetReleasesEverythingTheConversionsBuilt)
{
	const std::vector<std::pair<numbering::ZelDialRulesItem*, std::string>> work = workload();
	for (int round = 0; round < 3; ++round)
	{
		SCOPED_TRACE("round " + std::to_string(round));
		for (const auto& item : work)
			convertAll(item.first, item.second);
		for (const LiveCount& live : liveCounts)
		{
			// Without this the test could pass by building nothing.
			EXPECT_LT(0, live.count) << live.what << " before the reset";
		}
		ZelNumberingRules::resetInstance();
		for (const LiveCount& live : liveCounts)
			EXPECT_EQ(0, live.count) << live.what << " after the reset";
	}
}

} // namespace
