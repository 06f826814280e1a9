// TrunkPrefixPlansFixture.h
// Test fixture of the trunk-prefix plans: the Dutch, Belgian, Austrian, British, Irish, Australian, Mexican and
// Argentine plans.

#ifndef Numbering_TrunkPrefixPlansFixture_INCLUDED
#define Numbering_TrunkPrefixPlansFixture_INCLUDED

#include "support/ConfigFixture.h"
#include "support/PlanSites.h"

namespace numbering {
namespace test {

/// What a row of examples needs besides the dialing rules of the examples.
enum class Setting
{
	Sample,      ///< the sample tables
	NoTranslate, ///< the sample tables with "Translate=0"
	NoTable,     ///< no table file at all
	Mexico2019   ///< the sample tables and Mexico's ten-digit dialling
};

/// Writes the dialing rules of the plan countries and Mexico, and the sample area-code tables.
class TrunkPrefixPlansFixture: public ConfigFixture
{
protected:
	/// The dialing rules and tables of setting.
	void configure(Setting setting);
};

} // namespace test
} // namespace numbering

#endif // Numbering_TrunkPrefixPlansFixture_INCLUDED
