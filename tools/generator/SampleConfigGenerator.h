// SampleConfigGenerator.h
// Writes the sample configuration set from public numbering data.

#ifndef Numbering_SampleConfigGenerator_INCLUDED
#define Numbering_SampleConfigGenerator_INCLUDED

#include "AreaCodeWalker.h"
#include "CountryNames.h"
#include "DialingRules.h"

#include <ostream>
#include <string>

namespace numbering {
namespace generator {

/// Writes into one directory the dialing rules of every region, the display masks and activation switches of
/// the plan countries, the area-code tables of the table plans and the Colombian operator codes, all as
/// "_default" files, and reports what each file holds.
class SampleConfigGenerator
{
public:
	/// isoCodesJson: the iso-codes file of ISO 3166-1 names.
	SampleConfigGenerator(const std::string& isoCodesJson, const std::string& outputDirectory);

	/// Writes every file; one line per file on report. Throws on a file that cannot be written.
	void run(std::ostream& report);

private:
	void writeDialingRules(std::ostream& report);

	void writeMasks(std::ostream& report);

	void writeActivation(std::ostream& report);

	void writeAreaCodeTables(std::ostream& report);

	void writeColombianOperators(std::ostream& report);

	std::string path(const std::string& fileName) const;

	const i18n::phonenumbers::PhoneNumberUtil& m_Util;
	i18n::phonenumbers::PhoneNumberOfflineGeocoder m_Geocoder;
	CountryNames m_Names;
	std::string m_OutputDirectory;
};

} // namespace generator
} // namespace numbering

#endif // Numbering_SampleConfigGenerator_INCLUDED
