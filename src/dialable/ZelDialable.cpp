// ZelDialable.cpp

#include "dialable/ZelDialable.h"

#include "numbering/ZelNumberingConfig.h"

#include <typeinfo>

namespace numbering {

namespace {

/// Rules are read only for single capital letters, wherever they stand.
bool holds(const std::string& rule, char letter)
{
	return rule.find(letter) != std::string::npos;
}

/// An empty number with room for the longest number the library builds.
std::string reservedNumber()
{
	std::string number;
	number.reserve(ZelNumberingConfig::MAX_PHONE_NUMBER_LENGTH);
	return number;
}

} // namespace

int ZelDialable::_count = 0;

Logger* ZelDialable::logger = Logger::getLogger(typeid(ZelDialable).name());

ZelDialable::ZelDialable():
	m_RefCount(1)
{
	++_count;
}

ZelDialable::~ZelDialable()
{
	--_count;
}

std::string ZelDialable::makeInternationalDialableNumber(
	std::string& countryNumber, std::string& areaNatPfx, std::string& dest, ZelCountryRuleItem* rule)
{
	std::string result = reservedNumber();
	result.append(rule->getInternatPfx());
	const std::string internatRule = rule->getInternatRule();
	if (holds(internatRule, 'E')) result.append(countryNumber);
	if (holds(internatRule, 'F'))
	{
		ZelNumberingConfig* config = ZelNumberingConfig::getInstance();
		ZelCountryRuleItem* destRule = config->getCountryRule(config->getCountryCodeFromNumber(countryNumber));
		// A trunk prefix that stands in place of an area code is not dialled from abroad; the caller sees that too.
		if (destRule)
		{
			const std::string trunk = destRule->getLongDistPrefix();
			if (!trunk.empty() && areaNatPfx == trunk) areaNatPfx.clear();
		}
		result.append(areaNatPfx);
	}
	result.append(dest);
	return result;
}

std::string ZelDialable::makeLongDistDialableNumber(
	std::string& areaNatPfx, std::string& dest, ZelCountryRuleItem* rule, ZelDialRulesItem* /*site*/)
{
	std::string result = reservedNumber();
	result.append(dest);
	const std::string longDistRule = rule->getLongDistRule();
	if (holds(longDistRule, 'F')) result.insert(0, areaNatPfx);
	if (holds(longDistRule, 'F') || holds(longDistRule, 'I')) mergePrefix(result, rule->getLongDistPrefix());
	if (Logger::m_Traces)
	{
		logger->debug(longDistTrace("makeLongDistDialableNumber() AreaNatPfx: '", areaNatPfx, dest, result));
	}
	return result;
}

std::string ZelDialable::makeLocalDialableNumber(std::string& areaNatPfx, std::string& dest, ZelCountryRuleItem* rule)
{
	std::string result = reservedNumber();
	result.append(dest);
	const std::string localRule = rule->getLocalRule();
	if (holds(localRule, 'F')) result.insert(0, areaNatPfx);
	if (holds(localRule, 'F') || holds(localRule, 'I')) mergePrefix(result, rule->getLocalDistPrefix());
	return result;
}

void ZelDialable::duplicate()
{
	++m_RefCount;
}

void ZelDialable::release()
{
	if (--m_RefCount == 0) delete this;
}

std::string ZelDialable::extractOperatorPrefix(std::string /*number*/)
{
	return std::string();
}

void ZelDialable::mergePrefix(std::string& number, const std::string& prefix)
{
	// Position by position and never looking back: a number that shares only its first characters with the
	// prefix gets just the missing ones. Dialled numbers depend on exactly this, so it is not a prefix test.
	for (std::string::size_type i = 0; i < prefix.size(); ++i)
	{
		if (i == number.size() || number[i] != prefix[i]) number.insert(i, 1, prefix[i]);
	}
}

std::string ZelDialable::longDistTrace(
	const std::string& label, const std::string& areaNatPfx, const std::string& dest, const std::string& result)
{
	return label + areaNatPfx + "' dest: " + dest + " result: " + result;
}

} // namespace numbering
