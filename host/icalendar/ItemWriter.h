#pragma once

#include "icalendar/KnownItems.h"
#include "icalendar/People.h"
#include "icalendar/alarms.h"
#include "icalendar/importPlan.h"
#include "items/clsCalendarItem.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace qncal::host::icalendar {

/// Writes the rows of an import through calendar items. The rows of one bundle stand or fall together: `undo`
/// takes back those that were added since the last `finish`.
class ItemWriter {
public:
    struct Row {
        const Bundle& bundle;
        const PlannedRow& planned;
        std::int32_t userID = -1;
        const std::optional<AlarmReminder>& alarm;
        const std::vector<std::string>& kept;
        const std::optional<KnownItems::Row>& existing;
        /// 0 for none.
        std::int32_t series = 0;
        std::int32_t group = 0;
    };
    struct Counts {
        int added = 0;
        int updated = 0;
        int unchanged = 0;
    };

    ItemWriter(HostEnvironment& host, People& people, bool dryRun) : host_(host), people_(people), dryRun_(dryRun) {}

    /// Throws `RunTimeError` when the item was not saved.
    void write(const Row& row);
    Counts finish();
    void undo();

private:
    void fill(clsCalendarItem& item, const Row& row);
    void fillFields(clsCalendarItem& item, const CalendarComponent& component);
    void fillReminder(clsCalendarItem& item, const Row& row);
    void fillNotes(clsCalendarItem& item, const Row& row);
    void save(clsCalendarItem& item);
    void completePastReminder(const clsCalendarItem& item);

    HostEnvironment& host_;
    People& people_;
    bool dryRun_;
    Counts counts_;
    std::vector<std::pair<enumLocalCalendarItemType, std::int32_t>> added_;
};

} // namespace qncal::host::icalendar
