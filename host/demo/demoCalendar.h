#pragma once

#include "demo/demoFirm.h"

#include <array>
#include <cstdint>
#include <vector>

namespace qncal::host {

class DemoRandom;
struct DemoPeople;

/// The colour schemes of the three kinds, by kind.
using DemoSchemes = std::array<std::vector<std::int32_t>, 3>;

/// The statutory holidays of this year and the next, by the host's region.
void addDemoHolidays(HostEnvironment& host);
DemoSchemes addDemoSchemes(HostEnvironment& host);
/// Labels, colours and icons of the status fields, and labels of the first custom fields.
void addDemoLabels(HostEnvironment& host);

/// Makes the items. Throws `RunTimeError` when one cannot be saved.
void addDemoItems(HostEnvironment& host, const DemoOptions& options, const DemoPeople& people,
                  const DemoSchemes& schemes, DemoRandom& random, const DemoProgress& progress);

} // namespace qncal::host
