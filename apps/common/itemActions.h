#pragma once

#include "common/ErrorWatch.h"
#include "core/MessageDialogService.h"
#include "items/clsCalendarItem.h"

#include <cstdint>
#include <string>

namespace qncal::firmcal {

/// What a user does with an item. Each throws `Failure` when it could not be done.

void load(ErrorWatch& errors, clsCalendarItem& item, enumLocalCalendarItemType kind, std::int32_t id);
void save(ErrorWatch& errors, clsCalendarItem& item);
/// With its reminders and notifications.
void remove(ErrorWatch& errors, clsCalendarItem& item);
/// Asks first. False when the answer is No.
bool removeAfterQuestion(ErrorWatch& errors, MessageDialogService& messages, clsCalendarItem& item);

/// Moves the item to the best time of a day, without saving it.
void placeBest(ErrorWatch& errors, clsCalendarItem& item, Date day);
/// An item lies within one day: an end after midnight would come round to the morning.
void refuseEndAfterMidnight(const clsCalendarItem& item);

/// "appointment 12: Tue, Mar 31, 2026, 09:30-10:00, Year-end review"
std::string describe(const clsCalendarItem& item);

} // namespace qncal::firmcal
