// MorePlansFixture.h
// Test fixture of the Dutch, Belgian, Austrian, British, Irish, Australian, Mexican and Argentine plans.

#ifndef Numbering_MorePlansFixture_INCLUDED
#define Numbering_MorePlansFixture_INCLUDED

#include "numbering/ZelDialRulesItem.h"

#include "support/ConfigFixture.h"

#include <memory>
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
	Sample,      ///< the sample tables
	NoTranslate, ///< the sample tables with "Translate=0"
	NoTable,     ///< no table file at all
	Mexico2019   ///< the sample tables and Mexico's ten-digit dialling
};

/// Writes the dialing rules of the eight countries and France, and the sample area-code tables.
class MorePlansFixture: public ConfigFixture
{
protected:
	/// The dialing rules and tables of setting.
	void configure(Setting setting);

	/// A site record; the dialing rules must be written first.
	static std::unique_ptr<ZelDialRulesItem> makeSite(const SiteSetup& site);

	/// "NL/20 ext 0".
	static std::string siteName(const SiteSetup& site);
};

} // namespace test
} // namespace numbering

#endif // Numbering_MorePlansFixture_INCLUDED
