#include "firmcal-desktop/commands.h"

#include "firmcal-desktop/MainWindow.h"
#include "firmcal-desktop/ReminderTimer.h"
#include "firmcal-desktop/itemCommands.h"
#include "firmcal-desktop/settingsCommands.h"
#include "utilities/Clock.h"

#include <QCoreApplication>
#include <QMessageBox>

namespace qncal::desktop {

namespace {

constexpr int daysOfWeek = 7;
constexpr Command line{};

void showAbout(MainWindow& window)
{
    QMessageBox::about(
        &window, QObject::tr("About FirmCal"),
        QObject::tr("<b>FirmCal %1</b><p>Appointments, tasks and time entries of an accounting firm.</p>")
            .arg(QNCAL_VERSION));
}

constexpr Command fileCommands[] = {
    {"quit", "&Quit", "Ctrl+Q", false, [](MainWindow& window) { window.close(); }},
};

constexpr Command viewCommands[] = {
    {"previousWeek", "&Previous week", "Alt+Left", false,
     [](MainWindow& window) { window.showWeekOf(window.week().from.addDays(-daysOfWeek)); }},
    {"today", "&Today", "Ctrl+T", false, [](MainWindow& window) { window.showWeekOf(today()); }},
    {"nextWeek", "&Next week", "Alt+Right", false,
     [](MainWindow& window) { window.showWeekOf(window.week().from.addDays(daysOfWeek)); }},
    line,
    {kindCommands[0], "&Appointments", "Ctrl+1", false,
     [](MainWindow& window) { window.kind(enumLocalCalendarAppointmentItem); }},
    {kindCommands[1], "Ta&sks", "Ctrl+2", false, [](MainWindow& window) { window.kind(enumLocalCalendarTaskItem); }},
    {kindCommands[2], "Time &entries", "Ctrl+3", false,
     [](MainWindow& window) { window.kind(enumLocalCalendarDocketItem); }},
    line,
    {"reload", "&Reload", "F5", false, [](MainWindow&) {}}, // as after every command
};

constexpr Command itemCommands[] = {
    {"itemText", "Show &text...", "Ctrl+Return", true, showItemText},
    line,
    {"startTime", "&Start time...", "Ctrl+S", true, changeStartTime},
    {"endTime", "&End time...", "Ctrl+E", true, changeEndTime},
    {"bestTime", "&Best time...", "Ctrl+B", true, moveToBestTime},
    line,
    {"deleteItem", "&Delete...", "Del", true, deleteItem},
};

constexpr Command settingsCommands[] = {
    {"statusFields", "&Status fields...", nullptr, false, openStatusFields},
    {"statusOptions", "Status &options", nullptr, false, nullptr}, // filled by fillWithStatuses
    {"customFields", "&Custom fields...", nullptr, false, openCustomFields},
    {"colourSchemes", "Colour sc&hemes...", nullptr, false, openColourSchemes},
};

constexpr Command toolsCommands[] = {
    {"reminders", "&Reminders...", "Ctrl+R", false, [](MainWindow& window) { window.reminders().open(); }},
};

constexpr Command helpCommands[] = {{"about", "&About FirmCal", nullptr, false, showAbout}};

constexpr CommandMenu menus[] = {
    {"fileMenu", "&File", fileCommands},    {"viewMenu", "&View", viewCommands},
    {"itemMenu", "&Item", itemCommands},    {"settingsMenu", "&Settings", settingsCommands},
    {"toolsMenu", "&Tools", toolsCommands}, {"helpMenu", "&Help", helpCommands},
};

} // namespace

std::span<const CommandMenu> commandMenus() { return menus; }

} // namespace qncal::desktop
