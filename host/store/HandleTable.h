#pragma once

#include "store/RecordCursor.h"

#include <cstdint>
#include <deque>
#include <memory>
#include <vector>

namespace qncal::host {

/// The open record sets by handle. A handle holds a place in a list and the generation of that place, so that
/// one that was closed is not taken for its successor: places are used again in turn, and only when many are free.
/// A closed handle would come to life again after more than 30 million others. Closed record sets keep their
/// memory for the next.
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

    template <class Operation>
    void forEachOpen(Operation&& operation)
    {
        for (const Slot& slot : slots_)
            if (slot.cursor)
                operation(*slot.cursor);
    }
    std::size_t openCount() const { return slots_.size() - free_.size(); }

private:
    static constexpr std::uint32_t placeBits = 16;
    static constexpr std::uint32_t placeMask = (1U << placeBits) - 1;
    static constexpr std::uint32_t lastGeneration = (1U << (31 - placeBits)) - 1;
    static constexpr std::size_t placesInTurn = 1024;

    struct Slot {
        std::int32_t handle = 0; ///< 0 while closed
        std::uint32_t generation = 0;
        std::unique_ptr<RecordCursor> cursor; ///< none while closed
    };
    std::vector<Slot> slots_;
    std::deque<std::uint32_t> free_;                    ///< the longest free first
    std::vector<std::unique_ptr<RecordCursor>> closed_; ///< record sets without a handle
};

} // namespace qncal::host
