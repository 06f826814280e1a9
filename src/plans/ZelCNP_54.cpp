// ZelCNP_54.cpp

#include "plans/ZelCNP_54.h"

#include "plans/ZelPlanPasses.h"

#include <typeinfo>

namespace numbering {

namespace {

/// Digits of a mobile number with its "15": area code, "15", subscriber number.
const std::string::size_type MOBILE_NUMBER_LENGTH = 12;
const std::string::size_type MIN_DIGITS = 3;

bool hasLength(const std::string& s, const std::string& area, std::string::size_type length)
{
	return s.size() + area.size() == length;
}

} // namespace

const std::string ZelCNP_54::PREFIX_NATIONAL = "0";
const std::string ZelCNP_54::PREFIX_MOBILE_NATIONAL = "15";
const std::string ZelCNP_54::PREFIX_MOBILE_INTERNATIONAL = "9";

Logger* ZelCNP_54::logger = Logger::getLogger(typeid(ZelCNP_54).name());

ZelCNP_54::ZelCNP_54():
	ZelTrunkPrefixPlan(logger,
		"54",
		"ZelCNP_54",
		"No specific configuration file for Argentina",
		"No specific dialing rules configuration file")
{
}

std::unique_ptr<ZelStrippedNbr> ZelCNP_54::StripNbr(std::string full, ZelDialRulesItem* site)
{
	if (Logger::m_Traces)
	{
		logger->debug("stripNbr('" + full + "')");
	}
	if (full.size() < MIN_DIGITS) return returnNull();
	const std::string siteArea = site != nullptr ? site->getAreaCode() : std::string();
	if (!siteArea.empty() && !ZelPlanPasses::startsWith(full, PREFIX_NATIONAL) &&
		!ZelPlanPasses::startsWith(full, PREFIX_MOBILE_INTERNATIONAL))
	{
		std::unique_ptr<ZelStrippedNbr> local = stripLocal(full, siteArea);
		if (local) return returnRecord(std::move(local));
	}
	return stripNational(std::move(full));
}

bool ZelCNP_54::readPass(const Pass& pass, std::string& result)
{
	if (!ZelPlanPasses::startsWith(pass.w, PREFIX_NATIONAL) && !(pass.second && m_Translate)) return false;
	// The plan's own StripNbr, never through the plan cache, whose lock is held while this plan is built.
	const std::unique_ptr<ZelStrippedNbr> stripped = StripNbr(pass.w, pass.rules);
	if (!stripped) return false;
	result = areaForm(
		(stripped->isMobile() ? PREFIX_MOBILE_INTERNATIONAL : "") + stripped->getAreaCode(), stripped->getNumber());
	return true;
}

std::unique_ptr<ZelStrippedNbr> ZelCNP_54::stripLocal(const std::string& n, const std::string& siteArea)
{
	if (ZelPlanPasses::startsWith(n, PREFIX_MOBILE_NATIONAL) && hasLength(n, siteArea, MOBILE_NUMBER_LENGTH))
	{
		if (Logger::m_Traces)
		{
			logger->debug("number starts with local mobile prefix:" + n);
		}
		return std::make_unique<ZelStrippedNbr>(siteArea, n.substr(PREFIX_MOBILE_NATIONAL.size()), true);
	}
	if (hasLength(n, siteArea, NATIONAL_NUMBER_LENGTH) && n[0] != '1')
	{
		if (Logger::m_Traces)
		{
			logger->debug("Only local number");
		}
		return std::make_unique<ZelStrippedNbr>(siteArea, n, false);
	}
	return nullptr;
}

std::unique_ptr<ZelStrippedNbr> ZelCNP_54::stripNational(std::string n)
{
	bool nine = false;
	if (ZelPlanPasses::startsWith(n, PREFIX_NATIONAL))
	{
		if (Logger::m_Traces)
		{
			logger->debug("number starts with national prefix:" + n);
		}
		n.erase(0, PREFIX_NATIONAL.size());
	}
	if (ZelPlanPasses::startsWith(n, PREFIX_MOBILE_INTERNATIONAL))
	{
		if (Logger::m_Traces)
		{
			logger->debug("Mobile international prefix is found:" + n);
		}
		n.erase(0, PREFIX_MOBILE_INTERNATIONAL.size());
		nine = true;
	}
	// AutoPtr's operator-> throws Poco::NullPointerException for a plan without a tree.
	const std::string area = m_AreaCodeTree->extractAreaCode(n);
	if (area.empty())
	{
		if (nine && Logger::m_Traces)
		{
			logger->debug("No area code found but prefix mobile international found before: bad format");
		}
		return returnNull();
	}
	if (Logger::m_Traces)
	{
		logger->debug("Area code is found:" + area);
	}
	bool mobile = nine;
	std::string rest = n.substr(area.size());
	if (ZelPlanPasses::startsWith(rest, PREFIX_MOBILE_NATIONAL) && hasLength(rest, area, MOBILE_NUMBER_LENGTH))
	{
		if (Logger::m_Traces)
		{
			logger->debug("Mobile national prefix is found:" + rest);
		}
		rest.erase(0, PREFIX_MOBILE_NATIONAL.size());
		mobile = true;
	}
	if (!hasLength(rest, area, NATIONAL_NUMBER_LENGTH)) return returnNull();
	return returnRecord(std::make_unique<ZelStrippedNbr>(area, rest, mobile));
}

std::unique_ptr<ZelStrippedNbr> ZelCNP_54::returnRecord(std::unique_ptr<ZelStrippedNbr> record)
{
	if (Logger::m_Traces)
	{
		logger->debug("Argentina stripNumber returns " + record->ToString());
	}
	return record;
}

std::unique_ptr<ZelStrippedNbr> ZelCNP_54::returnNull()
{
	if (Logger::m_Traces)
	{
		logger->debug("Argentina StripNumber returns null");
	}
	return nullptr;
}

} // namespace numbering
