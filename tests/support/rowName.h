#pragma once

#include <string>

namespace qncal::test {

/// Names the cases of a table after the `name` of its rows; the last argument of INSTANTIATE_TEST_SUITE_P.
inline constexpr auto rowName = [](const auto& row) { return std::string(row.param.name); };

} // namespace qncal::test
