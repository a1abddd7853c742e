#pragma once

#include "utilities/RunTimeError.h"

#include <cstdint>
#include <string>

namespace qncal::host {

/// The numbers of the run-time errors that the store raises.
namespace storeError {
inline constexpr std::int32_t badStatement = 3001;    ///< SQL text that the dialect does not know
inline constexpr std::int32_t unknownName = 3002;     ///< a table or field that is not there
inline constexpr std::int32_t badValue = 3003;        ///< a text that does not convert to its column
inline constexpr std::int32_t noCurrentRecord = 3004; ///< before the first or past the last record, or deleted
inline constexpr std::int32_t readOnly = 3005;        ///< a write through a record set that cannot write
inline constexpr std::int32_t badHandle = 3006;       ///< a handle that is not open
inline constexpr std::int32_t notConnected = 3007;    ///< no database is open
inline constexpr std::int32_t cannotOpen = 3008;      ///< missing, no database, or of a newer version
inline constexpr std::int32_t locked = 3009;          ///< another process holds the database too long
inline constexpr std::int32_t diskFull = 3010;
inline constexpr std::int32_t duplicateKey = 3011;
inline constexpr std::int32_t engine = 3012; ///< any other failure of the engine
} // namespace storeError

} // namespace qncal::host
