#pragma once

#include <QIcon>
#include <QString>

namespace qncal::host {

/// The pictures of the status icons are numbered from 1.
inline constexpr int statusIconCount = 42;

/// Line drawings that show on light and on dark backgrounds; none for any other number.
QIcon statusIcon(int number);
/// What the picture shows, for tool tips and screen readers.
QString statusIconName(int number);

} // namespace qncal::host
