// CanonicalSitesFixture.cpp

#include "CanonicalSitesFixture.h"

#include "support/LogCapture.h"

namespace numbering {
namespace test {

void CanonicalSitesFixture::SetUp()
{
	ConfigFixture::SetUp();
	writeFile("dialingrules.properties", R"(DE=49:00:EF:0F::Germany:P
ES=34:00:EF:::Spain:P
IT=39:00:EF:0F:F:Italy:P
PT=351:00:EF:E:F:Portugal:P
CO=57:00:EF:0F:F:Colombia:P
)");
	writeFile("r7731cnp_57.properties", "OP_0000=5\nOP_0001=7\n");
	writeFile("qap_cnp_mask.properties", "Mask_49_1=+C (A) xxx xxxx\n");
	writeFile("specific_format_activation.properties", "cnp_49=true\n");
	writeFile("r7731cnp_49.properties", R"(Translate=1
AC_0000=30
AC_0001=89
AC_0002=221
AC_0003=7071
)");
	m_Sites["Berlin"] = std::make_unique<ZelDialRulesItem>("DE", "0", 5, "30", 0, "11");
	m_Sites["BerlinDirect"] = std::make_unique<ZelDialRulesItem>("DE", "", 5, "30", 0, "11");
	m_Sites["Madrid"] = std::make_unique<ZelDialRulesItem>("ES", "0", 5, "91", 0, "");
	m_Sites["Rome"] = std::make_unique<ZelDialRulesItem>("IT", "0", 5, "6", 0, "");
	m_Sites["Lisbon"] = std::make_unique<ZelDialRulesItem>("PT", "0", 5, "21", 0, "");
	m_Sites["Bogota"] = std::make_unique<ZelDialRulesItem>("CO", "0", 5, "1", 0, "");
	m_Sites["Unconfigured"] = std::make_unique<ZelDialRulesItem>();
	rules();
	LogCapture::clear();
}

void CanonicalSitesFixture::TearDown()
{
	m_Sites.clear();
	ZelNumberingRules::resetInstance();
	ConfigFixture::TearDown();
}

ZelDialRulesItem* CanonicalSitesFixture::site(const std::string& name) const
{
	return name == "none" ? nullptr : m_Sites.at(name).get();
}

ZelNumberingRules* CanonicalSitesFixture::rules()
{
	return ZelNumberingRules::getInstance();
}

} // namespace test
} // namespace numbering
