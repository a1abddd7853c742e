#pragma once

#include "utilities/Date.h"

#include <cstdint>
#include <string>
#include <vector>

namespace qncal::host {

/// A row of `Reminders` that has come due.
struct Reminder {
    std::int32_t id = -1;
    std::int32_t userID = -1;
    /// What it hangs on, see `modPopUpReminders::reminderType`.
    std::int32_t type = 0;
    /// Day and time.
    Date due;
    std::string text;

    friend bool operator==(const Reminder&, const Reminder&) = default;
};

/// What became of the user's answer to a reminder.
enum class ReminderOutcome : std::uint8_t {
    done,
    deleted, ///< there is no such reminder any more: its item was deleted while it was on the screen
};

/// Host contract: where a `ReminderLoop` shows what has come due. Called on the loop's thread. Whatever is thrown
/// reaches the caller of the sweep, and the reminder comes again with the next one.
class ReminderDisplay {
public:
    /// Whether a reminder is still to be seen after the call.
    enum class Stay : std::uint8_t {
        gone,     ///< it was printed, or the user was done with it
        onScreen, ///< until `ReminderLoop::dismiss`, `snooze`, or `withdraw`
    };

    virtual ~ReminderDisplay() = default;
    /// Inside of the call the loop may be told to snooze or dismiss the reminder.
    virtual Stay show(const Reminder& reminder) = 0;
    /// Those whose moment passed while nobody looked, oldest first and at least one, to be shown as one digest.
    virtual Stay showMissed(const std::vector<Reminder>& reminders) = 0;
    /// A reminder on the screen does not hold any more: it was deleted or moved, as happens with its item. A moved one
    /// comes again at its new moment.
    virtual void withdraw(std::int32_t reminderID) = 0;
};

} // namespace qncal::host
