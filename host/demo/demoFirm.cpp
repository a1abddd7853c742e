#include "demo/demoFirm.h"

#include "demo/DemoRandom.h"
#include "demo/demoCalendar.h"
#include "demo/demoClients.h"

namespace qncal::host {

void fillDemoFirm(HostEnvironment& host, const DemoOptions& options, const DemoProgress& progress)
{
    DemoRandom random(options.seed);
    const DemoPeople people = addDemoPeople(host, options, random);
    addDemoHolidays(host);
    const DemoSchemes schemes = addDemoSchemes(host);
    addDemoLabels(host);
    addDemoItems(host, options, people, schemes, random, progress);
}

} // namespace qncal::host
