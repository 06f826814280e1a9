// CanonicalEndToEndTest.cpp

#include "numbering/ZelClid.h"
#include "numbering/ZelDialRulesItem.h"
#include "numbering/ZelEnumOrigin.h"
#include "numbering/ZelNumberingRules.h"

#include "support/ConfigFixture.h"
#include "support/FacadeCall.h"
#include "support/LogCapture.h"
#include "support/TableRows.h"

#include "Poco/AutoPtr.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

using numbering::ZelClid;
using numbering::ZelDialRulesItem;
using numbering::ZelEnumOrigin;
using numbering::ZelNumberingRules;
using numbering::test::LogCapture;
using numbering::test::Op;
using numbering::test::RowName;

namespace {

/// Germany and Colombia with plans, Spain (no trunk prefix), Italy (trunk 0), Portugal (long-distance rule E,
/// local rule F), Luxembourg (no long-distance rule, local rule G: local and national numbers alike) and
/// Liechtenstein (no long-distance rule, local rule F) without; "Unconfigured" is a default record of a country
/// ("FR") the configuration does not know.
class CanonicalSitesFixture: public numbering::test::ConfigFixture
{
protected:
	void SetUp() override
	{
		ConfigFixture::SetUp();
		writeFile("dialingrules.properties", R"(DE=49:00:EF:0F::Germany:P
ES=34:00:EF:::Spain:P
IT=39:00:EF:0F:F:Italy:P
PT=351:00:EF:E:F:Portugal:P
CO=57:00:EF:0F:F:Colombia:P
LU=352:00:EF::G:Luxembourg:P
LI=423:00:EF::F:Liechtenstein:P
BS=1242:011:EF:1F:G:Bahamas:P
US=1:011:EF:1F:G:United States:P
)");
		writeFile("r7731cnp_57.properties", "OP_DEFAULT=4\nOP_0000=5\nOP_0001=7\n");
		writeFile("qap_cnp_mask.properties", "Mask_49_1=+C (A) xxx xxxx\n");
		writeFile("specific_format_activation.properties", "cnp_49=true\n");
		writeFile("r7731cnp_49.properties", "Translate=1\nAC_0000=30\nAC_0001=89\nAC_0002=221\nAC_0003=7071\n");
		m_Sites["Berlin"] = std::make_unique<ZelDialRulesItem>("DE", "0", 5, "30", 0, "11");
		m_Sites["BerlinDirect"] = std::make_unique<ZelDialRulesItem>("DE", "", 5, "30", 0, "11");
		m_Sites["Madrid"] = std::make_unique<ZelDialRulesItem>("ES", "0", 5, "91", 0, "");
		m_Sites["Rome"] = std::make_unique<ZelDialRulesItem>("IT", "0", 5, "6", 0, "");
		m_Sites["Lisbon"] = std::make_unique<ZelDialRulesItem>("PT", "0", 5, "21", 0, "");
		m_Sites["Bogota"] = std::make_unique<ZelDialRulesItem>("CO", "0", 5, "1", 0, "");
		m_Sites["Luxembourg"] = std::make_unique<ZelDialRulesItem>("LU", "0", 5, "", 0, "");
		m_Sites["Vaduz"] = std::make_unique<ZelDialRulesItem>("LI", "0", 5, "", 0, "");
		m_Sites["Unconfigured"] = std::make_unique<ZelDialRulesItem>();
		rules();
		LogCapture::clear();
	}

	/// The named site, or null for "none".
	ZelDialRulesItem* site(const std::string& name) const
	{
		return name == "none" ? nullptr : m_Sites.at(name).get();
	}

	static ZelNumberingRules* rules()
	{
		return ZelNumberingRules::getInstance();
	}

private:
	std::map<std::string, std::unique_ptr<ZelDialRulesItem>> m_Sites;
};

/// A number as dialled or received at a site, and what an operation makes of it.
struct Case
{
	const char* name;
	Op op;
	const char* site;
	const char* input;
	const char* expected;
};

using SiteCaseTest = numbering::test::WithRows<CanonicalSitesFixture, Case>;

TEST_P(SiteCaseTest, GivesTheExpectedTextWithoutAnError)
{
	const Case& c = GetParam();
	EXPECT_EQ(c.expected, numbering::test::callFacade(c.op, site(c.site), c.input));
	EXPECT_EQ(std::vector<std::string>(), LogCapture::matching("ERROR "));
}

INSTANTIATE_TEST_SUITE_P(Canonical,
	SiteCaseTest,
	::testing::Values(Case{"InternalExtension", Op::Canonical, "Berlin", "1234", "1234"},
		Case{"ExceptionNumber", Op::Canonical, "Berlin", "11833", "11833"},
		Case{"NationalNumber", Op::Canonical, "Berlin", "(089) 1234-5678", "+49 (89) 123 45678"},
		Case{"LocalSubscriberGetsSiteArea", Op::Canonical, "Berlin", "76985411", "+49 (30) 769 85411"},
		Case{"PlusBlankNumber", Op::Canonical, "Berlin", " + 49 221 1234567 ", "+49 (221) 123 4567"},
		Case{"AbroadToOwnCountryIsNational", Op::Canonical, "Berlin", "0049 30 1234567", "+49 (30) 123 4567"},
		Case{"InternationalWithoutPlan", Op::Canonical, "Berlin", "0034 91 123 4567", "+34 911234567"},
		Case{"InternationalWithTrunkPrefix", Op::Canonical, "Berlin", "0039 06 1234 5678", "+39 (0) 0612345678"},
		Case{"PlusNumberWithoutPlan", Op::Canonical, "Berlin", "+34 91 123 4567", "+34 911234567"},
		// A calling code written apart is taken whole, though a shorter one begins it.
		Case{"PlusNumberSeparatedCallingCode", Op::Canonical, "Berlin", "+1242 5550100", "+1242 (1) 5550100"},
		Case{"PlusNumberUnknownCallingCode", Op::Canonical, "Berlin", "+999 1234567", "+999 1234567"},
		Case{"ExtensionAfterBarDropped", Op::Canonical, "Berlin", "030 1234567|12", "+49 (30) 123 4567"},
		Case{"ServiceCodeLosesLayout", Op::Canonical, "Berlin", "#31# 030-1234|9", "#31#0301234"},
		Case{"MarkedNumberByteForByte", Op::Canonical, "Berlin", " 030***1 x", " 030***1 x"},
		Case{"UnknownCallingCodeStaysDialled", Op::Canonical, "Madrid", "00999 1234567", "009991234567"},
		Case{"NationalWithoutTrunkPrefix", Op::Canonical, "Madrid", "911234567", "+34 911234567"},
		Case{"LocalOrNationalUnknown", Op::Canonical, "Lisbon", "211234567", "211234567"},
		Case{"LocalAndNationalAlikeIsNational", Op::Canonical, "Luxembourg", "12345678", "+352 12345678"},
		Case{"NoLongDistanceRuleWithoutLocalG", Op::Canonical, "Vaduz", "12345678", "12345678"},
		Case{"AbroadDropsCarrierCode", Op::Canonical, "Bogota", "005 34 91 123 4567", "+34 911234567"},
		Case{"ExtPrefixRemovedFirst", Op::CanonicalWithExtPrefix, "Berlin", "0030 1234567", "+49 (30) 123 4567"},
		Case{"WithoutExtPrefixKept", Op::CanonicalWithExtPrefix, "Berlin", "1234", "1234"},
		Case{"SiteWithoutExtPrefixInternal", Op::CanonicalWithExtPrefix, "BerlinDirect", "1234", ""},
		Case{"SiteWithoutExtPrefixPlusNumber", Op::CanonicalWithExtPrefix, "BerlinDirect", "+49 30 1234567", ""},
		// The German mask has laid the subscriber part out already, and that part is copied as it stands.
		Case{"GSMLaidOutSubscriber", Op::GSM, "Berlin", "030 1234567", "+4930123 4567"},
		Case{"GSMTrunkPrefixDropped", Op::GSM, "Rome", "0612345678", "+39612345678"},
		Case{"GSMInternal", Op::GSM, "Berlin", "1234", "1234"},
		Case{"TwoStarsAreNoMarker", Op::Canonical, "Berlin", " **21# ", "**21#"}),
	RowName());

// makePhoneNumber converts dialled numbers too, addExternalPrefix only cleans them.
INSTANTIATE_TEST_SUITE_P(Dialled,
	SiteCaseTest,
	::testing::Values(Case{"LocalArea", Op::Phone, "Berlin", "+49 (30) 1234567", "01234567"},
		Case{"LongDistance", Op::Phone, "Berlin", "+49 89 12345678", "008912345678"},
		Case{"International", Op::Phone, "Berlin", "+34 91 123 4567", "00034911234567"},
		Case{"DialledNational", Op::Phone, "Berlin", " 030 1234567", "01234567"},
		Case{"Extension", Op::Phone, "Berlin", "1234", "1234"},
		Case{"ServiceCodeOnlyCleaned", Op::Phone, "Berlin", "*21#", "*21#"},
		Case{"NoAreaIsLongDistance", Op::Phone, "Madrid", "+34 91 123 4567", "0911234567"},
		Case{"CleanedOutsideNumber", Op::Prefix, "Berlin", "030 1234567", "00301234567"},
		Case{"ExceptionNumber", Op::Prefix, "Berlin", "11833", "11833"},
		Case{"PlusNumberConverted", Op::Prefix, "Berlin", "+49 (30) 1234567", "01234567"},
		Case{"NoPrefixSiteTrims", Op::Prefix, "BerlinDirect", "  0612345678 ", "0612345678"},
		// Bogota's carrier 4 is dialled after the prefix; a carrier dialled abroad is dropped, one dialled towards
		// Colombia stays, and abroad the subscriber number is dialled twice.
		Case{"ColombiaAbroadWithCarrier", Op::Phone, "Bogota", "005 34 91 123 4567", "0004911234567911234567"},
		Case{"ColombiaOwnCountryWithCarrier", Op::Phone, "Bogota", "005 57 4 234 5678", "00442345678"},
		Case{"ColombiaMobile", Op::Phone, "Bogota", "+57 300 123 4567", "0033001234567"},
		Case{"DialPassesOnWithoutPlus", Op::Dial, "Berlin", " 49 (89) 123", "089123"},
		Case{"DialPassesOnDialled", Op::Dial, "Berlin", "0301234", "0301234"},
		Case{"DialNothingAfterArea", Op::Dial, "Berlin", "+49 (89) ", ""},
		Case{"DialUnconfiguredSite", Op::Dial, "Unconfigured", "+49 (89) 123", "+49 (89) 123"}),
	RowName());

/// A received number and the calling-line identity made of it.
struct ClidCase
{
	const char* name;
	const char* site;
	const char* input;
	const char* number;
	const ZelEnumOrigin* origin;
};

using MakeClidTest = numbering::test::WithRows<CanonicalSitesFixture, ClidCase>;

TEST_P(MakeClidTest, TellsWhereTheCallerIs)
{
	Poco::AutoPtr<ZelClid> clid(rules()->makeClid(site(GetParam().site), GetParam().input));
	ASSERT_FALSE(clid.isNull());
	EXPECT_EQ(GetParam().number, clid->getNumber());
	EXPECT_EQ(GetParam().origin->getName(), clid->getOrigin()->getName());
}

INSTANTIATE_TEST_SUITE_P(Origins,
	MakeClidTest,
	::testing::Values(ClidCase{"TrunkPrefixAsArea", "Rome", "0612345678", "612345678", &ZelEnumOrigin::NATIONAL},
		ClidCase{
			"AbroadTrunkPrefixDropped", "Berlin", "0039 06 1234 5678", "390612345678", &ZelEnumOrigin::INTERNATIONAL}),
	RowName());

using UnguardedOperationTest = CanonicalSitesFixture;

TEST_F(UnguardedOperationTest, GiveNullOrThrowAndDialableNumbersEndAtThirtyCharacters)
{
	EXPECT_EQ(nullptr, rules()->makeClid(site("Berlin"), "12x4"));
	EXPECT_THROW(rules()->makeClid(nullptr, "1234"), std::invalid_argument);
	EXPECT_THROW(rules()->makeClid(site("Berlin"), ""), std::invalid_argument);
	EXPECT_THROW(rules()->makeClid(site("Unconfigured"), "+49 30 1234567"), std::runtime_error);
	EXPECT_THROW(rules()->makeDialableNumber(site("Berlin"), ""), std::out_of_range);
	// makeDialableNumber reads no further than thirty characters.
	const std::string twentyDigits = "12345678901234567890";
	const std::string canonical = "+49 (89) " + twentyDigits;
	ASSERT_EQ(29u, canonical.size());
	EXPECT_EQ("089" + twentyDigits, rules()->makeDialableNumber(site("Berlin"), canonical));
	EXPECT_EQ("", rules()->makeDialableNumber(site("Berlin"), canonical + "1"));
}

/// A guarded operation's failure: "" and one error line with operation, cause, number and site.
struct FailureCase
{
	const char* name;
	Op op;
	const char* site;
	const char* input;
	const char* cause;
	const char* quoted = nullptr; ///< the number as the error line quotes it, when not the input
};

using GuardedFailureTest = numbering::test::WithRows<CanonicalSitesFixture, FailureCase>;

TEST_P(GuardedFailureTest, LogsOneErrorLineAndGivesNothing)
{
	const FailureCase& c = GetParam();
	EXPECT_EQ("", numbering::test::callFacade(c.op, site(c.site), c.input, "+C"));
	const char* operation = c.op == Op::Canonical ? "makeCanonicalNumber"
							: c.op == Op::Phone   ? "makePhoneNumber"
												  : "addExternalPrefix";
	const std::string pattern = c.op == Op::Canonical ? ", Pattern: '+C'" : "";
	const std::string dialRules = site(c.site) ? site(c.site)->ToString() : "";
	const std::vector<std::string> expected{std::string("ERROR N9numbering17ZelNumberingRulesE - ZelNumberingRules::") +
											operation + " exception: " + c.cause + " - PhoneNumber: '" +
											(c.quoted ? c.quoted : c.input) + "'" + pattern +
											"\n  DialRules: " + dialRules};
	EXPECT_EQ(expected, LogCapture::lines());
}

INSTANTIATE_TEST_SUITE_P(Operations,
	GuardedFailureTest,
	::testing::Values(FailureCase{"CanonicalBadCharacter", Op::Canonical, "Berlin", "030 12x4567",
						  "'strPhoneNumber' parameter is not a phone number"},
		FailureCase{"CanonicalLowerCaseKeypadLetter", Op::Canonical, "Berlin", "12a4",
			"'strPhoneNumber' parameter is not a phone number"},
		FailureCase{"CanonicalNoSite", Op::Canonical, "none", "1234", "'myZelDialRulesItem' parameter can not be null"},
		FailureCase{"CanonicalUnconfiguredSite", Op::Canonical, "Unconfigured", "0301234567",
			"Country code 'FR' is not supported"},
		FailureCase{"PhoneNumberEmpty", Op::Phone, "Berlin", "", "'strPhoneNumber' parameter can not be null"},
		FailureCase{"CanonicalBlanksAreEmptyOnceTrimmed", Op::Canonical, "Berlin", "   ",
			"'strPhoneNumber' parameter can not be null", ""},
		FailureCase{"PrefixNoSite", Op::Prefix, "none", "1234", "'myZelDialRulesItem' parameter can not be null"}),
	RowName());

using TracesTest = CanonicalSitesFixture;

TEST_F(TracesTest, DebugLinesAreWrittenOnlyWhenTracesAreOn)
{
	const auto debugLines = [this] {
		LogCapture::clear();
		rules()->makeCanonicalNumber(site("Berlin"), "089 1234567", "");
		rules()->makePhoneNumber(site("Bogota"), "+34 91 123 4567");
		return LogCapture::matching("DEBUG ");
	};
	EXPECT_EQ(std::vector<std::string>(), debugLines());
	Logger::m_Traces = true;
	EXPECT_EQ("DEBUG N9numbering17ZelNumberingRulesE - MakeCanonicalNumber with : 089 1234567", debugLines().at(0));
}

} // namespace
