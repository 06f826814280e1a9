// ZelClid.h
// Calling-line identification: a number with its origin.

#ifndef Numbering_ZelClid_INCLUDED
#define Numbering_ZelClid_INCLUDED

#include "numbering/NumberingApi.h"
#include "numbering/ZelEnumOrigin.h"

#include <string>

namespace numbering {

/// Reference-counted record returned by ZelNumberingRules::makeClid. The count is 1 after construction;
/// hold it through Poco::AutoPtr or call release() once. The count is not atomic.
class Numbering_API ZelClid
{
public:
	/// Number "", origin ANY.
	ZelClid();

	/// Stores both unchanged; the origin is borrowed, not owned.
	ZelClid(std::string number, ZelEnumOrigin* origin);

	// Hosts compiled against this header depend on the order of the virtual functions below.
	virtual ~ZelClid();

	virtual void setNumber(std::string number);

	virtual void setOrigin(ZelEnumOrigin* origin);

	/// A copy of the number.
	virtual std::string getNumber();

	virtual ZelEnumOrigin* getOrigin();

	/// Adds one to the reference count.
	virtual void duplicate();

	/// Subtracts one from the reference count and deletes the record when it reaches 0.
	virtual void release();

	/// Number of records constructed so far (diagnostics).
	static int _count;

private:
	std::string m_Number;
	ZelEnumOrigin* m_Origin;
	int m_RefCount;
};

} // namespace numbering

#endif // Numbering_ZelClid_INCLUDED
