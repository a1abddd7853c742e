#pragma once

#include <cstdint>
#include <string_view>

namespace qncal {

/// A list on a dialog that code fills line by line. Each line carries a number of the filler's own, its `ItemData`.
/// A call may throw `RunTimeError`; the line is then not added.
class ListTarget {
public:
    virtual ~ListTarget() = default;
    virtual void addLine(std::string_view text, std::int32_t itemData) = 0;
    virtual void clear() = 0;
    /// Redraws the list after it was filled.
    virtual void refresh() = 0;
};

} // namespace qncal
