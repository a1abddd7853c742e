#pragma once

#include <cstdint>

namespace qncal::host {

/// What the store did, for tests and measurements.
struct StoreStatistics {
    std::uint64_t recordsRead = 0; ///< records whose columns were read
    std::uint64_t keysRead = 0;    ///< records of which only the keys were read
    std::uint64_t updates = 0;
    std::uint64_t inserts = 0;
    std::uint64_t plans = 0; ///< statements parsed and prepared
};

} // namespace qncal::host
