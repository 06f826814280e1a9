// ZelCNP_54.cpp

#include "plans/ZelCNP_54.h"

#include "support/Plans.h"
#include "support/Trace.h"

#include "Poco/String.h"

#include <typeinfo>

namespace numbering {

namespace {

/// The trunk prefix.
const std::string PREFIX_NATIONAL = "0";

/// Dialled before the area code of a mobile from abroad.
const std::string PREFIX_MOBILE_INTERNATIONAL = "9";

/// Digits of area code and subscriber number together.
const std::string::size_type NATIONAL_NUMBER_LENGTH = 10;

/// Digits of a mobile number with its "15": area code, "15", subscriber number.
const std::string::size_type MOBILE_NUMBER_LENGTH = 12;

const TrunkPrefixPlan::Country ARGENTINA{
	"54", "ZelCNP_54", "No specific configuration file for Argentina", TrunkPrefixPlan::NO_TABLE_TEXT};

bool hasLength(const std::string& s, const std::string& area, std::string::size_type length)
{
	return s.size() + area.size() == length;
}

} // namespace

const std::string ZelCNP_54::PREFIX_MOBILE_NATIONAL = "15";

Logger* ZelCNP_54::logger = Logger::getLogger(typeid(ZelCNP_54).name());

ZelCNP_54::ZelCNP_54():
	TrunkPrefixPlan(logger, ARGENTINA)
{
}

std::unique_ptr<StrippedNumber> ZelCNP_54::StripNbr(std::string full, ZelDialRulesItem* site)
{
	NUMBERING_TRACE(logger, "stripNbr('" + full + "')");
	if (full.size() < detail::MIN_DIGITS) return returnNull();
	const std::string siteArea = site != nullptr ? site->getAreaCode() : std::string();
	if (!siteArea.empty() && !Poco::startsWith(full, PREFIX_NATIONAL) &&
		!Poco::startsWith(full, PREFIX_MOBILE_INTERNATIONAL))
	{
		std::unique_ptr<StrippedNumber> local = stripLocal(full, siteArea);
		if (local) return returnRecord(std::move(local));
	}
	return stripNational(std::move(full));
}

bool ZelCNP_54::readPass(const Pass& pass, std::string& result)
{
	if (!Poco::startsWith(pass.candidate, PREFIX_NATIONAL) && !(pass.mayBeLocal && translates())) return false;
	// The plan's own StripNbr, never through the plan cache, whose lock is held while this plan is built.
	const std::unique_ptr<StrippedNumber> stripped = StripNbr(pass.candidate, pass.site);
	if (!stripped) return false;
	result = areaForm(
		(stripped->isMobile() ? PREFIX_MOBILE_INTERNATIONAL : "") + stripped->getAreaCode(), stripped->getNumber());
	return true;
}

std::unique_ptr<StrippedNumber> ZelCNP_54::stripLocal(const std::string& digits, const std::string& siteArea)
{
	if (Poco::startsWith(digits, PREFIX_MOBILE_NATIONAL) && hasLength(digits, siteArea, MOBILE_NUMBER_LENGTH))
	{
		NUMBERING_TRACE(logger, "number starts with local mobile prefix:" + digits);
		return std::make_unique<StrippedNumber>(siteArea, digits.substr(PREFIX_MOBILE_NATIONAL.size()), true);
	}
	if (hasLength(digits, siteArea, NATIONAL_NUMBER_LENGTH) && digits[0] != '1')
	{
		NUMBERING_TRACE(logger, "Only local number");
		return std::make_unique<StrippedNumber>(siteArea, digits, false);
	}
	return nullptr;
}

std::unique_ptr<StrippedNumber> ZelCNP_54::stripNational(std::string digits)
{
	if (Poco::startsWith(digits, PREFIX_NATIONAL))
	{
		NUMBERING_TRACE(logger, "number starts with national prefix:" + digits);
		digits.erase(0, PREFIX_NATIONAL.size());
	}
	const bool mobileFromAbroad = Poco::startsWith(digits, PREFIX_MOBILE_INTERNATIONAL);
	if (mobileFromAbroad)
	{
		NUMBERING_TRACE(logger, "Mobile international prefix is found:" + digits);
		digits.erase(0, PREFIX_MOBILE_INTERNATIONAL.size());
	}
	const std::string area = findAreaCode(digits);
	if (area.empty())
	{
		if (mobileFromAbroad)
			NUMBERING_TRACE(logger, "No area code found but prefix mobile international found before: bad format");
		return returnNull();
	}
	NUMBERING_TRACE(logger, "Area code is found:" + area);
	bool mobile = mobileFromAbroad;
	std::string subscriber = digits.substr(area.size());
	if (Poco::startsWith(subscriber, PREFIX_MOBILE_NATIONAL) && hasLength(subscriber, area, MOBILE_NUMBER_LENGTH))
	{
		NUMBERING_TRACE(logger, "Mobile national prefix is found:" + subscriber);
		subscriber.erase(0, PREFIX_MOBILE_NATIONAL.size());
		mobile = true;
	}
	if (!hasLength(subscriber, area, NATIONAL_NUMBER_LENGTH)) return returnNull();
	return returnRecord(std::make_unique<StrippedNumber>(area, subscriber, mobile));
}

std::unique_ptr<StrippedNumber> ZelCNP_54::returnRecord(std::unique_ptr<StrippedNumber> record)
{
	NUMBERING_TRACE(logger, "Argentina stripNumber returns " + record->ToString());
	return record;
}

std::unique_ptr<StrippedNumber> ZelCNP_54::returnNull()
{
	NUMBERING_TRACE(logger, "Argentina StripNumber returns null");
	return nullptr;
}

} // namespace numbering
