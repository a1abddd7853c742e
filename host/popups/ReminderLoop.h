#pragma once

#include "core/DatabaseService.h"
#include "popups/ReminderDisplay.h"

#include <map>
#include <memory>
#include <optional>

namespace qncal::host {

/// Brings popup reminders to the user: each sweep shows the rows of `Reminders` that have come due since the last
/// and marks them completed. A host sweeps at each tick of a timer, once a minute or more often.
///
/// A sweep reads the due rows and the latest of the completed ones, however many there are besides. A reminder that
/// moves ahead after it was shown, as its item does, comes again, also when its new moment has passed by the next
/// sweep; one that moves back was seen already. Failures of the database are thrown as `RunTimeError`; what was not
/// marked comes again. Without a connection nothing happens.
class ReminderLoop {
public:
    /// A reminder that is shown later than this belongs to the digest of the missed ones.
    static constexpr int missedAfterMinutes = 5;

    /// The display must outlive the loop. Without a user the reminders of all users are shown.
    ReminderLoop(std::shared_ptr<DatabaseService> database, ReminderDisplay& display,
                 std::optional<std::int32_t> userID = std::nullopt);

    /// How many reminders were shown.
    std::size_t sweep();

    using Outcome = ReminderOutcome;
    /// Shows the reminder again so many minutes from now. One that was moved while it was on the screen comes at its
    /// new moment instead. Throws `RunTimeError` 5 below one minute.
    Outcome snooze(std::int32_t reminderID, int minutes);
    /// Done with it. A reminder that is not due yet will not come; one that was moved while it was on the screen will.
    Outcome dismiss(std::int32_t reminderID);

private:
    std::vector<Reminder> dueAt(Date moment) const;
    void readDue(const std::string& condition, std::vector<Reminder>& due) const;
    std::string ofUser() const;
    bool isStillDue(const Reminder& reminder) const;
    /// Marks what was shown; a reminder that has been moved or deleted meanwhile is left alone.
    void complete(const Reminder& reminder);
    /// Opens the reminders again that moved ahead since they were shown.
    void rearmMoved(Date moment);
    void withdrawOutdated();
    /// Writes a user's answer, unless the row is gone or stands for another moment than the one on the screen.
    template <class Write>
    Outcome answer(std::int32_t reminderID, Write write);
    template <class Show>
    void present(const std::vector<Reminder>& reminders, Show show);

    std::shared_ptr<DatabaseService> database_;
    ReminderDisplay& display_;
    std::optional<std::int32_t> userID_;
    /// The moments for which the reminders on the screen came.
    std::map<std::int32_t, Date> onScreen_;
};

} // namespace qncal::host
