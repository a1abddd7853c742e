#pragma once

#include "items/clsCalendarItem.h"

namespace qncal::host {

/// Saves an item and has its texts rendered from its own row. A new item has no row to render from at its first save,
/// so it is saved once more when it has one. True when it is stored.
inline bool saveItem(clsCalendarItem& item)
{
    const bool isNew = item.itemID() < 1;
    return item.saveCalendarItem() && (!isNew || item.saveCalendarItem());
}

} // namespace qncal::host
