// TrunkPrefixPlan.h
// Table plans whose national numbers carry the trunk prefix "0", read as dialled and behind the external prefix.

#ifndef Numbering_TrunkPrefixPlan_INCLUDED
#define Numbering_TrunkPrefixPlan_INCLUDED

#include "plans/AreaCodeTablePlan.h"

#include <vector>

namespace numbering {

/// Reads a number in two passes: as dialled, then behind the site's external prefix. A pass reads a number
/// beginning with "0" as national, "0" + area code + subscriber, and, in the second pass only and with
/// translation on, any other number as local to the site. A number that is not behind the external prefix and
/// begins with "0" has had its national reading in the first pass: the second pass reads it only as local. A
/// number no pass reads keeps its country when it, or the number behind the external prefix, is "0" + 3 to 15
/// digits: "+CC (0) " + those digits. What sets the countries apart is their Country data; the hooks below
/// decide what is not data, and their defaults read the data.
class TrunkPrefixPlan: public AreaCodeTablePlan
{
public:
	/// Lengths from min to max, both included.
	struct Lengths
	{
		std::string::size_type min;
		std::string::size_type max;

		bool holds(std::string::size_type length) const
		{
			return length >= min && length <= max;
		}
	};

	/// A block of numbers: those that begin with lead and whose length is in lengths.
	struct Block
	{
		std::string lead;
		Lengths lengths;

		bool holds(const std::string& digits) const;
	};

	/// The national lengths of an open plan: a number behind a known area code needs 3 subscriber digits, and a
	/// number whose code the table does not know has no reading.
	static constexpr Lengths OPEN_PLAN{0, 0};

	/// The info line of most countries when neither table file opens.
	static constexpr const char* NO_TABLE_TEXT = "No specific dialing rules configuration file";

	/// One country's data; "digits" are those after the trunk prefix.
	struct Country
	{
		/// The table plan's constructor arguments (AreaCodeTablePlan).
		const char* callingCode;
		const char* className;
		const char* noCountryFileText;
		const char* noDefaultFileText;
		/// Number of digits of a national number, or OPEN_PLAN.
		Lengths national = OPEN_PLAN;
		/// Length of a local number, which begins with 2 to 9; the site's area code counts when withSiteArea.
		Lengths local = {0, std::string::npos};
		bool localWithSiteArea = false;
		/// National numbers written "+CC (0) " + digits before the table is asked.
		std::vector<Block> zeroFormFirst = {};
		/// National numbers written so too when the table does not know their code, besides those of national
		/// length.
		std::vector<Block> zeroFormIfUnknown = {};
	};

	/// The canonical number, or number unchanged when no rule reads it or it is shorter than 3.
	/// Throws Poco::NullPointerException when a national number reaches a plan without a tree.
	std::string qap_Country_MakeCanonicalNumber(std::string number, ZelDialRulesItem* rules) override;

protected:
	/// Reads the country's table (AreaCodeTablePlan); traces go to logger.
	TrunkPrefixPlan(Logger* logger, const Country& country);

	/// One reading of a number: candidate is the number read, dialled the number as given to the plan (candidate
	/// itself, or candidate behind the external prefix), site the site's rules. A candidate without trunk prefix
	/// may be local only when mayBeLocal, in the second pass.
	struct Pass
	{
		const std::string& candidate;
		const std::string& dialled;
		ZelDialRulesItem* site;
		bool mayBeLocal;
	};

	/// What a country decides about a national number before its table is asked.
	enum class Verdict
	{
		AskTable,
		NotNational,
		/// The result is set.
		Read
	};

	/// True, with result set, when the pass reads its candidate: as a service number, else as national or local.
	virtual bool readPass(const Pass& pass, std::string& result);

	/// True, with result set, when candidate is a service number with a form of its own; both passes ask this
	/// first. None by default.
	virtual bool readServiceNumber(const std::string& candidate, std::string& result);

	/// Decides a national number (digits) before the table is asked; by default the zeroFormFirst blocks are
	/// read in zero form and any other number goes to the table.
	virtual Verdict decideBeforeTable(const std::string& digits, const Pass& pass, std::string& result);

	/// True, with result set, when a national number (digits) whose code the table does not know is read anyway;
	/// siteArea is the site's area code. By default one of national length or of a zeroFormIfUnknown block, in
	/// zero form.
	virtual bool readUnknownCode(const std::string& digits, const std::string& siteArea, std::string& result);

	/// Whether candidate is a local number of the area siteArea; by the country's local data by default.
	virtual bool isLocal(const std::string& siteArea, const std::string& candidate);

	/// Whether number is read again without ext in the second pass; by default when ext is not empty and is
	/// followed by 3 to 16 characters.
	virtual bool isBehindExtPrefix(const std::string& number, const std::string& ext);

	/// True, with result set, when a number no pass reads keeps the plan's country; by default "+CC (0) " + the
	/// digits after the trunk prefix of number or of stripped (number behind the external prefix, or "").
	virtual bool keepCountry(const std::string& number, const std::string& stripped, std::string& result);

	/// The first of blocks that holds digits, or null.
	static const Block* findBlock(const std::vector<Block>& blocks, const std::string& digits);

	/// "+CC (" + area + ") " + subscriber.
	std::string areaForm(const std::string& area, const std::string& subscriber) const;

	/// "+CC (0) " + digits.
	std::string zeroForm(const std::string& digits) const;

	/// "+CC ", the start of every canonical number of the plan.
	const std::string& countryHead() const;

private:
	bool readNational(std::string digits, const Pass& pass, std::string& result);

	bool readLocal(const std::string& candidate, ZelDialRulesItem* site, std::string& result);

	const Country m_Country;
	const std::string m_CountryHead;
	/// "+CC (".
	const std::string m_AreaStart;
};

} // namespace numbering

#endif // Numbering_TrunkPrefixPlan_INCLUDED
