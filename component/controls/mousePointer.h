#pragma once

#include "controls/DialogHost.h"

namespace qncal {

/// The mouse pointer of the dialog host; the standard one, and not changeable, while no host is set.
MousePointer mousePointer();
void mousePointer(MousePointer pointer);

} // namespace qncal
