// ZelCNP_43.h
// Austrian numbering plan: open plan, with mobile and service codes in the table like area codes.

#ifndef Numbering_ZelCNP_43_INCLUDED
#define Numbering_ZelCNP_43_INCLUDED

#include "plans/TrunkPrefixPlan.h"

namespace numbering {

/// Austria (calling code 43). Subscriber numbers have no fixed length, so the table must hold every code,
/// mobile and service codes included ("0664 1234567" gives "+43 (664) 1234567"). A number whose code is
/// missing keeps its country as "+43 (0) " + the digits after the trunk prefix.
/// "0158800" gives "+43 (1) 58800", "58800" at a site with area code 1 "+43 (1) 58800".
class ZelCNP_43: public TrunkPrefixPlan
{
public:
	ZelCNP_43();

private:
	static Logger* logger;
};

} // namespace numbering

#endif // Numbering_ZelCNP_43_INCLUDED
