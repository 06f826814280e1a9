// ZelCNP.h
// Country numbering plan: turns a national number into the canonical form of one country.

#ifndef Numbering_ZelCNP_INCLUDED
#define Numbering_ZelCNP_INCLUDED

#include "numbering/ZelDialRulesItem.h"

#include <string>

namespace numbering {

/// Abstract, reference-counted plan (count 1 after construction, not atomic). Plans are built by
/// ZelCNPFactory and owned by the ZelCNPManager cache.
class ZelCNP
{
public:
	ZelCNP();

	// The order of the virtual functions below is part of the plan interface; keep it.
	virtual ~ZelCNP();

	/// The canonical number of number as dialled at the site described by rules, or number unchanged when the
	/// plan does not recognise it.
	virtual std::string qap_Country_MakeCanonicalNumber(std::string number, ZelDialRulesItem* rules) = 0;

	/// Adds one to the reference count.
	virtual void duplicate();

	/// Subtracts one and deletes the plan at 0.
	virtual void release();

	/// Number of live plans (diagnostics).
	static int _count;

	ZelCNP(const ZelCNP&) = delete;

	ZelCNP& operator=(const ZelCNP&) = delete;

private:
	int m_RefCount;
};

} // namespace numbering

#endif // Numbering_ZelCNP_INCLUDED
