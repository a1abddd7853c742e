#include "firmcal-desktop/itemCommands.h"

#include "common/Failure.h"
#include "common/itemActions.h"
#include "common/valueText.h"
#include "firmcal-desktop/MainWindow.h"
#include "templates/frmTestComment.h"

namespace qncal::desktop {

namespace {

using firmcal::Failure;

void loadCurrent(MainWindow& window, clsCalendarItem& item)
{
    const auto current = window.currentItem();
    if (!current)
        throw Failure("no item is chosen");
    load(window.host().errors(), item, window.kind(), *current);
}

std::string timesOf(const clsCalendarItem& item)
{
    return firmcal::timeText(item.TimeFrom()) + " to " + firmcal::timeText(item.TimeTo());
}

} // namespace

void showItemText(MainWindow& window)
{
    clsCalendarItem item;
    loadCurrent(window, item);
    const std::string text = item.createDisplayTextByID();
    window.host().errors().throwIfReported();
    frmTestComment().Initialize(text);
}

void changeStartTime(MainWindow& window)
{
    clsCalendarItem item;
    loadCurrent(window, item);
    if (!item.promptFormToChangeStartTime())
        return;
    item.determineEndTimeFromTimeDuration();
    firmcal::refuseEndAfterMidnight(item);
    save(window.host().errors(), item);
}

void changeEndTime(MainWindow& window)
{
    clsCalendarItem item;
    loadCurrent(window, item);
    if (!item.promptFormToChangeEndTime())
        return;
    if (item.TimeTo() < item.TimeFrom())
        throw Failure("an item cannot end before it begins at " + firmcal::timeText(item.TimeFrom()));
    save(window.host().errors(), item);
}

void moveToBestTime(MainWindow& window)
{
    clsCalendarItem item;
    loadCurrent(window, item);
    const std::string before = timesOf(item);
    placeBest(window.host().errors(), item, item.DateFrom());
    const std::string question = "The best time for \"" + item.Subject() + "\" on "
                                 + firmcal::readableDay(item.DateFrom()) + " is " + timesOf(item) + " (now " + before
                                 + ").\nMove it there?";
    if (window.host().messages().askQuestion(question, MessageDialogService::informationStyle, nullptr)
        == MessageDialogService::answerYes)
        save(window.host().errors(), item);
}

void deleteItem(MainWindow& window)
{
    clsCalendarItem item;
    loadCurrent(window, item);
    removeAfterQuestion(window.host().errors(), window.host().messages(), item);
}

} // namespace qncal::desktop
