#include "utilities/hashNoCase.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace qncal {

/// Eight bytes at a time; 0x20 makes the two cases of a letter one, and what else it makes one does no harm.
std::size_t hashNoCase(std::string_view name)
{
    constexpr std::uint64_t lowerBits = 0x2020202020202020ULL;
    constexpr std::uint64_t mixer = 0x9E3779B97F4A7C15ULL;
    std::uint64_t hash = name.size();
    for (std::size_t at = 0; at < name.size(); at += sizeof(std::uint64_t)) {
        std::uint64_t bytes = 0;
        std::memcpy(&bytes, name.data() + at, std::min(sizeof bytes, name.size() - at));
        hash = (hash ^ (bytes | lowerBits)) * mixer;
        hash ^= hash >> 32;
    }
    return static_cast<std::size_t>(hash);
}

} // namespace qncal
