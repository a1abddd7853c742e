#include "demo/demoFirm.h"

#include "host/services/HostTest.h"
#include "items/clsCalendarItem.h"
#include "services/statutoryHolidays.h"
#include "utilities/Clock.h"

#include <map>
#include <set>

namespace qncal::host {
namespace {

const Date today = Date::of(2026, 3, 4, 10, 0, 0);

class DemoFirmTest : public test::HostTest {
protected:
    std::int32_t count(const std::string& from) { return Rows::read(*database, "SELECT * FROM " + from + ";").count(); }
    std::int32_t items() { return count("Appointments") + count("Tasks") + count("Dockets"); }

    /// Every row of the tables that the firm is made of.
    static std::string everything(SqliteDatabase& database)
    {
        std::string all;
        for (const schema::Table& table : schema::tables()) {
            for (Rows rows = Rows::read(database, "SELECT * FROM " + std::string(table.name) + ";"); !rows.atEnd();
                 rows.moveNext()) {
                for (const schema::Column& column : table.columns)
                    all += rows.text(column.name) + "|";
                all += "\n";
            }
        }
        return all;
    }

    static std::string firm(std::uint32_t seed)
    {
        const std::shared_ptr<SqliteDatabase> database = SqliteDatabase::openInMemory();
        HostEnvironment host(HostServices{.database = database});
        fillDemoFirm(host, {.seed = seed, .companies = 5, .contacts = 12, .items = 130});
        return everything(*database);
    }

    ClockOverride clock{today};
};

TEST_F(DemoFirmTest, HasWhatItWasAskedFor)
{
    fillDemoFirm(host, {});
    EXPECT_EQ(count("AccountantEmployeeInfo"), 6);
    EXPECT_EQ(count("Companies"), 40);
    EXPECT_EQ(count("Contacts"), 120);
    EXPECT_EQ(items(), 600);
    EXPECT_GT(count("Appointments"), 200);
    EXPECT_GT(count("Tasks"), 50);
    EXPECT_GT(count("Dockets"), 50);
    EXPECT_GT(count("Reminders"), 50);
    EXPECT_GT(count("ClientNotification"), 5);
    EXPECT_EQ(count("ColourSchemes"), 7);
    EXPECT_EQ(count("CustomFields"), 1);
}

TEST_F(DemoFirmTest, RemindersOfThePastHaveBeenShown)
{
    fillDemoFirm(host, {});
    EXPECT_GT(count("Reminders WHERE Completed=True"), 0);
    EXPECT_GT(count("Reminders WHERE Completed=False"), 0);
    EXPECT_EQ(count("Reminders WHERE Completed=False AND ReminderDate<#2026-03-04#"), 0);
    EXPECT_EQ(count("Reminders WHERE Completed=True AND ReminderDate>=#2026-03-04#"), 0);
}

TEST_F(DemoFirmTest, TheSameSeedGivesTheSameFirmAndAnotherAnother)
{
    const std::string first = firm(1);
    EXPECT_EQ(first, firm(1));
    EXPECT_NE(first, firm(2));
}

TEST_F(DemoFirmTest, ItemsStandOnWorkingDaysAroundTodayAndDoNotOverlap)
{
    fillDemoFirm(host, {.items = 200});
    std::set<double> holidays;
    for (const int year : {2025, 2026}) {
        for (const StatutoryHoliday& holiday : statutoryHolidays(year, LocaleService::canada, "ON"))
            holidays.insert(holiday.date.serial());
    }
    std::map<std::pair<std::int32_t, double>, double> busyUntil;
    for (Rows rows = Rows::read(*database, "SELECT * FROM Appointments ORDER BY UserIDNum, DateFrom, TimeFrom;");
         !rows.atEnd(); rows.moveNext()) {
        const Date day = rows.field("DateFrom").toDate();
        EXPECT_TRUE(day.weekday() >= 2 && day.weekday() <= 6) << defaultDateText(day);
        EXPECT_FALSE(holidays.contains(day.serial())) << defaultDateText(day);
        EXPECT_LE(std::abs(day.serial() - today.dateOnly().serial()), 62.0);
        double& busy = busyUntil[{rows.integer("UserIDNum"), day.serial()}];
        EXPECT_GE(rows.field("TimeFrom").toDate().serial(), busy - 1e-9);
        busy = rows.field("TimeTo").toDate().serial();
        EXPECT_LE(busy, 17.0 / 24.0 + 1e-9);
    }
}

TEST_F(DemoFirmTest, EveryCompanyHasOneDefaultContactWithACopyOnTheCompany)
{
    fillDemoFirm(host, {.items = 0});
    for (Rows companies = Rows::read(*database, "SELECT * FROM Companies;"); !companies.atEnd(); companies.moveNext()) {
        const Rows links = Rows::read(*database, "SELECT ContactIDNum FROM ContactLinks WHERE CompanyNum="
                                                     + companies.text("CompanyID") + " AND DefaultContact=True;");
        ASSERT_EQ(links.count(), 1);
        EXPECT_EQ(companies.text("DefaultContactName"), host.clients().getContactName(links.integer("ContactIDNum")));
    }
}

TEST_F(DemoFirmTest, TheStaffMeetingIsAGroupEachWeekAndASeriesForEachUser)
{
    fillDemoFirm(host, {.companies = 2, .contacts = 2, .items = 100});
    std::map<std::int32_t, std::set<std::int32_t>> usersOfGroup;
    std::map<std::int32_t, std::set<std::int32_t>> usersOfSeries;
    for (Rows rows = Rows::read(*database, "SELECT * FROM Appointments WHERE Subject='Staff meeting';"); !rows.atEnd();
         rows.moveNext()) {
        usersOfGroup[rows.integer("UserGroupNum", 0)].insert(rows.integer("UserIDNum"));
        usersOfSeries[rows.integer("RepeatNum", 0)].insert(rows.integer("UserIDNum"));
    }
    EXPECT_FALSE(usersOfGroup.contains(0));
    EXPECT_FALSE(usersOfSeries.contains(0));
    EXPECT_EQ(usersOfSeries.size(), 6u);
    for (const auto& [group, users] : usersOfGroup)
        EXPECT_EQ(users.size(), 6u) << group;
    for (const auto& [series, users] : usersOfSeries)
        EXPECT_EQ(users.size(), 1u) << series;
}

TEST_F(DemoFirmTest, FollowsTheRegion)
{
    host.locale().values().country = LocaleService::unitedStates;
    fillDemoFirm(host, {.items = 0});
    EXPECT_EQ(count("Holidays WHERE HolidayName='Independence Day'"), 2);
    EXPECT_EQ(count("Companies WHERE Country='United States'"), 40);
}

TEST_F(DemoFirmTest, TellsHowFarItIs)
{
    int last = 0;
    fillDemoFirm(host, {.companies = 2, .contacts = 2, .items = 120}, [&](int done, int total) {
        EXPECT_EQ(total, 120);
        EXPECT_GT(done, last);
        last = done;
    });
    EXPECT_EQ(last, 120);
}

} // namespace
} // namespace qncal::host
