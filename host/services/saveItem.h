#pragma once

#include "items/clsCalendarItem.h"

namespace qncal::host {

/// Saves an item, has its texts rendered from its own row, and brings its popup reminder and the notifications of its
/// client into line with it. A new item has no row to render from at its first save, so it is saved once more when it
/// has one. True when it is stored.
bool saveItem(clsCalendarItem& item);

/// Dates the notifications that a save makes: the day before the item. The date is no part of the item's row, so an
/// item that was loaded or moved needs it anew.
void notifyTheDayBefore(clsCalendarItem& item);

} // namespace qncal::host
