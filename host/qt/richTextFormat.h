#pragma once

#include <QTextFormat>

namespace qncal::host {

// What the reader and the writer of rich text agree upon.

/// Twips are a twentieth of a point; a document measures in pixels at 96 dots per inch.
inline constexpr qreal twipsPerPixel = 15.0;
/// What a stream that says nothing is written in, in half points.
inline constexpr int standardHalfPoints = 17;
inline constexpr const char* standardFont = "MS Sans Serif";

/// The first-line indent of a bulleted paragraph in twips. Its text begins at the left indent all the same: the
/// bullet hangs before it.
inline constexpr int bulletIndentProperty = QTextFormat::UserProperty + 1;
/// The left indent of a new bulleted paragraph, in twips.
inline constexpr int bulletIndent = 360;

} // namespace qncal::host
