// MorePlansRobustnessTest.cpp

#include "plans/MorePlansFixture.h"
#include "plans/ZelCNPFactory.h"

#include "Poco/AutoPtr.h"

#include <gtest/gtest.h>

namespace numbering {
namespace test {
namespace {

/// Inputs that no plan reads: each must come back unchanged, whatever the plan and the site.
const std::string UNREADABLE[] = {"", "0", "00", "000", "0000", std::string(3, '\0'), std::string("0\0\xff\x80", 4),
	"0" + std::string(16, '0'), "00" + std::string(200, '5'), "+++", "0(1) 2"};

/// Long inputs that some open plans read as local or national numbers: they must only be read safely.
const std::string LONG[] = {std::string(1000, '9'), "0" + std::string(1000, '1'), "9" + std::string(17, '0')};

const SiteSetup SITES[] = {{"FR", "1", "0"}, {"FR", "", ""}, {"FR", "1234567890123", "00000"}, {"FR", "22", "9"}};

class MorePlansRobustnessTest: public MorePlansFixture, public ::testing::WithParamInterface<const char*>
{
};

TEST_P(MorePlansRobustnessTest, ReadsOddNumbersSafely)
{
	configure(Setting::Sample);
	Poco::AutoPtr<ZelCNP> plan(ZelCNPFactory::CreateInstance(GetParam()));
	for (const SiteSetup& setup : SITES)
	{
		const std::unique_ptr<ZelDialRulesItem> site = makeSite(setup);
		for (const std::string& number : UNREADABLE)
			EXPECT_EQ(number, plan->qap_Country_MakeCanonicalNumber(number, site.get())) << siteName(setup);
		for (const std::string& number : LONG)
			EXPECT_NO_THROW(plan->qap_Country_MakeCanonicalNumber(number, site.get())) << siteName(setup);
	}
}

INSTANTIATE_TEST_SUITE_P(MorePlans,
	MorePlansRobustnessTest,
	::testing::Values("31", "32", "43", "44", "52", "54", "61", "353"),
	[](const ::testing::TestParamInfo<const char*>& info) { return std::string("Plan") + info.param; });

} // namespace
} // namespace test
} // namespace numbering
