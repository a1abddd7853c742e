#include "core/LocaleService.h"
#include "demo/DemoRandom.h"
#include "demo/demoCalendar.h"
#include "demo/demoClients.h"
#include "demo/demoWords.h"
#include "items/clsCalendarItem.h"
#include "items/modDatabaseFunctions.h"
#include "services/HostEnvironment.h"
#include "services/Rows.h"
#include "services/saveItem.h"
#include "utilities/Clock.h"
#include "utilities/RunTimeError.h"

#include <map>
#include <set>
#include <string>

namespace qncal::host {

namespace {

using namespace demo;

constexpr int daysAround = 60;
constexpr int meetingWeeks = 16;
constexpr int startMinute = 9 * 60;
constexpr int endMinute = 17 * 60;
/// A working day is looked for so often before an item goes to a full one.
constexpr int placeAttempts = 50;

/// When an item stands, in whole minutes of its day.
struct Slot {
    Date day;
    int start = startMinute;
    int minutes = 60;
};

class ItemMaker {
public:
    ItemMaker(HostEnvironment& host, const DemoOptions& options, const DemoPeople& people, const DemoSchemes& schemes,
              DemoRandom& random, const DemoProgress& progress)
        : host_(host), options_(options), people_(people), schemes_(schemes), random_(random), progress_(progress)
    {
        for (Rows rows = Rows::read(host.database(), "SELECT Holidays.HolidayDate FROM Holidays;"); !rows.atEnd();
             rows.moveNext())
            holidays_.insert(rows.field("HolidayDate").toDate().serial());
    }

    /// Each Monday's staff meeting: a group of one item for each user, in a series for each user.
    void makeStaffMeetings()
    {
        std::map<std::int32_t, std::int32_t> series;
        for (int week = -meetingWeeks / 2; week < meetingWeeks / 2; ++week) {
            const Date day = mondayOfThisWeek().addDays(7 * week);
            if (isDayOff(day) || made_ + static_cast<int>(people_.users.size()) > options_.items)
                continue;
            std::int32_t group = 0;
            for (const std::int32_t user : people_.users) {
                clsCalendarItem item;
                begin(item, enumLocalCalendarAppointmentItem, user, {day, startMinute, 60});
                busyUntil_[{user, day.serial()}] = startMinute + 60;
                item.Subject("Staff meeting");
                item.ColourSchemeID(schemes_[enumLocalCalendarAppointmentItem][1]);
                item.Custom1("Boardroom");
                // A first save takes the number 0 out of the free ones, which stand for no series and no group.
                save(item);
                if (group == 0)
                    group = modDatabaseFunctions::getAppointmentGroupUniqueID(item.calendarItemType());
                if (!series.contains(user))
                    series[user] = modDatabaseFunctions::getAppointmentRepeatUniqueID(item.calendarItemType());
                item.UserGroupNum(group);
                item.RepeatNum(series[user]);
                save(item);
                ++made_;
            }
        }
    }

    void makeRest()
    {
        while (made_ < options_.items) {
            const int dice = random_.between(1, 100);
            if (dice <= 55)
                makeAppointment();
            else if (dice <= 80)
                makeTask();
            else
                makeDocket();
            ++made_;
            if (progress_)
                progress_(made_, options_.items);
        }
    }

    /// A reminder whose moment has passed has been shown.
    void completePastReminders()
    {
        DatabaseService& database = host_.database();
        for (Rows rows = Rows::change(database, "SELECT Reminders.* FROM Reminders WHERE Reminders.ReminderDate<#"
                                                    + database.getSQLDate(today()) + "#;");
             !rows.atEnd(); rows.moveNext())
            rows.set("Completed", booleanText(true));
    }

private:
    static Date mondayOfThisWeek() { return today().addDays(-((today().weekday() + 5) % 7)); }
    bool isDayOff(Date day) const
    {
        return day.weekday() == 1 || day.weekday() == 7 || holidays_.contains(day.serial());
    }

    /// The next free time of a user on a working day around today.
    Slot freeSlot(std::int32_t user, int minutes, int firstDay, int lastDay)
    {
        Slot slot;
        slot.minutes = minutes;
        for (int attempt = 0; attempt < placeAttempts; ++attempt) {
            slot.day = today().addDays(random_.between(firstDay, lastDay));
            if (isDayOff(slot.day))
                continue;
            int& busyUntil = busyUntil_.try_emplace({user, slot.day.serial()}, startMinute).first->second;
            slot.start = busyUntil + 30 * random_.between(0, 2);
            if (slot.start + minutes <= endMinute) {
                busyUntil = slot.start + minutes;
                break;
            }
            slot.start = startMinute;
        }
        return slot;
    }

    void begin(clsCalendarItem& item, enumLocalCalendarItemType kind, std::int32_t user, const Slot& slot)
    {
        item.calendarItemType(kind);
        item.addNewItem();
        item.userIDNum(user);
        item.DateFrom(slot.day);
        item.TimeFrom(Date::timeOf(slot.start / 60, slot.start % 60));
        const int end = slot.start + slot.minutes;
        item.TimeTo(Date::timeOf(end / 60, end % 60));
    }

    void chooseClient(clsCalendarItem& item, int companyPercent)
    {
        if (!people_.companies.empty() && random_.chance(companyPercent))
            item.companyIDNum(random_.pick(people_.companies));
        else if (!people_.contacts.empty())
            item.contactIDNum(random_.pick(people_.contacts));
    }

    void makeAppointment()
    {
        constexpr int remindPercent = 40;
        constexpr int notifyPercent = 15;
        const std::int32_t user = random_.pick(people_.users);
        clsCalendarItem item;
        begin(item, enumLocalCalendarAppointmentItem, user,
              freeSlot(user, 30 * random_.between(1, 4), -daysAround, daysAround));
        item.Subject(std::string(random_.pick(appointmentSubjects)));
        chooseClient(item, 70);
        item.ColourSchemeID(schemes_[enumLocalCalendarAppointmentItem][0]);
        item.Custom1(std::string(random_.pick(places)));
        item.Status5(random_.chance(10));
        if (random_.chance(remindPercent)) {
            item.Remind(true);
            item.reminderPeriod(std::string(random_.pick(reminderPeriods)));
        }
        if (item.DateFrom() > today() && random_.chance(notifyPercent)) {
            item.notifiedDate(item.DateFrom().addDays(-2));
            item.notifyType(random_.chance(70) ? AutoNotifyService::email : AutoNotifyService::phone);
        }
        save(item);
    }

    void makeTask()
    {
        const std::int32_t user = random_.pick(people_.users);
        clsCalendarItem item;
        begin(item, enumLocalCalendarTaskItem, user,
              freeSlot(user, 60 * random_.between(1, 3), -daysAround, daysAround));
        const bool american = host_.locale().values().country == LocaleService::unitedStates;
        item.Subject(std::string(american ? random_.pick(americanTaskSubjects) : random_.pick(taskSubjects)));
        chooseClient(item, 85);
        item.ColourSchemeID(random_.pick(schemes_[enumLocalCalendarTaskItem]));
        item.Status1(item.DateFrom() < today() && random_.chance(85));
        save(item);
    }

    void makeDocket()
    {
        const std::int32_t user = random_.pick(people_.users);
        clsCalendarItem item;
        begin(item, enumLocalCalendarDocketItem, user, freeSlot(user, 30 * random_.between(1, 6), -daysAround, 0));
        item.Subject(std::string(random_.pick(docketSubjects)));
        chooseClient(item, 85);
        item.ColourSchemeID(random_.pick(schemes_[enumLocalCalendarDocketItem]));
        save(item);
    }

    /// The component keeps its errors to itself; the error control has them.
    void save(clsCalendarItem& item)
    {
        const std::size_t errorsBefore = host_.errors().reportCount();
        if (saveItem(item) && host_.errors().reportCount() == errorsBefore)
            return;
        if (host_.errors().reportCount() == errorsBefore)
            throw RunTimeError(errorNumber::invalidProcedureCall, "An item of the demonstration was not saved");
        const ErrorState& error = host_.errors().reports().back().error;
        throw RunTimeError(error.number, error.text);
    }

    HostEnvironment& host_;
    const DemoOptions& options_;
    const DemoPeople& people_;
    const DemoSchemes& schemes_;
    DemoRandom& random_;
    const DemoProgress& progress_;
    std::set<double> holidays_;
    /// By user and day, the minute up to which the day is taken.
    std::map<std::pair<std::int32_t, double>, int> busyUntil_;
    int made_ = 0;
};

} // namespace

void addDemoItems(HostEnvironment& host, const DemoOptions& options, const DemoPeople& people,
                  const DemoSchemes& schemes, DemoRandom& random, const DemoProgress& progress)
{
    ItemMaker maker(host, options, people, schemes, random, progress);
    maker.makeStaffMeetings();
    maker.makeRest();
    maker.completePastReminders();
}

} // namespace qncal::host
