#include "store/HandleTable.h"

#include "store/storeError.h"

#include <utility>

namespace qncal::host {

HandleTable::Opened HandleTable::open()
{
    if (free_.size() < placesInTurn && slots_.size() <= placeMask) {
        free_.push_front(static_cast<std::uint32_t>(slots_.size()));
        slots_.emplace_back();
    }
    if (free_.empty())
        throw RunTimeError(storeError::badHandle, "Too many record sets are open");
    if (closed_.empty())
        closed_.push_back(std::make_unique<RecordCursor>());
    const std::uint32_t place = free_.front();
    free_.pop_front();
    Slot& slot = slots_[place];
    slot.generation = slot.generation == lastGeneration ? 1 : slot.generation + 1;
    slot.handle = static_cast<std::int32_t>((slot.generation << placeBits) | place);
    slot.cursor = std::move(closed_.back());
    closed_.pop_back();
    return {slot.handle, *slot.cursor};
}

void HandleTable::close(std::int32_t handle)
{
    const std::uint32_t place = static_cast<std::uint32_t>(handle) & placeMask;
    Slot& slot = slots_[place];
    slot.cursor->close();
    closed_.push_back(std::move(slot.cursor));
    slot.handle = 0;
    free_.push_back(place);
}

} // namespace qncal::host
