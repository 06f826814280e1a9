// TypesafeEnum.h
// Base of the library's type-safe enumerations: each enumerator carries an id given in construction order.

#ifndef Numbering_TypesafeEnum_INCLUDED
#define Numbering_TypesafeEnum_INCLUDED

#include "numbering/NumberingApi.h"

namespace numbering {

/// An enumerator with an integer id. Ids are handed out from next_id (starting at 1) in the order in which
/// enumerators are constructed; comparisons look at the ids only.
class Numbering_API TypesafeEnum
{
public:
	virtual ~TypesafeEnum();

	/// The id the next enumerator will take; 6 once the five origins exist.
	static int next_id;

	/// The enumerator's id.
	int getId() const;

	bool operator==(const TypesafeEnum& other) const;

	bool operator!=(const TypesafeEnum& other) const;

	/// Orders by id, that is by construction order.
	bool operator<(const TypesafeEnum& other) const;

protected:
	/// Takes the current next_id as id and increments next_id.
	TypesafeEnum();

private:
	int m_Id;
};

} // namespace numbering

#endif // Numbering_TypesafeEnum_INCLUDED
