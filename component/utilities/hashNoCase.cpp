#include "utilities/hashNoCase.h"

#include <cstdint>
#include <cstring>

namespace qncal {

namespace {

using Block = std::uint64_t;

Block blockAt(const char* bytes)
{
    Block block = 0;
    std::memcpy(&block, bytes, sizeof block);
    return block;
}

/// 0x20 makes the two cases of a letter one, and what else it makes one does no harm.
Block mixed(Block hash, Block block)
{
    constexpr Block lowerBits = 0x2020202020202020ULL;
    constexpr Block mixer = 0x9E3779B97F4A7C15ULL;
    hash = (hash ^ (block | lowerBits)) * mixer;
    return hash ^ (hash >> 32);
}

} // namespace

std::size_t hashNoCase(std::string_view name)
{
    Block hash = name.size();
    if (name.size() < sizeof(Block)) {
        Block block = 0;
        for (const char c : name)
            block = block << 8 | static_cast<unsigned char>(c);
        return static_cast<std::size_t>(mixed(hash, block));
    }
    for (std::size_t at = 0; at + sizeof(Block) < name.size(); at += sizeof(Block))
        hash = mixed(hash, blockAt(name.data() + at));
    // The last one overlaps the one before it where the length is no multiple of its size.
    return static_cast<std::size_t>(mixed(hash, blockAt(name.data() + name.size() - sizeof(Block))));
}

} // namespace qncal
