#include "popups/ReminderLoop.h"

#include "services/Rows.h"
#include "services/addMinutes.h"
#include "utilities/Clock.h"
#include "utilities/RunTimeError.h"
#include "utilities/dateText.h"

#include <algorithm>

namespace qncal::host {

namespace {

std::string byKey(std::int32_t reminderID)
{
    return "SELECT Reminders.* FROM Reminders WHERE ReminderID=" + std::to_string(reminderID) + ";";
}

Date momentOf(const Rows& row)
{
    const Variant day = row.field("ReminderDate");
    const Variant time = row.field("ReminderTime");
    if (day.isNull())
        return noDate;
    const Date date = day.toDate();
    return time.isNull() ? date : Date::of(date.civilDate(), time.toDate().civilTime());
}

std::string clockTime(Date moment) { return formatDate(moment, "hh:nn:ss"); }

void markCompleted(Rows& row, bool completed)
{
    row.set("Completed", booleanText(completed));
    if (completed)
        row.set("ShownFor", defaultDateText(momentOf(row)));
}

} // namespace

ReminderLoop::ReminderLoop(std::shared_ptr<DatabaseService> database, ReminderDisplay& display,
                           std::optional<std::int32_t> userID)
    : database_(std::move(database)), display_(display), userID_(userID)
{
}

std::size_t ReminderLoop::sweep()
{
    if (!database_->isConnected())
        return 0;
    withdrawOutdated();
    const Date moment = now();
    rearmMoved(moment);
    std::vector<Reminder> due = dueAt(moment);
    const Date missedBefore = addMinutes(moment, -missedAfterMinutes);
    const auto firstPresent =
        std::ranges::find_if(due, [&](const Reminder& reminder) { return reminder.due >= missedBefore; });
    const std::vector<Reminder> missed(due.begin(), firstPresent);
    due.erase(due.begin(), firstPresent);

    std::size_t shown = missed.size();
    if (!missed.empty())
        present(missed, [&] { return display_.showMissed(missed); });
    for (const Reminder& reminder : due) {
        // Showing another may have taken its time.
        if (!isStillDue(reminder))
            continue;
        present({reminder}, [&] { return display_.show(reminder); });
        ++shown;
    }
    return shown;
}

template <class Show>
void ReminderLoop::present(const std::vector<Reminder>& reminders, Show show)
{
    // Noted first: while a display waits for its user, the next tick of the timer must not show them again.
    for (const Reminder& reminder : reminders)
        onScreen_[reminder.id] = reminder.due;
    const auto forget = [&] {
        for (const Reminder& reminder : reminders)
            onScreen_.erase(reminder.id);
    };
    try {
        const ReminderDisplay::Stay stay = show();
        for (const Reminder& reminder : reminders)
            complete(reminder);
        if (stay == ReminderDisplay::Stay::gone)
            forget();
    } catch (...) {
        forget();
        throw;
    }
}

template <class Write>
ReminderLoop::Outcome ReminderLoop::answer(std::int32_t reminderID, Write write)
{
    Rows row = Rows::change(*database_, byKey(reminderID));
    const Outcome outcome = row.isEmpty() ? Outcome::deleted : Outcome::done;
    const auto shown = onScreen_.find(reminderID);
    if (outcome == Outcome::done && (shown == onScreen_.end() || shown->second == momentOf(row)))
        write(row);
    row.close();
    onScreen_.erase(reminderID);
    return outcome;
}

ReminderLoop::Outcome ReminderLoop::snooze(std::int32_t reminderID, int minutes)
{
    if (minutes < 1)
        throw RunTimeError(errorNumber::invalidProcedureCall, "A reminder is put off by one minute or more");
    return answer(reminderID, [&](Rows& row) {
        const Date again = addMinutes(now(), minutes);
        row.set("ReminderDate", defaultDateText(again.dateOnly()));
        row.set("ReminderTime", clockTime(again));
        markCompleted(row, false);
    });
}

ReminderLoop::Outcome ReminderLoop::dismiss(std::int32_t reminderID)
{
    return answer(reminderID, [](Rows& row) { markCompleted(row, true); });
}

/// Three statements, each a range of the index of the due rows; one with "or" would read all open reminders.
std::vector<Reminder> ReminderLoop::dueAt(Date moment) const
{
    const std::string today = "#" + database_->getSQLDate(moment.dateOnly()) + "#";
    std::vector<Reminder> due;
    readDue("ReminderDate < " + today, due);
    readDue("ReminderDate = " + today + " AND ReminderTime IS NULL", due);
    readDue("ReminderDate = " + today + " AND ReminderTime <= #" + clockTime(moment) + "#", due);
    return due;
}

void ReminderLoop::readDue(const std::string& condition, std::vector<Reminder>& due) const
{
    for (Rows row = Rows::read(*database_, "SELECT Reminders.* FROM Reminders WHERE Completed = False AND " + condition
                                               + ofUser() + " ORDER BY ReminderDate, ReminderTime;");
         !row.atEnd(); row.moveNext()) {
        Reminder reminder{row.integer("ReminderID"), row.integer("UserIDNum"), row.integer("ReminderType", 0),
                          momentOf(row), row.text("TextBody")};
        const auto seen = onScreen_.find(reminder.id);
        if (seen == onScreen_.end() || seen->second != reminder.due)
            due.push_back(std::move(reminder));
    }
}

std::string ReminderLoop::ofUser() const
{
    return userID_ ? " AND UserIDNum = " + std::to_string(*userID_) : std::string();
}

bool ReminderLoop::isStillDue(const Reminder& reminder) const
{
    const Rows row = Rows::read(*database_, byKey(reminder.id));
    return !row.isEmpty() && !row.boolean("Completed") && momentOf(row) == reminder.due;
}

void ReminderLoop::complete(const Reminder& reminder)
{
    Rows row = Rows::change(*database_, byKey(reminder.id));
    if (!row.isEmpty() && momentOf(row) == reminder.due)
        markCompleted(row, true);
    row.close();
}

/// An item that moves takes its reminder along but leaves the row's mark. Read from the latest moment backwards: all
/// that moved ahead lie before the first that did not, for at that one's moment the others had not moved yet.
/// Whose they are does not matter: what is open again is shown to its own user.
void ReminderLoop::rearmMoved(Date moment)
{
    constexpr int growth = 8;
    for (int count = 1;; count *= growth) {
        Rows row = Rows::change(*database_, "SELECT TOP " + std::to_string(count)
                                                + " Reminders.* FROM Reminders WHERE Completed = True"
                                                  " ORDER BY ReminderDate DESC, ReminderTime DESC, ReminderID DESC;");
        int read = 0;
        bool isLast = false;
        for (; !isLast && !row.atEnd(); row.moveNext(), ++read) {
            const Date due = momentOf(row);
            const Variant shownFor = row.field("ShownFor");
            const bool isMoved = !shownFor.isNull() && shownFor.toDate() != due;
            isLast = due <= moment && !(isMoved && shownFor.toDate() < due);
            if (isMoved && !isLast)
                markCompleted(row, false);
        }
        row.close();
        if (isLast || read < count)
            return;
    }
}

void ReminderLoop::withdrawOutdated()
{
    std::vector<std::int32_t> outdated;
    for (const auto& [id, due] : onScreen_) {
        const Rows row = Rows::read(*database_, byKey(id));
        if (row.isEmpty() || momentOf(row) != due)
            outdated.push_back(id);
    }
    for (const std::int32_t id : outdated) {
        onScreen_.erase(id);
        display_.withdraw(id);
    }
}

} // namespace qncal::host
