#include "controls/otherEvents.h"

#include "controls/DialogHost.h"

namespace qncal {

void letOtherEventsRun()
{
    if (const auto host = dialogHost())
        host->doEvents();
}

} // namespace qncal
