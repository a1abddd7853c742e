#pragma once

#include "core/enumerations.h"
#include "services/HostEnvironment.h"
#include "utilities/Date.h"

#include <cstdint>
#include <functional>
#include <iosfwd>
#include <optional>
#include <vector>

namespace qncal::host::icalendar {

/// Which items are written. What is not set does not restrict.
struct ExportOptions {
    std::vector<enumLocalCalendarItemType> kinds;
    std::optional<Date> from;
    std::optional<Date> to;
    std::vector<std::int32_t> users;
};

struct ExportReport {
    int items = 0;
    /// Fewer than items where several users' rows of a group are one event.
    int components = 0;
};

using ExportProgress = std::function<void(int done, int total)>;

/// Writes items as one calendar, as docs/icalendar.md tells. Throws `RunTimeError` when the database fails.
ExportReport exportCalendar(HostEnvironment& host, const ExportOptions& options, std::ostream& out,
                            const ExportProgress& progress = {});

} // namespace qncal::host::icalendar
