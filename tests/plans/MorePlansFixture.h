// MorePlansFixture.h
// Test fixture of the Dutch, Belgian, Austrian, British, Irish, Australian, Mexican and Argentine plans.

#ifndef Numbering_MorePlansFixture_INCLUDED
#define Numbering_MorePlansFixture_INCLUDED

#include "numbering/ZelDialRulesItem.h"

#include "plans/ZelCNP.h"
#include "support/ConfigFixture.h"

#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>

namespace numbering {
namespace test {

/// A site as the worked examples write it: country, area-code list, external prefix (local length 5).
struct SiteSetup
{
	const char* country;
	const char* areas;
	const char* ext;
};

/// What a row of examples needs besides the dialing rules of the examples.
enum class Setting
{
	/// The sample tables.
	Sample,
	/// The sample tables with "Translate=0".
	NoTranslate,
	/// No table file at all.
	NoTable,
	/// The sample tables and Mexico's ten-digit dialling.
	Mexico2019
};

/// Writes the dialing rules of the eight countries and France, and the sample area-code tables.
class MorePlansFixture: public ConfigFixture
{
protected:
	/// The dialing-rules entries of the examples; with mexico2019, Mexico's ten-digit dialling entry.
	void writeDialingRules(bool mexico2019 = false);

	/// "r7731cnp_<callingCode>.properties" with the sample table of that calling code, translation on or off.
	void writeSampleTable(const std::string& callingCode, bool translate = true);

	/// The dialing rules and tables of setting.
	void configure(Setting setting);

	/// A site record; the dialing rules must be written first.
	static std::unique_ptr<ZelDialRulesItem> makeSite(const SiteSetup& site);

	/// "NL/20 ext 0".
	static std::string siteName(const SiteSetup& site);
};

/// A worked example at plan level: the number handed to the plan at a site, and the plan's result.
struct PlanRow
{
	const char* name;
	SiteSetup site;
	const char* number;
	const char* canonical;
	Setting setting = Setting::Sample;
};

/// Runs a row through the plan that the factory makes for a calling code.
class MorePlanTest: public MorePlansFixture, public ::testing::WithParamInterface<PlanRow>
{
protected:
	/// The plan's result for the row, after configuring its setting.
	std::string canonical(const std::string& callingCode);
};

} // namespace test
} // namespace numbering

#endif // Numbering_MorePlansFixture_INCLUDED
