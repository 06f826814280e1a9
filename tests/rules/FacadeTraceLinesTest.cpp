// FacadeTraceLinesTest.cpp

#include "numbering/ZelNumberingRules.h"

#include "dialable/ZelDialableManager.h"
#include "support/ConfigFixture.h"
#include "support/LogCapture.h"
#include "support/RowName.h"

#include <gtest/gtest.h>

#include <functional>

using numbering::test::LogCapture;

namespace numbering {
namespace {

const std::string RULES = "DEBUG N9numbering17ZelNumberingRulesE - ";
const std::string MAKERS = "DEBUG N9numbering18ZelDialableManagerE - ";
const std::string SITE = "DEBUG N9numbering16ZelDialRulesItemE - ";

/// One facade or maker-cache call and the debug lines it must write, in order, when traces are on.
struct TraceCase
{
	const char* name;
	std::function<void(ZelNumberingRules*)> call;
	std::vector<std::string> lines;
};

/// France (trunk prefix 0, area codes dialled) with the instance built before the test switches traces.
class FacadeTraceLinesTest: public test::ConfigFixture, public ::testing::WithParamInterface<TraceCase>
{
protected:
	void SetUp() override
	{
		ConfigFixture::SetUp();
		writeFile("dialingrules.properties", "FR = 33:00:EF:0F:0F:France:P\n");
		m_Rules = ZelNumberingRules::getInstance();
		LogCapture::clear();
	}

	/// Lines of the facade, the maker cache and the site record: the configuration and plans have tests of their own.
	static std::vector<std::string> ownLines()
	{
		std::vector<std::string> own;
		for (const std::string& line : LogCapture::lines())
		{
			if (line.find(" N9numbering17ZelNumberingRulesE ") != std::string::npos ||
				line.find(" N9numbering18ZelDialableManagerE ") != std::string::npos ||
				line.find(" N9numbering16ZelDialRulesItemE ") != std::string::npos)
				own.push_back(line);
		}
		return own;
	}

	ZelNumberingRules* m_Rules = nullptr;
};

TEST_P(FacadeTraceLinesTest, WritesItsDebugLinesOnlyWhenTracesAreOn)
{
	Logger::m_Traces = false;
	GetParam().call(m_Rules);
	EXPECT_EQ(std::vector<std::string>(), ownLines());
	Logger::m_Traces = true;
	LogCapture::clear();
	GetParam().call(ZelNumberingRules::getInstance());
	EXPECT_EQ(GetParam().lines, ownLines());
}

INSTANTIATE_TEST_SUITE_P(Calls,
	FacadeTraceLinesTest,
	::testing::Values(TraceCase{"RejectedNumberCheck", [](ZelNumberingRules* r) { r->checkPhoneNumber("01 2x"); },
						  {RULES + "checkPhoneNumber('01 2x') returns ''"}},
		TraceCase{"PrefixDecisionAsksOnlyForExceptions",
			[](ZelNumberingRules* r) {
				ZelDialRulesItem site("FR", "0", 4, "1", 0, "18");
				r->isPrefixNeeded(&site, "12345");
			},
			{SITE + "isExceptionNumber('12345')=false"}},
		TraceCase{"LayoutByPattern", [](ZelNumberingRules* r) { r->formatCanonicalNumber("+33 (1) 23", "C"); },
			{RULES + "formatCanonicalNumber('+33 (1) 23', 'C')"}},
		TraceCase{"LayoutWithoutParentheses", [](ZelNumberingRules* r) { r->formatCanonicalNumber("+33 123", ""); },
			{RULES + "formatCanonicalNumber('+33 123', '')", RULES + "Can't apply pattern to number : '+33 123'"}},
		TraceCase{"CompactFormWithoutParentheses",
			[](ZelNumberingRules* r) { r->formatToGSMCanonicalNumber("+33 123"); },
			{RULES + "formatToGSMCanonicalNumber('+33 123'", RULES + "Can't apply pattern to number : '+33 123'"}},
		TraceCase{"CompactFormOfServiceCode",
			[](ZelNumberingRules* r) { r->formatToGSMCanonicalNumber("+33 (1) ***"); },
			{RULES + "formatToGSMCanonicalNumber('+33 (1) ***'"}},
		TraceCase{"DefaultCanonicalNumberOfUnknownCountry",
			[](ZelNumberingRules* r) { r->generateDefaultCanonicalNumber("0123", "ZZ", "1"); },
			{RULES + "generateDefaultCanonicalNumber('0123', 'ZZ', '1')",
				RULES + "generateDefaultCanonicalNumber result : ''"}},
		TraceCase{"MakerCacheFirstUse",
			[](ZelNumberingRules*) {
				ZelDialableManager::resetInstance();
				ZelDialableManager::getInstance()->getDialable("44");
			},
			{MAKERS + "getInstance()", MAKERS + "getDialable('44')", MAKERS + "loadDialableClass('44')"}},
		TraceCase{"ResetAndRebuild",
			[](ZelNumberingRules*) {
				ZelNumberingRules::resetInstance();
				ZelNumberingRules::getInstance();
			},
			{RULES + "Releasing resources", RULES + "ZelNumberingRules()"}}),
	numbering::test::RowName());

} // namespace
} // namespace numbering
