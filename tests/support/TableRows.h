// TableRows.h
// Test helpers for parameterised tests over tables of rows: the fixture and the name of each instance.

#ifndef Numbering_TableRows_INCLUDED
#define Numbering_TableRows_INCLUDED

#include <gtest/gtest.h>

#include <string>

namespace numbering {
namespace test {

/// The fixture of a TEST_P over rows of type Row: using StripTest = WithRows<ConfigFixture, StripRow>;
template <typename Fixture, typename Row>
class WithRows: public Fixture, public ::testing::WithParamInterface<Row>
{
};

/// Name generator for INSTANTIATE_TEST_SUITE_P over rows that have a "name" member.
inline constexpr auto rowName = [](const auto& info) { return std::string(info.param.name); };

} // namespace test
} // namespace numbering

#endif // Numbering_TableRows_INCLUDED
