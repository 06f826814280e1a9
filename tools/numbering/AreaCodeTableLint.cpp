// AreaCodeTableLint.cpp

#include "AreaCodeTableLint.h"

#include "Poco/String.h"

namespace numbering {
namespace tool {

namespace {

const std::string TRANSLATE = "Translate";

bool looksOn(const std::string& value)
{
	const std::string lowered = Poco::toLower(value);
	return lowered == "true" || lowered == "on" || lowered == "yes";
}

} // namespace

AreaCodeTableLint::AreaCodeTableLint(const ConfigFile& file, LintReport& report):
	m_Codes(file, "AC_", CodeListLint::SKIPS_ENTRY, report)
{
	const std::string translate = file.properties().getString(TRANSLATE, "1");
	if (looksOn(translate))
	{
		file.add(report, TRANSLATE, LintReport::MISREAD,
			"'" + translate + "' turns local-number translation off: only 1 turns it on");
	}
	m_Codes.reportUnreadKeys(TRANSLATE);
}

const std::vector<std::pair<std::string, std::string>>& AreaCodeTableLint::storedCodes() const
{
	return m_Codes.storedCodes();
}

} // namespace tool
} // namespace numbering
