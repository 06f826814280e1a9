// ZelPlanPasses.h
// Steps shared by the plans that read a number twice: as dialled, then without the site's external prefix.

#ifndef Numbering_ZelPlanPasses_INCLUDED
#define Numbering_ZelPlanPasses_INCLUDED

#include <string>

namespace numbering {

/// Static helpers of the two-pass plans (the trunk-prefix table plans, Argentina and Mexico).
class ZelPlanPasses
{
public:
	/// True, with number without ext in stripped, when ext is not empty, number begins with it, is at least
	/// ext's length + 3 long, and at most 16 characters remain after it.
	static bool stripExtPrefix(const std::string& number, const std::string& ext, std::string& stripped);

	/// The form that keeps the country of a number no rule reads: head + the digits after trunk, taken from
	/// number or else from stripped ("" when the external prefix was not stripped). A candidate qualifies when
	/// it is trunk followed by 3 to 15 digits of which the first is not "0"; "" when neither does.
	/// ("+31 (0) ", "0", "021234567", "") gives "+31 (0) 21234567".
	static std::string finalForm(
		const std::string& head, const std::string& trunk, const std::string& number, const std::string& stripped);

	/// True when s begins with prefix.
	static bool startsWith(const std::string& s, const std::string& prefix);

	ZelPlanPasses() = delete;
};

} // namespace numbering

#endif // Numbering_ZelPlanPasses_INCLUDED
