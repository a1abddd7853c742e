#include "icalendar/CalendarExport.h"
#include "icalendar/CalendarImport.h"

#include "core/calendarItemKinds.h"
#include "demo/demoFirm.h"
#include "host/services/HostTest.h"
#include "icalendar/notesBlock.h"
#include "items/clsCalendarItem.h"
#include "services/saveItem.h"
#include "utilities/Clock.h"

#include <algorithm>
#include <set>
#include <sstream>

namespace qncal::host::icalendar {
namespace {

constexpr enumLocalCalendarItemType kinds[] = {enumLocalCalendarAppointmentItem, enumLocalCalendarTaskItem,
                                               enumLocalCalendarDocketItem};

class CalendarRoundTrip : public host::test::HostTest {
protected:
    static std::string exported(HostEnvironment& host)
    {
        std::ostringstream out;
        exportCalendar(host, {.kinds = {std::begin(kinds), std::end(kinds)}}, out);
        return out.str();
    }

    static ImportReport imported(HostEnvironment& host, const std::string& text)
    {
        std::istringstream in(text);
        return importCalendars(host, readCalendars(in), {.lastDay = Date::of(2027, 3, 31), .timeZone = "UTC"});
    }

    /// Every item, one line each without its number; of the notes what a person wrote.
    static std::multiset<std::string> items(DatabaseService& database)
    {
        std::multiset<std::string> all;
        for (const auto kind : kinds) {
            const schema::Table& table = *schema::findTable(calendarItemKind(kind).tableName);
            for (Rows rows = Rows::read(database, "SELECT * FROM " + std::string(table.name) + ";"); !rows.atEnd();
                 rows.moveNext()) {
                std::string line(table.name);
                for (const schema::Column& column : table.columns.subspan(1)) {
                    const bool isNotes = column.name == "TextBody";
                    const ItemNotes notes = isNotes ? readNotes(rows.text(column.name)) : ItemNotes{};
                    line += "|" + std::string(column.name) + "="
                            + (isNotes ? notes.description() + notes.formatted : rows.text(column.name));
                }
                all.insert(line);
            }
        }
        return all;
    }

    static void copyClients(DatabaseService& from, DatabaseService& to)
    {
        for (const char* name : {"AccountantFirmInfo", "AccountantEmployeeInfo", "Companies", "Contacts",
                                 "ColourSchemes", "CustomFields", "UserCalendarSettings"}) {
            const schema::Table& table = *schema::findTable(name);
            for (Rows rows = Rows::read(from, "SELECT * FROM " + std::string(name) + ";"); !rows.atEnd();
                 rows.moveNext()) {
                Rows copy = Rows::change(to, "SELECT * FROM " + std::string(name) + ";");
                copy.addNew();
                for (const schema::Column& column : table.columns) {
                    const Variant value = rows.field(column.name);
                    if (!value.isNull())
                        copy.setNew(column.name, value.isDate() ? defaultDateText(value.toDate()) : value.toText());
                }
                copy.update();
            }
        }
    }

    /// Everything that a column can hold, in one item.
    static void addFullItem(enumLocalCalendarItemType kind, std::int32_t user)
    {
        clsCalendarItem item;
        item.calendarItemType(kind);
        item.addNewItem();
        item.userIDNum(user);
        item.Subject("Prüfung, Teil 1; \\ \"税務\"");
        item.DateFrom(Date::of(2026, 3, 17));
        item.TimeFrom(Date::timeOf(9, 15));
        item.TimeTo(Date::timeOf(11, 45));
        item.Notes_RichText("{\\rtf1\\ansi Bring \\b both\\b0  slips.\\par\r\nThanks\\par\r\n}");
        item.BeforeAppointmentText("Before\r\nand above");
        item.AfterAppointmentText("After");
        item.PrivateItem(true);
        item.RecurAnnually(true);
        item.hideInTasks(true);
        item.RepeatNum(7);
        item.UserGroupNum(9);
        item.Remind(true);
        item.reminderPeriod("10 Days");
        item.ForeColour(1);
        item.BackColour(2);
        item.TitleForeColour(3);
        item.TitleBackColour(4);
        item.ScheduleTypeIDNum(5);
        item.ScheduleIDNum(6);
        item.ProjectStepIDNum(7);
        item.CommunicationLogIDNum(8);
        item.SeriesNum(kind == enumLocalCalendarTaskItem ? 3 : 0);
        item.Custom1("One; two");
        item.Custom5("Five");
        item.Status2(true);
        item.Status5(true);
        ASSERT_TRUE(saveItem(item));
    }

    ClockOverride clock{Date::of(2026, 3, 4, 10)};
};

TEST_F(CalendarRoundTrip, EveryColumnOfEveryKindComesBack)
{
    for (const auto kind : kinds)
        addFullItem(kind, 1);
    const auto before = items(*database);
    ASSERT_EQ(before.size(), 3U);
    const std::string calendar = exported(host);

    const std::shared_ptr<SqliteDatabase> empty = SqliteDatabase::openInMemory();
    HostEnvironment other(HostServices{.database = empty});
    const ImportReport report = imported(other, calendar);
    EXPECT_EQ(report.added, 3);
    EXPECT_TRUE(report.remarks.empty()) << report.remarks.front().text;
    EXPECT_EQ(items(*empty), before);
    EXPECT_EQ(exported(other), calendar);
}

TEST_F(CalendarRoundTrip, AWholeFirmComesBack)
{
    fillDemoFirm(host, {.seed = 3, .companies = 8, .contacts = 20, .items = 250});
    const auto before = items(*database);
    const std::string calendar = exported(host);

    const std::shared_ptr<SqliteDatabase> empty = SqliteDatabase::openInMemory();
    copyClients(*database, *empty);
    HostEnvironment other(HostServices{.database = empty});
    const ImportReport report = imported(other, calendar);
    EXPECT_EQ(report.added, 250);
    EXPECT_EQ(report.skipped, 0);
    EXPECT_EQ(items(*empty), before);
    EXPECT_EQ(exported(other), calendar);

    const ImportReport again = imported(other, calendar);
    EXPECT_EQ(again.added, 0);
    EXPECT_EQ(again.updated, 0);
    EXPECT_EQ(again.unchanged, 250);
}

TEST_F(CalendarRoundTrip, AFirmsOwnExportIsNothingNewToIt)
{
    fillDemoFirm(host, {.seed = 4, .companies = 5, .contacts = 10, .items = 120});
    const auto before = items(*database);
    const ImportReport report = imported(host, exported(host));
    EXPECT_EQ(report.added, 0);
    EXPECT_EQ(report.updated, 0);
    EXPECT_EQ(report.unchanged, 120);
    EXPECT_EQ(items(*database), before);
}

TEST_F(CalendarRoundTrip, AGroupIsOneEventWithItsAttendees)
{
    for (const std::int32_t user : {1, 2})
        addRow(*database, "AccountantEmployeeInfo",
               {{"DisplayName", user == 1 ? "Maya Singh" : "Reed, Ann"},
                {"BusinessEmail", user == 1 ? "maya@firm.example" : ""}});
    host.clients().invalidate();
    for (const std::int32_t user : {1, 2})
        addFullItem(enumLocalCalendarAppointmentItem, user);
    std::istringstream in(exported(host));
    const auto calendars = readCalendars(in);
    ASSERT_EQ(calendars.at(0).children.size(), 1U);
    const CalendarComponent& event = calendars[0].children[0];
    std::vector<std::string> attendees;
    for (const ContentLine& line : event.lines) {
        if (line.is("ATTENDEE"))
            attendees.push_back(line.text);
    }
    EXPECT_EQ(attendees, (std::vector<std::string>{
                             "ATTENDEE;CN=Maya Singh;X-QNCAL-ID=1:mailto:maya@firm.example",
                             "ATTENDEE;CN=\"Reed, Ann\";X-QNCAL-ID=2:mailto:user-2@calendar.firmcal.invalid"}));
    ASSERT_EQ(event.children.size(), 1U);
    EXPECT_EQ(event.children[0].textOf("TRIGGER"), "-P10D");
}

TEST_F(CalendarRoundTrip, UsersOfAGroupKeepTheirOwnSeries)
{
    fillDemoFirm(host, {.seed = 3, .companies = 2, .contacts = 2, .items = 30});
    const std::string calendar = exported(host);
    std::istringstream in(calendar);
    const auto calendars = readCalendars(in);
    const auto meeting = std::ranges::find_if(calendars.at(0).children, [](const CalendarComponent& component) {
        return component.textOf("SUMMARY") == "Staff meeting";
    });
    ASSERT_NE(meeting, calendars[0].children.end());
    std::set<std::string> series;
    for (const ContentLine& line : meeting->lines) {
        if (line.is("X-QNCAL-USER"))
            series.insert(line.parameter("X-QNCAL-SERIES"));
    }
    EXPECT_EQ(series.size(), 6U);
}

TEST_F(CalendarRoundTrip, LinesOfAnExportAreFolded)
{
    addFullItem(enumLocalCalendarAppointmentItem, 1);
    std::istringstream lines(exported(host));
    for (std::string line; std::getline(lines, line);)
        EXPECT_LE(line.size(), 76U) << line;
}

TEST_F(CalendarRoundTrip, ANumberThatIsTakenIsNotSharedWithOthers)
{
    addFullItem(enumLocalCalendarAppointmentItem, 1);
    std::string calendar = exported(host);
    calendar.replace(calendar.find("appointment-1@"), 14, "appointment-8@");
    EXPECT_EQ(imported(host, calendar).added, 1);
    const Rows rows = Rows::read(*database, "SELECT RepeatNum, UserGroupNum FROM Appointments WHERE AppointmentID=2;");
    EXPECT_EQ(rows.integer("RepeatNum"), 1);
    EXPECT_EQ(rows.integer("UserGroupNum"), 1);
}

TEST_F(CalendarRoundTrip, AClientOfAnotherNameIsNotTaken)
{
    addRow(*database, "Companies", {{"CompanyName", "Somebody else"}});
    const ImportReport report =
        imported(host, "BEGIN:VCALENDAR\r\nBEGIN:VEVENT\r\nUID:1\r\nDTSTART:20260302T090000\r\n"
                       "X-QNCAL-COMPANY;X-QNCAL-ID=1:North Ltd.\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n");
    EXPECT_EQ(report.added, 1);
    ASSERT_EQ(report.remarks.size(), 1U);
    EXPECT_EQ(Rows::read(*database, "SELECT CompanyIDNum FROM Appointments;").integer("CompanyIDNum"), -1);
    EXPECT_NE(exported(host).find("X-QNCAL-COMPANY;X-QNCAL-ID=1:North Ltd."), std::string::npos);
}

TEST_F(CalendarRoundTrip, AnImportedItemNotifiesTheDayBeforeItself)
{
    imported(host, "BEGIN:VCALENDAR\r\nBEGIN:VTODO\r\nUID:1\r\nDTSTART:20260320T090000\r\n"
                   "X-QNCAL-NOTIFY-TYPE:1\r\nEND:VTODO\r\nEND:VCALENDAR\r\n");
    const Rows row = Rows::read(*database, "SELECT ClientNotification.* FROM ClientNotification;");
    EXPECT_EQ(row.integer("TaskNum"), 1);
    EXPECT_EQ(row.field("NotificationDate").toDate(), Date::of(2026, 3, 19));
}

TEST_F(CalendarRoundTrip, AWordOfOnesOwnStaysWhenTheFileIsImportedAgain)
{
    const auto calendar = [](const std::string& description) {
        return "BEGIN:VCALENDAR\r\nBEGIN:VEVENT\r\nUID:1\r\nDTSTART:20260302T090000\r\nLOCATION:Here\r\nDESCRIPTION:"
               + description + "\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n";
    };
    imported(host, calendar("Theirs"));
    clsCalendarItem item;
    item.calendarItemType(enumLocalCalendarAppointmentItem);
    item.itemID(1);
    ASSERT_TRUE(item.loadCalendarItem());
    ItemNotes notes = readNotes(item.Notes_RichText());
    notes.below = "Mine";
    item.Notes_RichText(notesRichText(notes));
    item.companyIDNum(5);
    ASSERT_TRUE(saveItem(item));

    const ImportReport report = imported(host, calendar("Theirs\\, changed"));
    EXPECT_EQ(report.updated, 1);
    ASSERT_TRUE(item.loadCalendarItem());
    EXPECT_EQ(readNotes(item.Notes_RichText()).description(), "Theirs, changed\nMine");
    EXPECT_EQ(item.companyIDNum(), 5);
}

} // namespace
} // namespace qncal::host::icalendar
