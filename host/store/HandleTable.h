#pragma once

#include "store/RecordCursor.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace qncal::host {

/// The open record sets by handle. A handle holds a place in a list and the generation of that place, so that
/// one that was closed is not taken for its successor. Closed record sets keep their memory for the next.
class HandleTable {
public:
    struct Opened {
        std::int32_t handle;
        RecordCursor& cursor;
    };
    Opened open();
    /// None when the handle is not open.
    RecordCursor* find(std::int32_t handle) const
    {
        const std::uint32_t place = static_cast<std::uint32_t>(handle) & placeMask;
        if (handle <= 0 || place >= slots_.size() || slots_[place].handle != handle)
            return nullptr;
        return slots_[place].cursor.get();
    }
    void close(std::int32_t handle);
    std::size_t openCount() const { return slots_.size() - free_.size(); }

private:
    static constexpr std::uint32_t placeBits = 20;
    static constexpr std::uint32_t placeMask = (1U << placeBits) - 1;
    static constexpr std::uint32_t lastGeneration = (1U << (31 - placeBits)) - 1;

    struct Slot {
        std::int32_t handle = 0; ///< 0 while closed
        std::uint32_t generation = 0;
        std::unique_ptr<RecordCursor> cursor;
    };
    std::vector<Slot> slots_;
    std::vector<std::uint32_t> free_;
};

} // namespace qncal::host
