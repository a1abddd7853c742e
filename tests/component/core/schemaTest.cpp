#include "core/schema.h"

#include "utilities/Variant.h"
#include "utilities/text.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <set>
#include <sstream>

namespace qncal::schema {

using enum ColumnType;

void PrintTo(ColumnType type, std::ostream* out) { *out << static_cast<int>(type); }
void PrintTo(const Table& table, std::ostream* out) { *out << table.name; }

namespace {

using Names = std::set<std::string, LessNoCase>;

bool isLiteralOf(ColumnType type, std::string_view literal)
{
    double number = 0;
    if (!parseNumber(literal, number))
        return false;
    switch (type) {
    case id:
    case integer:
    case colour:
        return number == std::trunc(number);
    case real:
    case currency:
        return true;
    default:
        return false;
    }
}

class SchemaTableTest : public testing::TestWithParam<Table> {};

TEST_P(SchemaTableTest, HasOneKeyWhichIsFirst)
{
    ASSERT_FALSE(GetParam().columns.empty());
    EXPECT_EQ(GetParam().columns.front().type, key);
    for (const Column& column : GetParam().columns.subspan(1))
        EXPECT_NE(column.type, key) << column.name;
}

TEST_P(SchemaTableTest, NamesNoColumnTwice)
{
    Names names;
    for (const Column& column : GetParam().columns) {
        EXPECT_FALSE(column.name.empty());
        EXPECT_TRUE(names.emplace(column.name).second) << column.name;
    }
}

TEST_P(SchemaTableTest, HasDefaultsOfTheColumnsType)
{
    for (const Column& column : GetParam().columns) {
        if (column.type == boolean) {
            EXPECT_EQ(column.defaultValue, "0") << column.name;
        } else if (!column.defaultValue.empty()) {
            EXPECT_TRUE(isLiteralOf(column.type, column.defaultValue)) << column.name;
        }
    }
}

TEST_P(SchemaTableTest, IndexesItsOwnColumnsOnce)
{
    std::set<std::array<std::string_view, 3>> seen;
    for (const Index& index : GetParam().indexes) {
        const Column* first = findColumn(GetParam(), index.first);
        ASSERT_NE(first, nullptr) << index.first;
        EXPECT_NE(first->type, key) << index.first;
        EXPECT_NE(first->type, memo) << index.first;
        for (const std::string_view next : {index.second, index.third}) {
            EXPECT_TRUE(next.empty() || findColumn(GetParam(), next)) << next;
        }
        EXPECT_TRUE(seen.insert({index.first, index.second, index.third}).second) << index.first;
    }
}

TEST_P(SchemaTableTest, SaysWhatItIsFor)
{
    ASSERT_FALSE(GetParam().purpose.empty());
    EXPECT_NE(GetParam().purpose.back(), '.');
    EXPECT_EQ(GetParam().purpose.find('\n'), std::string_view::npos);
}

INSTANTIATE_TEST_SUITE_P(EveryTable, SchemaTableTest, testing::ValuesIn(tables().begin(), tables().end()),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(SchemaTest, NamesNoTableTwice)
{
    Names names;
    for (const Table& table : tables())
        EXPECT_TRUE(names.emplace(table.name).second) << table.name;
}

TEST(SchemaTest, FindsEveryTableAndColumnInAnyCase)
{
    for (const Table& table : tables()) {
        std::string shouted(table.name);
        for (char& c : shouted)
            c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
        EXPECT_EQ(findTable(table.name), &table);
        EXPECT_EQ(findTable(shouted), &table);
        EXPECT_EQ(findTable(lowerAscii(table.name)), &table);
        for (const Column& column : table.columns) {
            EXPECT_EQ(findColumn(table, column.name), &column) << table.name << '.' << column.name;
            EXPECT_EQ(findColumn(table, lowerAscii(column.name)), &column) << table.name << '.' << column.name;
        }
    }
}

TEST(SchemaTest, FindsNothingByAnUnknownName)
{
    EXPECT_EQ(findTable(""), nullptr);
    EXPECT_EQ(findTable("Appointment"), nullptr);
    EXPECT_EQ(findTable("archiveAppointments"), nullptr);
    const Table* appointments = findTable("Appointments");
    ASSERT_NE(appointments, nullptr);
    EXPECT_EQ(findColumn(*appointments, ""), nullptr);
    EXPECT_EQ(findColumn(*appointments, "TaskID"), nullptr);
}

TEST(SchemaTest, FindsAColumnOfATableAlone)
{
    const Table* tasks = findTable("Tasks");
    const Table* dockets = findTable("Dockets");
    ASSERT_TRUE(tasks && dockets);
    EXPECT_EQ(findColumn(*tasks, "DocketStatus"), nullptr);
    ASSERT_NE(findColumn(*dockets, "DocketStatus"), nullptr);
    EXPECT_NE(findColumn(*tasks, "Subject"), findColumn(*dockets, "Subject"));
}

TEST(SchemaTest, GivesARowOfSettingsThatNobodyClaimedToTheFirm)
{
    const Table* settings = findTable("UserCalendarSettings");
    ASSERT_NE(settings, nullptr);
    const Column* user = findColumn(*settings, "UserIDNum");
    ASSERT_NE(user, nullptr);
    EXPECT_EQ(user->defaultValue, "-1");
}

TEST(SchemaTest, KeepsArchivedTasksAsTasksUnderTheirFormerKey)
{
    const Table* tasks = findTable("Tasks");
    for (const char* name : {"archiveTasks", "archivedTasks"}) {
        const Table* archive = findTable(name);
        ASSERT_TRUE(tasks && archive);
        EXPECT_EQ(archive->columns.front().name, "oldTaskID");
        ASSERT_EQ(archive->columns.size(), tasks->columns.size());
        for (std::size_t i = 1; i < tasks->columns.size(); ++i)
            EXPECT_EQ(archive->columns[i].name, tasks->columns[i].name);
    }
}

/// The columns, blank-separated, that must be of the type in the table.
struct Typed {
    const char* table;
    ColumnType type;
    const char* columns;
};

void PrintTo(const Typed& typed, std::ostream* out) { *out << typed.table << ": " << typed.columns; }

class SchemaColumnTest : public testing::TestWithParam<Typed> {};

TEST_P(SchemaColumnTest, IsOfItsType)
{
    const Table* table = findTable(GetParam().table);
    ASSERT_NE(table, nullptr);
    std::istringstream names(GetParam().columns);
    for (std::string name; names >> name;) {
        const Column* column = findColumn(*table, name);
        ASSERT_NE(column, nullptr) << name;
        EXPECT_EQ(column->name, name);
        EXPECT_EQ(column->type, GetParam().type) << name;
    }
}

constexpr const char* itemIds = "UserIDNum CompanyIDNum ContactIDNum ScheduleTypeIDNum ScheduleIDNum "
                                "CompanyProjectStepIDNum CommunicationLogIDNum SchemeID";
constexpr const char* itemIntegers = "SeriesNum RepeatNum UserGroupNum notifyType";
constexpr const char* itemBooleans = "RecurAnnually hideInTasks Private NotesFlag ClientNotifiedFlag Remind "
                                     "Status1 Status2 Status3 Status4 Status5";
constexpr const char* itemTexts = "Subject ReminderPeriod TitleText Custom1 Custom2 Custom3 Custom4 Custom5";
constexpr const char* itemMemos = "BeforeAppointmentText AppointmentText AfterAppointmentText TextBody";
constexpr const char* itemColours = "TitleBackColour TitleForeColour BackColour ForeColour";

const Typed typedColumns[] = {
    {"Appointments", key, "AppointmentID"},
    {"Appointments", id, itemIds},
    {"Appointments", integer, itemIntegers},
    {"Appointments", boolean, itemBooleans},
    {"Appointments", text, itemTexts},
    {"Appointments", memo, itemMemos},
    {"Appointments", date, "DateFrom"},
    {"Appointments", time, "TimeFrom TimeTo"},
    {"Appointments", colour, itemColours},
    {"Tasks", key, "TaskID"},
    {"Tasks", id, itemIds},
    {"Tasks", integer, itemIntegers},
    {"Tasks", boolean, itemBooleans},
    {"Tasks", text, itemTexts},
    {"Tasks", memo, itemMemos},
    {"Tasks", date, "DateFrom"},
    {"Tasks", time, "TimeFrom TimeTo"},
    {"Tasks", colour, itemColours},
    {"Dockets", key, "DocketID"},
    {"Dockets", id, itemIds},
    {"Dockets", integer, itemIntegers},
    {"Dockets", boolean, itemBooleans},
    {"Dockets", text, itemTexts},
    {"Dockets", memo, itemMemos},
    {"Dockets", date, "DateFrom DateCreated"},
    {"Dockets", time, "TimeFrom TimeTo RealTimeFrom RealTimeTo RoundedTimeFrom RoundedTimeTo"},
    {"Dockets", colour, itemColours},
    {"Dockets", real, "TotalTimeReal TotalTimeRounded TotalTimeAdjusted TotalTimeFinal"},
    {"Dockets", currency, "TotalAmountReal TotalAmountAdjusted TotalAmountFinal"},
    {"archiveTasks", key, "oldTaskID"},
    {"archiveTasks", id, "ScheduleIDNum"},
    {"Schedule", key, "ScheduleID"},
    {"Schedule", id, "ClientNum"},
    {"Schedule", text, "ScheduleName Custom1 Custom2 Custom3 Custom4 Custom5"},
    {"Schedule", integer, "scheduleNum totalNum"},
    {"Schedule", date, "DueDate inHouseDueDate PeriodEndDate CalendarDate DateCompleted"},
    {"Reminders", key, "ReminderID"},
    {"Reminders", id,
     "UserIDNum CompanyIDNum ContactIDNum AppointmentIDNum TaskIDNum ToDoIDNum CommunicationLogIDNum "
     "MissingInfoIDNum CompanyProjectIDNum CompanyProjectStepIDNum"},
    {"Reminders", integer, "ReminderType"},
    {"Reminders", date, "ReminderDate"},
    {"Reminders", time, "ReminderTime"},
    {"Reminders", memo, "TextBody"},
    {"Reminders", boolean, "Completed"},
    {"ClientNotification", id, "AppointmentNum TaskNum DocketNum"},
    {"ClientNotification", integer, "NotificationType"},
    {"ClientNotification", date, "NotificationDate"},
    {"ClientNotification", boolean, "NotificationSent"},
    {"ColourSchemes", key, "ColourSchemeID"},
    {"ColourSchemes", text, "SchemeName"},
    {"ColourSchemes", integer, "SchemeType"},
    {"ColourSchemes", colour, itemColours},
    {"UserCalendarSettings", id, "UserIDNum"},
    {"UserCalendarSettings", memo,
     "ApptTitleBarText TaskTitleBarText DocketTitleBarText ApptTemplate TaskTemplate DocketTemplate"},
    {"UserCalendarSettings", time, "ApptTimeFrom ApptTimeTo TaskTimeFrom TaskTimeTo DocketTimeFrom DocketTimeTo"},
    {"UserCalendarSettings", colour,
     "ApptDaySundayBackColour TaskWeekWednesdayBackColour DocketMonthSaturdayBackColour"},
    {"UserCalendarSettings", integer,
     "ApptStartupDayTimerView TaskShowSideBarView DocketShowWeekendView ApptViewMyColourScheme"},
    {"UserCalendarSettings", boolean,
     "UseApptDayBackColours UseTaskWeekBackColours UseDocketMonthBackColours ShowApptTitleBarIcons "
     "ShowTaskTitleBar DocketShowStatusCheckBoxes ShowDocketInfoScreenWhenStopped"},
    {"CustomFields", text,
     "ApptCustomName1 ApptCustomName2 ApptCustomName3 ApptCustomName4 ApptCustomName5 "
     "TaskCustomName1 TaskCustomName2 TaskCustomName3 TaskCustomName4 TaskCustomName5 "
     "DocketCustomName1 DocketCustomName2 DocketCustomName3 DocketCustomName4 DocketCustomName5 "
     "CustomName1 CustomName2 CustomName3 CustomName4 CustomName5 "
     "RemittanceLabel1 RemittanceLabel2 RemittanceLabel3 RemittanceLabel4 RemittanceLabel5 "
     "ApptStatusName1 TaskStatusName3 DocketStatusName5"},
    {"CustomFields", boolean, "ApptUseStatusColour1 TaskUseStatusColour5 DocketUseStatusIcon1 ApptUseStatusIcon5"},
    {"CustomFields", colour, "ApptStatusColour1 TaskStatusColour3 DocketStatusColour5"},
    {"CustomFields", integer, "ApptStatusIcon1 TaskStatusIcon3 DocketStatusIcon5"},
    {"Holidays", date, "HolidayDate"},
    {"Holidays", integer, "HolidayType"},
    {"Holidays", text, "HolidayName"},
    {"CommunicationLog", key, "CommunicationLogID"},
    {"CommunicationLog", id, "CompanyIDNum ContactIDNum"},
    {"MissingInfo", key, "MissingInfoID"},
    {"MissingInfo", id, "CompanyIDNum ContactIDNum"},
    {"Companies", key, "CompanyID"},
    {"Companies", id, "CategoryNum CompanyNum"},
    {"Companies", text,
     "CompanyName CorporateName ClientID Email FaxNumber OfficeNumber DefaultContactEmail DefaultContactFaxNumber "
     "DefaultContactName DefaultContactPhoneNumber Custom1 Custom2 Custom3 Custom4 Custom5"},
    {"Contacts", key, "ContactID"},
    {"Contacts", text,
     "DisplayName BusinessEmail PersonalEmail SpouseEmail SpouseName BusinessPhone_Main BusinessPhone_Cell "
     "BusinessPhone_Fax BusinessPhone_Pager HomePhone_Main HomePhone_Cell HomePhone_Fax HomePhone_Pager "
     "SpousePhone_Main SpousePhone_Cell BusinessAltPhoneNumber PersonalAltPhoneNumber "
     "Custom1 Custom2 Custom3 Custom4 Custom5"},
    {"ContactLinks", id, "ContactIDNum CompanyNum CategoryNum ContactNum"},
    {"ContactLinks", boolean, "DefaultContact"},
    {"Clients", key, "ClientID"},
    {"Clients", id, "CompanyIDNum"},
    {"ClientData", key, "ClientDataID"},
    {"ClientData", id, "CompanyIDNum"},
    {"ClientData", integer, "ActiveStatus"},
    {"ClientData", boolean, "ShowThisClient"},
    {"Categories", key, "CategoryID"},
    {"OtherInfo", key, "OtherInfoID"},
    {"AccountantFirmInfo", key, "CompanyID"},
    {"AccountantEmployeeInfo", key, "ContactID"},
    {"CompaniesNotes", memo, "Notes BusinessNotes ContactNotes"},
    {"ContactsNotes", memo, "Notes BusinessNotes PersonalNotes"},
    {"PersonalTaxClientSummary", memo, "PersonalTaxNotes"},
};

std::string caseName(const testing::TestParamInfo<Typed>& row)
{
    constexpr const char* typeNames[] = {"key",  "id",      "integer", "real", "currency", "text",
                                         "memo", "boolean", "date",    "time", "colour"};
    return std::string(row.param.table) + "_" + typeNames[static_cast<std::size_t>(row.param.type)];
}

INSTANTIATE_TEST_SUITE_P(TypedColumns, SchemaColumnTest, testing::ValuesIn(typedColumns), caseName);

} // namespace
} // namespace qncal::schema
