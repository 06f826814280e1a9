// TypesafeEnum.cpp

#include "numbering/TypesafeEnum.h"

namespace numbering {

int TypesafeEnum::next_id = 1;

TypesafeEnum::TypesafeEnum():
	m_Id(next_id++)
{
}

TypesafeEnum::~TypesafeEnum() = default;

int TypesafeEnum::getId() const
{
	return m_Id;
}

bool TypesafeEnum::operator==(const TypesafeEnum& other) const
{
	return m_Id == other.m_Id;
}

bool TypesafeEnum::operator!=(const TypesafeEnum& other) const
{
	return !(*this == other);
}

bool TypesafeEnum::operator<(const TypesafeEnum& other) const
{
	return m_Id < other.m_Id;
}

} // namespace numbering
