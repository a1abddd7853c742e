#include "store/HandleTable.h"

#include "store/storeError.h"

namespace qncal::host {

HandleTable::Opened HandleTable::open()
{
    if (free_.empty()) {
        if (slots_.size() > placeMask)
            throw RunTimeError(storeError::badHandle, "Too many record sets are open");
        free_.push_back(static_cast<std::uint32_t>(slots_.size()));
        slots_.emplace_back().cursor = std::make_unique<RecordCursor>();
    }
    const std::uint32_t place = free_.back();
    free_.pop_back();
    Slot& slot = slots_[place];
    slot.generation = slot.generation == lastGeneration ? 1 : slot.generation + 1;
    slot.handle = static_cast<std::int32_t>((slot.generation << placeBits) | place);
    return {slot.handle, *slot.cursor};
}

void HandleTable::close(std::int32_t handle)
{
    const std::uint32_t place = static_cast<std::uint32_t>(handle) & placeMask;
    slots_[place].cursor->close();
    slots_[place].handle = 0;
    free_.push_back(place);
}

} // namespace qncal::host
