#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace qncal {

/// How long ahead of an item its popup reminder comes, and the words for it.
struct ReminderPeriod {
    std::string_view name;
    std::int32_t minutes = 0;
    std::string_view taskWording;
    std::string_view appointmentWording;
    /// What an item says of its own appointment; some periods never got a wording there.
    std::string_view appointmentPopupWording;
};

/// The periods that an item can have, shortest first.
std::span<const ReminderPeriod> reminderPeriods();
/// A name outside of the table has no offset and no words.
const ReminderPeriod& reminderPeriod(std::string_view name);

} // namespace qncal
