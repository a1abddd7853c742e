#pragma once

namespace qncal {

/// Lets other events of the application run, through the dialog host; nothing happens while no host is set.
/// What runs may change or end any object that is not held.
void letOtherEventsRun();

} // namespace qncal
