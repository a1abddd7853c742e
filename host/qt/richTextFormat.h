#pragma once

#include "qt/convert.h"

#include <QTextFormat>

namespace qncal::host {

// What the reader and the writer of rich text agree upon.

/// In pixels: how far tabs stand apart, and what one step of indenting is.
inline constexpr qreal halfInch = 720 / twipsPerPixel;
/// What a stream that says nothing is written in, in half points.
inline constexpr int standardHalfPoints = 17;
inline constexpr const char* standardFont = "MS Sans Serif";

/// The first-line indent of a bulleted paragraph in twips. Its text begins at the left indent all the same: the
/// bullet hangs before it.
inline constexpr int bulletIndentProperty = QTextFormat::UserProperty + 1;
/// The left indent of a new bulleted paragraph, in twips.
inline constexpr int bulletIndent = 360;

} // namespace qncal::host
