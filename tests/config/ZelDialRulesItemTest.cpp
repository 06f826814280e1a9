// ZelDialRulesItemTest.cpp

#include "numbering/ZelDialRulesItem.h"

#include "numbering/ZelUnsupportedCountryException.h"

#include "support/ConfigFixture.h"
#include "support/LogCapture.h"
#include "support/ThrowMessage.h"

#include <gtest/gtest.h>

using numbering::ZelDialRulesItem;
using numbering::ZelUnsupportedCountryException;
using numbering::test::LogCapture;
using numbering::test::thrownMessage;

namespace {

class ZelDialRulesItemTest: public numbering::test::ConfigFixture
{
protected:
	void SetUp() override
	{
		ConfigFixture::SetUp();
		writeFile("dialingrules.properties", "FR=33:00:EFG:0FG:G:France:P\nDE=49:00:EFG:0FG:G:Germany:P\n");
	}

	std::string unsupported(const std::string& code)
	{
		return thrownMessage<ZelUnsupportedCountryException>([&] { m_Item.setCountryId(code); });
	}

	std::string malformed(const std::string& code)
	{
		return thrownMessage<std::invalid_argument>([&] { m_Item.setCountryId(code); });
	}

	ZelDialRulesItem m_Item;
};

TEST_F(ZelDialRulesItemTest, SetCountryIdRejectsMalformedAndUnknownCodesAndKeepsThePreviousOne)
{
	const std::string malformedText =
		"'strCountryCode' parameter can not be null and must be an Alpha-2 ISO 3166 country code";
	EXPECT_EQ("no exception", unsupported("DE"));
	EXPECT_EQ(malformedText, malformed(""));
	EXPECT_EQ(malformedText, malformed("FRA"));
	EXPECT_EQ("Country code 'ZZ' is not supported", unsupported("ZZ"));
	EXPECT_EQ("Country code 'fr' is not supported", unsupported("fr"));
	EXPECT_EQ("DE", m_Item.getCountryId());
	EXPECT_THROW(ZelDialRulesItem("ZZ", "0", 5, "", 0, ""), ZelUnsupportedCountryException);
}

TEST_F(ZelDialRulesItemTest, NegativeLengthsAreClampedButSetExceptNbLengthTestsTheStoredOne)
{
	ZelDialRulesItem item("FR", "0", -5, "1", -4, "06");
	EXPECT_EQ(0, item.getLocalNbLength());
	EXPECT_EQ(0, item.getExceptNbLength());
	item.setLocalNbLength(-5);
	EXPECT_EQ(0, item.getLocalNbLength());
	item.setExceptNbLength(-5);
	EXPECT_EQ(-5, item.getExceptNbLength());
	item.setExceptNbLength(4);
	EXPECT_EQ(0, item.getExceptNbLength());
	item.setExceptNbLength(4);
	EXPECT_EQ(4, item.getExceptNbLength());
}

TEST_F(ZelDialRulesItemTest, SetAreaCodeSplitsTrimsDropsEmptiesAndEmptyTextKeepsTheList)
{
	m_Item.setAreaCode(" 1, 2,,3 ");
	EXPECT_EQ("1", m_Item.getAreaCode());
	EXPECT_EQ((std::vector<std::string>{"1", "2", "3"}), m_Item.getAreaCodesList());
	m_Item.setAreaCode("");
	EXPECT_EQ("", m_Item.getAreaCode());
	EXPECT_EQ((std::vector<std::string>{"1", "2", "3"}), m_Item.getAreaCodesList());
	m_Item.setAreaCode(" , ");
	EXPECT_TRUE(m_Item.getAreaCodesList().empty());
}

TEST_F(ZelDialRulesItemTest, LocalAndExceptionNumbersTracedOnlyWithTraces)
{
	m_Item.setLocalNbLength(8);
	m_Item.setExceptNbBegin("0");
	m_Item.setExceptNbLength(4);
	EXPECT_TRUE(m_Item.isLocalNumber("1234567"));
	EXPECT_FALSE(m_Item.isLocalNumber("12345678"));
	EXPECT_TRUE(m_Item.isExceptionNumber("0123456"));
	EXPECT_FALSE(m_Item.isExceptionNumber("1000"));
	EXPECT_TRUE(LogCapture::lines().empty());
	Logger::m_Traces = true;
	m_Item.setExceptNbBegin("");
	EXPECT_FALSE(m_Item.isExceptionNumber("0123"));
	m_Item.setLocalNbLength(0);
	EXPECT_FALSE(m_Item.isLocalNumber(""));
	const std::vector<std::string> expected{"DEBUG N9numbering16ZelDialRulesItemE - isExceptionNumber('0123')=false",
		"DEBUG N9numbering16ZelDialRulesItemE - isLocalNumber('')=false"};
	EXPECT_EQ(expected, LogCapture::lines());
}

TEST_F(ZelDialRulesItemTest, ToStringListsEveryField)
{
	EXPECT_EQ("CountryCode : 'FR', External Prefix : '0', Local length : 5, AreaCode : '1', m_areaCodesList :  '1' "
			  "'2', Except length : 3, Except begin : '06'",
		ZelDialRulesItem("FR", "0", 5, "1,2", 3, "06").ToString());
}

} // namespace
