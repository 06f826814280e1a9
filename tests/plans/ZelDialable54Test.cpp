// ZelDialable54Test.cpp

#include "numbering/ZelNumberingConfig.h"

#include "dialable/ZelDialable_54.h"
#include "plans/MorePlansFixture.h"
#include "support/LogCapture.h"
#include "support/RowName.h"

#include "Poco/AutoPtr.h"

#include <gtest/gtest.h>

namespace numbering {
namespace test {
namespace {

/// A number dialled by the Argentine maker at a site with area code siteArea (long-distance prefix 0).
struct DialRow
{
	const char* name;
	const char* siteArea;
	const char* areaNatPfx;
	const char* dest;
	const char* dialled;
};

// The worked examples dial the other cases back through the facade; these are the rows only the maker sees.
const DialRow DIALS[] = {
	{"FixedOfTheSiteArea", "11", "11", "43211234", "43211234"},
	{"MobileOfThreeDigitArea", "11", "9223", "4234567", "0223154234567"},
	{"MobileWithoutSiteArea", "", "", "91123456789", "0111523456789"},
};

class ZelDialable54Test: public MorePlansFixture, public ::testing::WithParamInterface<DialRow>
{
protected:
	void SetUp() override
	{
		MorePlansFixture::SetUp();
		configure(Setting::Sample);
	}

	Poco::AutoPtr<ZelDialable_54> m_Maker{new ZelDialable_54()};
};

TEST_P(ZelDialable54Test, DialsLongDistanceAndLocalAlike)
{
	const DialRow& row = GetParam();
	const std::unique_ptr<ZelDialRulesItem> site = makeSite(SiteSetup{"AR", row.siteArea, "0"});
	ZelCountryRuleItem* rule = ZelNumberingConfig::getInstance()->getCountryRule("AR");
	std::string area = row.areaNatPfx;
	std::string dest = row.dest;
	EXPECT_EQ(row.dialled, m_Maker->makeLongDistDialableNumber(area, dest, rule, site.get()));
	EXPECT_EQ(row.dialled, m_Maker->makeLocalDialableNumber(area, dest, rule, site.get()));
}

INSTANTIATE_TEST_SUITE_P(Argentina, ZelDialable54Test, ::testing::ValuesIn(DIALS), numbering::test::RowName());

class ZelDialable54FallbackTest: public MorePlansFixture
{
};

TEST_F(ZelDialable54FallbackTest, DialsAreaAndNumberWithoutArgentinePlan)
{
	writeFile("dialingrules.properties", "FR=33:00:EFG:0FG:G:France:P\n");
	const std::unique_ptr<ZelDialRulesItem> site = makeSite(SiteSetup{"FR", "1", "0"});
	ZelCountryRuleItem* rule = ZelNumberingConfig::getInstance()->getCountryRule("FR");
	Poco::AutoPtr<ZelDialable_54> maker(new ZelDialable_54());
	std::string area = "911";
	std::string dest = "23456789";
	Logger::m_Traces = true;
	LogCapture::clear();
	EXPECT_EQ("91123456789", maker->MakeLocalOrLongDistDialableNumber(area, dest, rule, site.get()));
	EXPECT_TRUE(LogCapture::contains("DEBUG N9numbering14ZelDialable_54E - "
									 "makeLocalOrLongDistDialableNumber(Argentina): not possible to strip the number"));
}

} // namespace
} // namespace test
} // namespace numbering
