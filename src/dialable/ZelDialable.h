// ZelDialable.h
// Dialable maker: turns the parts of a canonical number into the digits the site's exchange must dial.

#ifndef Numbering_ZelDialable_INCLUDED
#define Numbering_ZelDialable_INCLUDED

#include "numbering/Logger.h"
#include "numbering/ZelCountryRuleItem.h"
#include "numbering/ZelDialRulesItem.h"
#include "numbering/ZelNumberingConfig.h"

#include <string>

namespace numbering {

/// Generic maker driven by a country's rule strings, of which only the letters E, F and I count.
/// Reference-counted (count 1 after construction, not atomic); country variants override single slots.
class ZelDialable
{
public:
	ZelDialable();

	// The order of the virtual functions below is part of the maker interface; keep it.
	virtual ~ZelDialable();

	/// International prefix, then country number (rule E), area part (rule F) and dest. May empty the caller's
	/// areaNatPfx when it is only the destination's trunk prefix.
	virtual std::string makeInternationalDialableNumber(
		std::string& countryNumber, std::string& areaNatPfx, std::string& dest, ZelCountryRuleItem* rule);

	virtual std::string makeLongDistDialableNumber(
		std::string& areaNatPfx, std::string& dest, ZelCountryRuleItem* rule, ZelDialRulesItem* site);

	virtual std::string makeLocalDialableNumber(std::string& areaNatPfx, std::string& dest, ZelCountryRuleItem* rule);

	/// Adds one to the reference count.
	virtual void duplicate();

	/// Subtracts one and deletes the maker at 0.
	virtual void release();

	/// The carrier code at the start of number; the generic maker knows none and returns "".
	virtual std::string extractOperatorPrefix(std::string number);

	/// Number of live makers (diagnostics).
	static int _count;

	ZelDialable(const ZelDialable&) = delete;

	ZelDialable& operator=(const ZelDialable&) = delete;

protected:
	/// An empty number with room for the longest number the library builds.
	static std::string reservedNumber()
	{
		std::string number;
		number.reserve(ZelNumberingConfig::MAX_PHONE_NUMBER_LENGTH);
		return number;
	}

	/// areaNatPfx followed by dest, in a reservedNumber().
	static std::string areaAndDest(const std::string& areaNatPfx, const std::string& dest)
	{
		std::string number = reservedNumber();
		number += areaNatPfx;
		number += dest;
		return number;
	}

	/// True when rule holds letter: rules are read only for single capital letters, wherever they stand.
	static bool holds(const std::string& rule, char letter)
	{
		return rule.find(letter) != std::string::npos;
	}

	/// The rule's international prefix and operatorCode, then underE (rule E), the area part (rule F) and dest.
	/// An area part that is only the long-distance prefix of the country with countryNumber in config is dropped,
	/// also from the caller's areaNatPfx.
	static std::string internationalNumber(ZelNumberingConfig* config,
		const std::string& operatorCode,
		const std::string& underE,
		const std::string& countryNumber,
		std::string& areaNatPfx,
		const std::string& dest,
		ZelCountryRuleItem* rule);

	/// Makes number begin with prefix, one character at a time: wherever number differs from prefix (or has
	/// ended), the prefix character is inserted; it never looks back. "0" into "123" gives "0123", "00" into
	/// "0612" gives "00612", "00" into "00612" leaves it alone.
	static void mergePrefix(std::string& number, const std::string& prefix);

	/// The closing debug text of a long-distance maker: tag ("61-AU " or "") + "makeLongDistDialableNumber()
	/// AreaNatPfx: '" + areaNatPfx + "' dest: " + dest + " result: " + result.
	static std::string longDistTrace(
		const char* tag, const std::string& areaNatPfx, const std::string& dest, const std::string& result);

private:
	static Logger* logger;

	int m_RefCount;
};

} // namespace numbering

#endif // Numbering_ZelDialable_INCLUDED
