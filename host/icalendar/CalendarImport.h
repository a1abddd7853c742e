#pragma once

#include "icalendar/contentLines.h"
#include "services/HostEnvironment.h"
#include "utilities/Date.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace qncal::host::icalendar {

struct ImportOptions {
    /// The last day that occurrences of a recurring item are made for.
    Date lastDay;
    /// The time zone of the calendar, by its name in the time zone database; empty for the system's.
    std::string timeZone = {};
    /// Tells what would be done; nothing is written.
    bool dryRun = false;
};

/// What an import did otherwise than the file says, or did not do.
struct ImportRemark {
    enum class Sort : std::uint8_t {
        kept,    ///< no column holds it; it stands in the notes
        changed, ///< on the calendar otherwise than in the file
        lost,    ///< not in the database
        skipped, ///< a whole component that was not imported
    };
    Sort sort = Sort::kept;
    int line = 0;
    /// What the component is about.
    std::string subject;
    std::string text;
};

struct ImportReport {
    int components = 0;
    int added = 0;
    int updated = 0;
    int unchanged = 0;
    int skipped = 0;
    std::vector<ImportRemark> remarks = {};
};

/// Called after each component with how many are done, of how many.
using ImportProgress = std::function<void(int done, int total)>;

/// Makes calendar items of the components of a file, as docs/icalendar.md tells. Items that came from the file
/// before are updated. A component that cannot be imported is left out as a whole, and remarked on.
/// Throws `CalendarError` for a time zone that does not exist, and `RunTimeError` when the database fails.
ImportReport importCalendars(HostEnvironment& host, const std::vector<CalendarComponent>& calendars,
                             const ImportOptions& options, const ImportProgress& progress = {});

} // namespace qncal::host::icalendar
