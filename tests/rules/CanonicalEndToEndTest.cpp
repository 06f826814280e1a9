// CanonicalEndToEndTest.cpp

#include "numbering/ZelClid.h"
#include "numbering/ZelEnumOrigin.h"

#include "CanonicalSitesFixture.h"
#include "support/LogCapture.h"

#include "Poco/AutoPtr.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

using numbering::ZelClid;
using numbering::ZelEnumOrigin;
using numbering::test::CanonicalSitesFixture;
using numbering::test::LogCapture;

namespace {

/// A number as dialled or received at a site, and what an operation makes of it.
struct Case
{
	const char* name;
	const char* site;
	const char* input;
	const char* expected;
};

template <typename Param>
std::string caseName(const ::testing::TestParamInfo<Param>& info)
{
	return info.param.name;
}

class SiteCaseTest: public CanonicalSitesFixture, public ::testing::WithParamInterface<Case>
{
};

class MakeCanonicalNumberTest: public SiteCaseTest
{
};

TEST_P(MakeCanonicalNumberTest, GivesTheCanonicalFormInTheCountrysMask)
{
	EXPECT_EQ(GetParam().expected, rules()->makeCanonicalNumber(site(GetParam().site), GetParam().input, ""));
}

INSTANTIATE_TEST_SUITE_P(Sites,
	MakeCanonicalNumberTest,
	::testing::Values(Case{"InternalExtension", "Berlin", "1234", "1234"},
		Case{"ExceptionNumber", "Berlin", "11833", "11833"},
		Case{"NationalNumber", "Berlin", "(089) 1234-5678", "+49 (89) 123 45678"},
		Case{"LocalSubscriberGetsSiteArea", "Berlin", "76985411", "+49 (30) 769 85411"},
		Case{"PlusBlankNumber", "Berlin", " + 49 221 1234567 ", "+49 (221) 123 4567"},
		Case{"AbroadToOwnCountryIsNational", "Berlin", "0049 30 1234567", "+49 (30) 123 4567"},
		Case{"InternationalWithoutPlan", "Berlin", "0034 91 123 4567", "+34 911234567"},
		Case{"InternationalWithTrunkPrefix", "Berlin", "0039 06 1234 5678", "+39 (0) 0612345678"},
		Case{"PlusNumberWithoutPlan", "Berlin", "+34 91 123 4567", "+34 911234567"},
		Case{"PlusNumberUnknownCallingCode", "Berlin", "+999 1234567", "+999 1234567"},
		Case{"ExtensionAfterBarDropped", "Berlin", "030 1234567|12", "+49 (30) 123 4567"},
		Case{"ServiceCodeLosesLayout", "Berlin", "#31# 030-1234|9", "#31#0301234"},
		Case{"MarkedNumberByteForByte", "Berlin", " 030***1 x", " 030***1 x"},
		Case{"LowerCaseKeypadLetter", "Berlin", "12a4", ""},
		Case{"UnknownCallingCodeStaysDialled", "Madrid", "00999 1234567", "009991234567"},
		Case{"NationalWithoutTrunkPrefix", "Madrid", "911234567", "+34 911234567"},
		Case{"LocalOrNationalUnknown", "Lisbon", "211234567", "211234567"},
		Case{"AbroadDropsCarrierCode", "Bogota", "005 34 91 123 4567", "+34 911234567"}),
	caseName<Case>);

/// With traces on, a number left unconverted says why.
class MakeCanonicalNumberTracesTest: public SiteCaseTest
{
};

TEST_P(MakeCanonicalNumberTracesTest, LogsHowTheNumberWasClassified)
{
	Logger::m_Traces = true;
	rules()->makeCanonicalNumber(site(GetParam().site), GetParam().input, "");
	EXPECT_EQ(1, LogCapture::count(std::string(" - ") + GetParam().expected));
}

INSTANTIATE_TEST_SUITE_P(Sites,
	MakeCanonicalNumberTracesTest,
	::testing::Values(Case{"Internal", "Berlin", "1234", "Nothing to do for1234"},
		Case{"International", "Berlin", "0034 911", "International number detected : '0034911' with CountryCode 'ES'"},
		Case{"OwnCountryKeepsCarrierCode", "Bogota", "005 57 1 2345678", "Source number to be altered : '0512345678'"},
		Case{"UnknownCallingCode", "Madrid", "00999 1234567",
			"International number detected but no country code was found '00999 1234567'"},
		Case{"UnknownPlusCallingCode", "Berlin", "+999 1234567", "No country code found for country number ''"},
		Case{"SameRules", "Madrid", "911234567",
			"There is no difference between local and national phone number format'911234567'"},
		Case{"LocalOrNational", "Lisbon", "211234567",
			"Can't translate to a canonical phone number : we don't known if '211234567' is a local or national "
			"phone number"}),
	caseName<Case>);

/// makeCanonicalNumber(..., true): the number comes with the site's external prefix, which is removed.
class WithExtPrefixTest: public SiteCaseTest
{
};

TEST_P(WithExtPrefixTest, RemovesTheExternalPrefixFirst)
{
	EXPECT_EQ(GetParam().expected, rules()->makeCanonicalNumber(site(GetParam().site), GetParam().input, "", true));
	EXPECT_EQ(0, LogCapture::count("ERROR"));
}

INSTANTIATE_TEST_SUITE_P(Sites,
	WithExtPrefixTest,
	::testing::Values(Case{"National", "Berlin", "0030 1234567", "+49 (30) 123 4567"},
		Case{"WithoutPrefixKept", "Berlin", "1234", "1234"},
		Case{"SiteWithoutPrefixInternal", "BerlinDirect", "1234", ""},
		Case{"SiteWithoutPrefixPlusNumber", "BerlinDirect", "+49 30 1234567", ""}),
	caseName<Case>);

/// A received number and the calling-line identity made of it.
struct ClidCase
{
	const char* name;
	const char* site;
	const char* input;
	const char* number;
	const ZelEnumOrigin* origin;
};

class MakeClidTest: public CanonicalSitesFixture, public ::testing::WithParamInterface<ClidCase>
{
};

TEST_P(MakeClidTest, TellsWhereTheCallerIs)
{
	Poco::AutoPtr<ZelClid> clid(rules()->makeClid(site(GetParam().site), GetParam().input));
	ASSERT_FALSE(clid.isNull());
	EXPECT_EQ(GetParam().number, clid->getNumber());
	EXPECT_EQ(GetParam().origin->getName(), clid->getOrigin()->getName());
}

INSTANTIATE_TEST_SUITE_P(Origins,
	MakeClidTest,
	::testing::Values(ClidCase{"Extension", "Berlin", "1234", "1234", &ZelEnumOrigin::PRIVATE_1},
		ClidCase{"SameArea", "Berlin", "030 1234567", "1234567", &ZelEnumOrigin::PUBLIC_1},
		ClidCase{"OtherArea", "Berlin", "089 12345678", "8912345678", &ZelEnumOrigin::NATIONAL},
		ClidCase{"TrunkPrefixAsArea", "Rome", "0612345678", "612345678", &ZelEnumOrigin::NATIONAL},
		ClidCase{"Abroad", "Berlin", "+34 91 123 4567", "34911234567", &ZelEnumOrigin::INTERNATIONAL},
		ClidCase{
			"AbroadTrunkPrefixDropped", "Berlin", "0039 06 1234 5678", "390612345678", &ZelEnumOrigin::INTERNATIONAL}),
	caseName<ClidCase>);

using MakeClidFailureTest = CanonicalSitesFixture;

TEST_F(MakeClidFailureTest, GivesNullOrThrows)
{
	EXPECT_EQ(nullptr, rules()->makeClid(site("Berlin"), "12x4"));
	EXPECT_THROW(rules()->makeClid(nullptr, "1234"), std::invalid_argument);
	EXPECT_THROW(rules()->makeClid(site("Berlin"), ""), std::invalid_argument);
	EXPECT_THROW(rules()->makeClid(site("Unconfigured"), "+49 30 1234567"), std::runtime_error);
}

/// What the exchange dials: makePhoneNumber converts dialled numbers too, addExternalPrefix only cleans them.
struct DialCase
{
	const char* name;
	bool convertDialled;
	const char* site;
	const char* input;
	const char* expected;
};

class PhoneNumberTest: public CanonicalSitesFixture, public ::testing::WithParamInterface<DialCase>
{
};

TEST_P(PhoneNumberTest, GivesTheDigitsToDialWithTheExternalPrefixWhereWanted)
{
	const DialCase& c = GetParam();
	EXPECT_EQ(c.expected, c.convertDialled ? rules()->makePhoneNumber(site(c.site), c.input)
										   : rules()->addExternalPrefix(site(c.site), c.input));
}

INSTANTIATE_TEST_SUITE_P(Sites,
	PhoneNumberTest,
	::testing::Values(DialCase{"LocalArea", true, "Berlin", "+49 (30) 1234567", "01234567"},
		DialCase{"LongDistance", true, "Berlin", "+49 89 12345678", "008912345678"},
		DialCase{"International", true, "Berlin", "+34 91 123 4567", "00034911234567"},
		DialCase{"DialledNational", true, "Berlin", " 030 1234567", "01234567"},
		DialCase{"Extension", true, "Berlin", "1234", "1234"},
		DialCase{"ServiceCodeOnlyCleaned", true, "Berlin", "*21#", "*21#"},
		DialCase{"NoAreaIsLongDistance", true, "Madrid", "+34 91 123 4567", "0911234567"},
		DialCase{"CleanedOutsideNumber", false, "Berlin", "030 1234567", "00301234567"},
		DialCase{"ExceptionNumber", false, "Berlin", "11833", "11833"},
		DialCase{"PlusNumberConverted", false, "Berlin", "+49 (30) 1234567", "01234567"},
		DialCase{"NoPrefixSiteTrims", false, "BerlinDirect", "  0612345678 ", "0612345678"}),
	caseName<DialCase>);

using MakeDialableNumberTest = CanonicalSitesFixture;

TEST_F(MakeDialableNumberTest, ReadsNoFurtherThanThirtyCharacters)
{
	const std::string twentyDigits = "12345678901234567890";
	const std::string canonical = "+49 (89) " + twentyDigits;
	ASSERT_EQ(29u, canonical.size());
	EXPECT_EQ("089" + twentyDigits, rules()->makeDialableNumber(site("Berlin"), canonical));
	EXPECT_EQ("", rules()->makeDialableNumber(site("Berlin"), canonical + "1"));
}

TEST_F(MakeDialableNumberTest, PassesOnWhatItCannotRead)
{
	EXPECT_EQ("089123", rules()->makeDialableNumber(site("Berlin"), " 49 (89) 123"));
	EXPECT_EQ("0301234", rules()->makeDialableNumber(site("Berlin"), "0301234"));
	EXPECT_EQ("", rules()->makeDialableNumber(site("Berlin"), "+49 (89) "));
	EXPECT_EQ("+49 (89) 123", rules()->makeDialableNumber(site("Unconfigured"), "+49 (89) 123"));
	EXPECT_THROW(rules()->makeDialableNumber(site("Berlin"), ""), std::out_of_range);
}

using MakeGSMCanonicalNumberTest = CanonicalSitesFixture;

TEST_F(MakeGSMCanonicalNumberTest, DropsLayoutAndTrunkPrefix)
{
	// The German mask has laid the subscriber part out already, and that part is copied as it stands.
	EXPECT_EQ("+4930123 4567", rules()->makeGSMCanonicalNumber(site("Berlin"), "030 1234567", false));
	EXPECT_EQ("+39612345678", rules()->makeGSMCanonicalNumber(site("Rome"), "0612345678", false));
	EXPECT_EQ("1234", rules()->makeGSMCanonicalNumber(site("Berlin"), "1234", false));
}

/// A guarded operation's failure: "" and exactly one error line naming the operation, the cause, the number
/// and the site.
struct FailureCase
{
	const char* name;
	const char* operation;
	const char* site;
	const char* input;
	const char* cause;
};

class GuardedFailureTest: public CanonicalSitesFixture, public ::testing::WithParamInterface<FailureCase>
{
protected:
	std::string call(const FailureCase& c)
	{
		const std::string operation = c.operation;
		if (operation == "makePhoneNumber") return rules()->makePhoneNumber(site(c.site), c.input);
		if (operation == "addExternalPrefix") return rules()->addExternalPrefix(site(c.site), c.input);
		return rules()->makeCanonicalNumber(site(c.site), c.input, "+C");
	}
};

TEST_P(GuardedFailureTest, LogsOneErrorLineAndGivesNothing)
{
	const FailureCase& c = GetParam();
	EXPECT_EQ("", call(c));
	const std::string pattern = std::string(c.operation) == "makeCanonicalNumber" ? ", Pattern: '+C'" : "";
	const std::string dialRules = site(c.site) ? site(c.site)->ToString() : "";
	const std::vector<std::string> expected{std::string("ERROR N9numbering17ZelNumberingRulesE - ZelNumberingRules::") +
											c.operation + " exception: " + c.cause + " - PhoneNumber: '" + c.input +
											"'" + pattern + "\n  DialRules: " + dialRules};
	EXPECT_EQ(expected, LogCapture::lines());
}

INSTANTIATE_TEST_SUITE_P(Operations,
	GuardedFailureTest,
	::testing::Values(FailureCase{"CanonicalBadCharacter", "makeCanonicalNumber", "Berlin", "030 12x4567",
						  "'strPhoneNumber' parameter is not a phone number"},
		FailureCase{
			"CanonicalNoSite", "makeCanonicalNumber", "none", "1234", "'myZelDialRulesItem' parameter can not be null"},
		FailureCase{"CanonicalUnconfiguredSite", "makeCanonicalNumber", "Unconfigured", "0301234567",
			"Country code 'FR' is not supported"},
		FailureCase{"PhoneNumberEmpty", "makePhoneNumber", "Berlin", "", "'strPhoneNumber' parameter can not be null"},
		FailureCase{
			"PrefixNoSite", "addExternalPrefix", "none", "1234", "'myZelDialRulesItem' parameter can not be null"}),
	caseName<FailureCase>);

} // namespace
