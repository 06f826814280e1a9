// PlanCountries.h
// The calling codes the library has numbering plans for, and the files those plans read.

#ifndef Numbering_PlanCountries_INCLUDED
#define Numbering_PlanCountries_INCLUDED

#include <string>
#include <vector>

namespace numbering {
namespace tool {

/// What the library's plan factory knows, seen from outside it: the tool links the library's public interface
/// only, so the list is kept here and must follow the factory.
class PlanCountries
{
public:
	/// The Colombian calling code, whose plan file holds the operator prefixes.
	static const std::string COLOMBIA;

	/// True when the library has a numbering plan of its own for the calling code.
	static bool hasPlan(const std::string& callingCode);

	/// The calling codes whose plans read an area-code table, in the order of the plan factory.
	static const std::vector<std::string>& tableCountries();

	/// "<directory>r7731cnp_<calling code>.properties", or its "_default" twin.
	static std::string planFile(const std::string& directory, const std::string& callingCode, bool isDefault);
};

} // namespace tool
} // namespace numbering

#endif // Numbering_PlanCountries_INCLUDED
