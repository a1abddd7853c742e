#include "items/clsCalendarItem.h"

#include "core/forwarding/ForwardingDatabaseService.h"
#include "support/ComponentTest.h"
#include "support/RecordingDatabase.h"
#include "support/rowName.h"

#include <gmock/gmock.h>

// What the editor's page of reminders says of an item's own. The clock stands at 8:30 on 31 March 2026.

namespace qncal {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

struct StoredRow {
    const char* name;
    test::TestWorld::Values reminder;
    const char* text;
};

class StoredReminderTest : public test::ComponentTestWith<StoredRow> {
protected:
    /// The status of item 17 of user 1, whose only reminder is the row's.
    std::string statusOf(enumLocalCalendarItemType kind, const char* column)
    {
        clsCalendarItem item;
        item.calendarItemType(kind);
        item.itemID(17);
        item.userIDNum(1);
        test::TestWorld::Values values = GetParam().reminder;
        if (!values.empty()) {
            values.emplace_back(column, "17");
            values.emplace_back("UserIDNum", "1");
            addRow("Reminders", values);
        }
        return item.getPopupReminderCurrentStatusText();
    }
};

TEST_P(StoredReminderTest, IsToldOfAnAppointment)
{
    EXPECT_EQ(statusOf(enumLocalCalendarAppointmentItem, "AppointmentIDNum"), GetParam().text);
}

TEST_P(StoredReminderTest, IsToldOfATask)
{
    EXPECT_EQ(statusOf(enumLocalCalendarTaskItem, "TaskIDNum"), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, StoredReminderTest,
    testing::Values(StoredRow{"None", {}, ""},
                    StoredRow{"Completed",
                              {{"Completed", "True"}, {"ReminderDate", "2026-04-01"}, {"ReminderTime", "09:15:00"}},
                              "This reminder has already occured"},
                    StoredRow{"Tomorrow",
                              {{"Completed", "False"}, {"ReminderDate", "2026-04-01"}, {"ReminderTime", "09:15:00"}},
                              "You will be notified on Apr 1 26 at 9:15 am"},
                    StoredRow{"TodayEvenIfStillToCome",
                              {{"Completed", "False"}, {"ReminderDate", "2026-03-31"}, {"ReminderTime", "13:00:00"}},
                              "This reminder was scheduled for Mar 31 26 at 1:00 pm"},
                    StoredRow{"Yesterday",
                              {{"Completed", "False"}, {"ReminderDate", "2026-03-30"}, {"ReminderTime", "09:15:00"}},
                              "This reminder was scheduled for Mar 30 26 at 9:15 am"},
                    StoredRow{"NullDateAndTimeAreTheFirstOfAll",
                              {{"ReminderType", "3"}},
                              "This reminder was scheduled for Dec 30 99 at 12:00 am"}),
    test::rowName);

class ReminderStatusTest : public test::ComponentTest {
protected:
    ReminderStatusTest()
    {
        item.itemID(17);
        item.userIDNum(4);
        item.calendarItemType(enumLocalCalendarAppointmentItem);
        serviceRegistry().database = recording;
    }
    std::shared_ptr<test::RecordingDatabase> recording = std::make_shared<test::RecordingDatabase>(database);
    clsCalendarItem item;
};

TEST_F(ReminderStatusTest, ReadsTheReminderOfTheUserAndItem)
{
    for (const auto& [kind, column] : {std::pair(enumLocalCalendarAppointmentItem, std::string("AppointmentIDNum")),
                                       std::pair(enumLocalCalendarTaskItem, std::string("TaskIDNum"))}) {
        item.calendarItemType(kind);
        recording->opened.clear();
        item.getPopupReminderCurrentStatusText(true);
        EXPECT_THAT(recording->opened,
                    ElementsAre(Pair("SELECT Reminders." + column
                                         + ", Reminders.UserIDNum, Reminders.Completed, Reminders.ReminderDate, "
                                           "Reminders.ReminderTime From Reminders WHERE Reminders.UserIDNum = 4 AND "
                                           "Reminders."
                                         + column + " = 17",
                                     DatabaseService::readOnly)));
        EXPECT_THAT(recording->open, IsEmpty());
    }
}

/// A database whose marks were never set.
class WithoutMarks : public ForwardingDatabaseService {
public:
    using ForwardingDatabaseService::ForwardingDatabaseService;
    Variant getField(std::int32_t handle, std::string_view fieldName) override
    {
        return fieldName == "Completed" ? Variant() : ForwardingDatabaseService::getField(handle, fieldName);
    }
};

TEST_F(ReminderStatusTest, ANullMarkIsNotCompleted)
{
    addRow("Reminders",
           {{"UserIDNum", "4"}, {"AppointmentIDNum", "17"}, {"Completed", "True"}, {"ReminderDate", "2026-04-01"}});
    serviceRegistry().database = std::make_shared<WithoutMarks>(database);
    EXPECT_EQ(item.getPopupReminderCurrentStatusText(), "You will be notified on Apr 1 26 at 12:00 am");
}

TEST_F(ReminderStatusTest, AnotherUsersReminderIsNotToldOf)
{
    addRow("Reminders", {{"UserIDNum", "2"}, {"AppointmentIDNum", "17"}, {"Completed", "True"}});
    EXPECT_EQ(item.getPopupReminderCurrentStatusText(), "");
}

TEST_F(ReminderStatusTest, ATimeEntryHasNone)
{
    item.calendarItemType(enumLocalCalendarDocketItem);
    recording->opened.clear();
    EXPECT_EQ(item.getPopupReminderCurrentStatusText(), "");
    EXPECT_THAT(recording->opened, IsEmpty());
}

TEST_F(ReminderStatusTest, WithoutAConnectionNothingIsToldOfTheRow)
{
    addRow("Reminders", {{"UserIDNum", "4"}, {"AppointmentIDNum", "17"}, {"Completed", "True"}});
    recording->connected = false;
    recording->opened.clear();
    EXPECT_EQ(item.getPopupReminderCurrentStatusText(), "");
    EXPECT_THAT(recording->opened, IsEmpty());
}

struct PlannedRow {
    const char* name;
    Date start;
    const char* text;
};

class PlannedReminderTest : public test::ComponentTestWith<PlannedRow> {};

TEST_P(PlannedReminderTest, IsToldFromTheItemAlone)
{
    clsCalendarItem item;
    item.calendarItemType(enumLocalCalendarAppointmentItem);
    item.DateFrom(GetParam().start.dateOnly());
    item.TimeFrom(GetParam().start.timeOnly());
    EXPECT_EQ(item.getPopupReminderCurrentStatusText(false), GetParam().text);
}

/// The reminder comes 15 minutes ahead of the start.
INSTANTIATE_TEST_SUITE_P(
    Starts, PlannedReminderTest,
    testing::Values(PlannedRow{"Yesterday", Date::of(2026, 3, 30, 9), "This reminder has already occured"},
                    PlannedRow{"EarlierToday", Date::of(2026, 3, 31, 8), "This reminder has already occured"},
                    PlannedRow{"JustNow", Date::of(2026, 3, 31, 8, 45), "This reminder has already occured"},
                    PlannedRow{"LaterToday", Date::of(2026, 3, 31, 13), "You will be notified today at 12:45 pm"},
                    PlannedRow{"Tomorrow", Date::of(2026, 4, 1, 9), "You will be notified on Apr 1 26 at 8:45 am"}),
    test::rowName);

} // namespace
} // namespace qncal
