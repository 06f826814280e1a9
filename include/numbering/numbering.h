// numbering.h
// Umbrella header: the whole public interface of libNumbering.

#ifndef Numbering_numbering_INCLUDED
#define Numbering_numbering_INCLUDED

#include "numbering/Logger.h"
#include "numbering/NumberingApi.h"
#include "numbering/TypesafeEnum.h"
#include "numbering/ZelClid.h"
#include "numbering/ZelCountryRuleItem.h"
#include "numbering/ZelDialRulesItem.h"
#include "numbering/ZelEnumOrigin.h"
#include "numbering/ZelNumberingConfig.h"
#include "numbering/ZelNumberingRules.h"
#include "numbering/ZelUnsupportedCountryException.h"
#include "numbering/number_format_exception.h"

#endif // Numbering_numbering_INCLUDED
