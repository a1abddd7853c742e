#include "common/itemActions.h"

#include "common/Failure.h"
#include "common/itemKind.h"
#include "common/valueText.h"
#include "services/saveItem.h"

namespace qncal::firmcal {

void load(ErrorWatch& errors, clsCalendarItem& item, enumLocalCalendarItemType kind, std::int32_t id)
{
    item.calendarItemType(kind);
    item.itemID(id);
    const bool found = item.loadCalendarItem();
    errors.throwIfReported();
    if (!found)
        throw Failure("no " + std::string(kindNoun(kind)) + " " + std::to_string(id));
    host::notifyTheDayBefore(item);
}

void save(ErrorWatch& errors, clsCalendarItem& item)
{
    const bool saved = host::saveItem(item);
    errors.throwIfReported();
    if (!saved)
        throw Failure("the item was not saved");
}

void remove(ErrorWatch& errors, clsCalendarItem& item)
{
    const bool deleted = item.deleteCalendarItem();
    errors.throwIfReported();
    if (!deleted)
        throw Failure("the item was not deleted");
}

bool removeAfterQuestion(ErrorWatch& errors, MessageDialogService& messages, clsCalendarItem& item)
{
    const std::int16_t answer =
        messages.askQuestion("Delete " + describe(item) + "?", MessageDialogService::informationStyle, nullptr);
    if (answer != MessageDialogService::answerYes)
        return false;
    remove(errors, item);
    return true;
}

void placeBest(ErrorWatch& errors, clsCalendarItem& item, Date day)
{
    item.moveCalendarItemToNewDateAndBestTimeInCalendar(day);
    item.determineEndTimeFromTimeDuration();
    errors.throwIfReported();
    refuseEndAfterMidnight(item);
}

void refuseEndAfterMidnight(const clsCalendarItem& item)
{
    if (item.TimeTo().dateOnly().serial() != 0.0 || item.TimeTo() < item.TimeFrom())
        throw Failure("the item would begin at " + timeText(item.TimeFrom()) + " and end after midnight");
}

std::string describe(const clsCalendarItem& item)
{
    return std::string(kindNoun(item.calendarItemType())) + " " + std::to_string(item.itemID()) + ": "
           + readableDay(item.DateFrom()) + ", " + timeText(item.TimeFrom()) + "-" + timeText(item.TimeTo()) + ", "
           + subjectText(item.Subject());
}

} // namespace qncal::firmcal
