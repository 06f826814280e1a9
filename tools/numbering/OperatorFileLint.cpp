// OperatorFileLint.cpp

#include "OperatorFileLint.h"

#include "CodeListLint.h"

#include "Poco/Ascii.h"

#include <algorithm>

namespace numbering {
namespace tool {

namespace {

const std::string OPERATOR_CODE = "OP_DEFAULT";

} // namespace

OperatorFileLint::OperatorFileLint(const ConfigFile& file, LintReport& report)
{
	const CodeListLint operators(file, "OP_", CodeListLint::ENDS_LIST, report);
	if (file.properties().has(OPERATOR_CODE))
	{
		const std::string code = file.properties().getString(OPERATOR_CODE);
		if (code.empty() || !std::all_of(code.begin(), code.end(), Poco::Ascii::isDigit))
		{
			file.add(report, OPERATOR_CODE, LintReport::MISREAD,
				"operator code '" + code + "' is not digits: long-distance calls dial it as written");
		}
	}
	operators.reportUnreadKeys(OPERATOR_CODE);
}

} // namespace tool
} // namespace numbering
