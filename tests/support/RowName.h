// RowName.h
// Test helper: names each instance of a parameterised test after the name of its row.

#ifndef Numbering_RowName_INCLUDED
#define Numbering_RowName_INCLUDED

#include <gtest/gtest.h>

#include <string>

namespace numbering {
namespace test {

/// Name generator for INSTANTIATE_TEST_SUITE_P over rows that have a "name" member.
struct RowName
{
	template <typename Row>
	std::string operator()(const ::testing::TestParamInfo<Row>& info) const
	{
		return info.param.name;
	}
};

} // namespace test
} // namespace numbering

#endif // Numbering_RowName_INCLUDED
