// ZelEnumOrigin.h
// Origin of a number: where a calling-line identity comes from.

#ifndef Numbering_ZelEnumOrigin_INCLUDED
#define Numbering_ZelEnumOrigin_INCLUDED

#include "numbering/NumberingApi.h"
#include "numbering/TypesafeEnum.h"

#include <string>

namespace numbering {

/// The five origins, created at library start-up in this order, which fixes their ids 1 to 5. Origins are
/// passed and stored as pointers to these objects (&ZelEnumOrigin::NATIONAL) and are never copied or freed.
class Numbering_API ZelEnumOrigin: public TypesafeEnum
{
public:
	static ZelEnumOrigin ANY;           ///< "Any", id 1
	static ZelEnumOrigin INTERNATIONAL; ///< "International", id 2
	static ZelEnumOrigin NATIONAL;      ///< "National", id 3
	static ZelEnumOrigin PRIVATE_1;     ///< "Private", id 4
	static ZelEnumOrigin PUBLIC_1;      ///< "Public", id 5

	~ZelEnumOrigin() override;

	/// The display name ("Any", "International", ...).
	std::string getName() const;

	ZelEnumOrigin(const ZelEnumOrigin&) = delete;

	ZelEnumOrigin& operator=(const ZelEnumOrigin&) = delete;

private:
	explicit ZelEnumOrigin(std::string name);

	std::string m_Name;
};

} // namespace numbering

#endif // Numbering_ZelEnumOrigin_INCLUDED
