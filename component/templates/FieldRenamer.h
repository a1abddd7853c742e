#pragma once

#include "templates/fieldRenaming.h"

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace qncal {

/// Applies lines of renaming one after the other, each to every occurrence and without regard to ASCII case. A later
/// line sees what an earlier one has put in.
///
/// A text that no line touches, the usual case, costs one walk over it, however many lines there are.
class FieldRenamer {
public:
    /// No old text is shorter than two bytes.
    explicit FieldRenamer(std::vector<FieldRenaming> lines);

    void apply(std::string& text) const;

private:
    using Line = std::uint16_t;
    static constexpr Line none = UINT16_MAX;

    Line firstMatching(std::string_view text, Line from) const;
    static std::size_t bucketOf(std::string_view text);

    /// How many leading bytes of an old text choose its bucket; a shorter one stands in the list of short ones.
    static constexpr std::size_t prefixLength = 5;
    static constexpr std::size_t bucketCount = 256;

    std::vector<FieldRenaming> lines_;
    /// The bytes with which an old text begins, and the pairs of bytes.
    std::bitset<256> firstBytes_;
    std::bitset<65536> firstPairs_;
    std::array<std::vector<Line>, bucketCount> buckets_;
    std::vector<Line> shortLines_;
    std::bitset<256> shortFirstBytes_;
};

} // namespace qncal
