#pragma once

#include "common/itemRows.h"
#include "common/statusFields.h"

#include <QPixmap>
#include <QString>

namespace qncal::desktop {

/// The colour of an item's title bar as a small block; empty for an invalid colour.
QPixmap swatch(const QColor& colour);

/// The icons of the statuses that an item has, side by side, each on the status's colour; a status without an icon is
/// a block of its colour. Empty when the item has none.
QPixmap statusPicture(const firmcal::ItemRow& row, const firmcal::StatusFields& statuses);

/// The names of the statuses that an item has, joined by commas.
QString statusNames(const firmcal::ItemRow& row, const firmcal::StatusFields& statuses);

} // namespace qncal::desktop
