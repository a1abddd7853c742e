#pragma once

#include "firmcal-desktop/commandLine.h"

#include <iosfwd>

namespace qncal::desktop {

/// Shows the window and returns when it is closed: the exit status. Needs a `QApplication`.
int showDesktop(const Options& options, std::ostream& err);

/// Whether windows can be shown at all, as the environment says.
bool hasDisplay();

} // namespace qncal::desktop
