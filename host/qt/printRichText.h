#pragma once

#include <functional>
#include <string_view>

class QPrinter;
class QWidget;

namespace qncal::host {

/// Prints a rich text on the printer that `choose` sets up, or the print dialog when that is empty. False when the
/// user cancelled or the printer cannot be used.
bool printRichText(std::string_view richText, QWidget* owner, const std::function<bool(QPrinter&)>& choose);

} // namespace qncal::host
