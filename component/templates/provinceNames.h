#pragma once

#include <string_view>

namespace qncal {

/// The two forms of a province, as they are written in an address.
struct ProvinceName {
    std::string_view abbreviated;
    std::string_view full;
};

/// The province that a text stands for in one of the usual spellings, in any case and without blanks around it;
/// none when it is unknown.
const ProvinceName* findProvince(std::string_view province);

} // namespace qncal
