#pragma once

#include "controls/Control.h"
#include "utilities/Date.h"

#include <QColor>
#include <QDateTime>
#include <QString>

#include <string>
#include <string_view>

namespace qncal::host {

// Values of the control models as Qt has them, and back.

QString toQt(std::string_view text);
std::string fromQt(const QString& text);

/// Twips are a twentieth of a point; a document or a column is measured in pixels at 96 dots per inch.
inline constexpr qreal twipsPerPixel = 15.0;

/// None for a negative number, which stands for a colour of the system.
QColor toQtColour(Colour colour);
Colour fromQtColour(const QColor& colour);

/// A moment of the calendar has no time zone; UTC is the one without gaps.
QDateTime toQt(const Date& date);
/// To the second; day 0 for an invalid moment.
Date fromQt(const QDateTime& moment);

/// A display pattern such as "hh:nn am/pm" as the pattern of Qt that shows the same.
QString toQtDatePattern(std::string_view pattern);

/// Models count characters (code points), Qt counts 16-bit units.
qsizetype unitsOfCharacters(const QString& text, std::int32_t characters);
std::int32_t charactersOfUnits(const QString& text, qsizetype units);

/// A caption for a widget without access keys: "&Save && go" becomes "Save & go".
QString withoutAccessKey(std::string_view caption);

/// Text colours that can be read on that background: white on a dark one, black on a light one.
QColor readableOn(const QColor& background);

} // namespace qncal::host
