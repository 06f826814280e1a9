// ZelDialable.cpp

#include "dialable/ZelDialable.h"

#include "support/Trace.h"

#include <typeinfo>

namespace numbering {

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
	return internationalNumber(
		ZelNumberingConfig::getInstance(), std::string(), countryNumber, countryNumber, areaNatPfx, dest, rule);
}

std::string ZelDialable::makeLongDistDialableNumber(
	std::string& areaNatPfx, std::string& dest, ZelCountryRuleItem* rule, ZelDialRulesItem* /*site*/)
{
	std::string result = reservedNumber();
	result.append(dest);
	const std::string longDistRule = rule->getLongDistRule();
	if (holds(longDistRule, 'F')) result.insert(0, areaNatPfx);
	if (holds(longDistRule, 'F') || holds(longDistRule, 'I')) mergePrefix(result, rule->getLongDistPrefix());
	NUMBERING_TRACE(logger, longDistTrace("", areaNatPfx, dest, result));
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

std::string ZelDialable::internationalNumber(ZelNumberingConfig* config,
	const std::string& operatorCode,
	const std::string& underE,
	const std::string& countryNumber,
	std::string& areaNatPfx,
	const std::string& dest,
	ZelCountryRuleItem* rule)
{
	std::string result = reservedNumber();
	result += rule->getInternatPfx();
	result += operatorCode;
	const std::string internatRule = rule->getInternatRule();
	if (holds(internatRule, 'E')) result += underE;
	if (holds(internatRule, 'F'))
	{
		ZelCountryRuleItem* destRule = config->getCountryRule(config->getCountryCodeFromNumber(countryNumber));
		// A trunk prefix that stands in place of an area code is not dialled from abroad; the caller sees that too.
		if (destRule)
		{
			const std::string trunk = destRule->getLongDistPrefix();
			if (!trunk.empty() && areaNatPfx == trunk) areaNatPfx.clear();
		}
		result += areaNatPfx;
	}
	result += dest;
	return result;
}

void ZelDialable::mergePrefix(std::string& number, const std::string& prefix)
{
	// Position by position and never looking back: a number that shares only its first characters with the
	// prefix gets just the missing ones. Dialled numbers depend on exactly this, so it is not a prefix test.
	for (std::string::size_type i = 0; i < prefix.size(); ++i)
		if (i == number.size() || number[i] != prefix[i]) number.insert(i, 1, prefix[i]);
}

std::string ZelDialable::longDistTrace(
	const char* tag, const std::string& areaNatPfx, const std::string& dest, const std::string& result)
{
	return tag + ("makeLongDistDialableNumber() AreaNatPfx: '" + areaNatPfx) + "' dest: " + dest + " result: " + result;
}

} // namespace numbering
