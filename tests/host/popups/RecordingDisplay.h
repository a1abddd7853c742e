#pragma once

#include "popups/ReminderDisplay.h"

#include <functional>
#include <string>
#include <vector>

namespace qncal::host::test {

/// Writes down what it is told to show.
class RecordingDisplay : public ReminderDisplay {
public:
    Stay stay = Stay::gone;
    /// "show 1", "missed 1 2", "withdraw 1"
    std::vector<std::string> calls;
    std::vector<Reminder> shown;
    /// Runs inside of each showing.
    std::function<void(const Reminder&)> whileShown;

    Stay show(const Reminder& reminder) override
    {
        calls.push_back("show " + std::to_string(reminder.id));
        shown.push_back(reminder);
        if (whileShown)
            whileShown(reminder);
        return stay;
    }
    Stay showMissed(const std::vector<Reminder>& reminders) override
    {
        std::string call = "missed";
        for (const Reminder& reminder : reminders)
            call += " " + std::to_string(reminder.id);
        calls.push_back(call);
        return stay;
    }
    void withdraw(std::int32_t reminderID) override { calls.push_back("withdraw " + std::to_string(reminderID)); }
};

} // namespace qncal::host::test
