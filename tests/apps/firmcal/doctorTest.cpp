#include "apps/firmcal/CommandLine.h"

#include "services/Rows.h"
#include "store/SqliteConnection.h"
#include "store/SqliteDatabase.h"
#include "support/rowName.h"

#include <nlohmann/json.hpp>

#include <fstream>

namespace qncal::firmcal::test {
namespace {

class DoctorTest : public EmptyDatabaseTest {
protected:
    void add(const std::string& table, const std::vector<host::FieldText>& fields)
    {
        host::addRow(*host::SqliteDatabase::open(database()), table, fields);
    }
    /// How much a check found, and how much it mended.
    std::pair<int, int> result(const std::string& check, const std::vector<std::string>& options = {}) const
    {
        std::vector<std::string> arguments{"doctor", "--json"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const auto results = nlohmann::ordered_json::parse(run(arguments).out);
        for (const auto& entry : results["checks"]) {
            if (entry["check"] == check)
                return {entry["found"], entry["mended"]};
        }
        ADD_FAILURE() << "no check '" << check << "'";
        return {};
    }
    void expectFoundAndMended(const std::string& check)
    {
        EXPECT_EQ(result(check), (std::pair{1, 0}));
        EXPECT_EQ(result(check, {"--repair"}), (std::pair{1, 1}));
        EXPECT_EQ(result(check), (std::pair{0, 0}));
        succeed({"doctor"});
    }
};

TEST_F(DoctorTest, AHealthyDatabaseIsWell)
{
    const std::string shown = output({"doctor"});
    EXPECT_TRUE(shown.starts_with("schema version ")) << shown;
    EXPECT_EQ(shown.find("found"), std::string::npos) << shown;
}

TEST_F(DemoDatabaseTest, TheDemonstrationIsWell) { succeed({"doctor"}); }

TEST_F(DoctorTest, RemindersOfItemsThatAreGone)
{
    succeed({"item", "add", "Call"});
    add("Reminders", {{"AppointmentIDNum", "1"}, {"ReminderType", "3"}});
    add("Reminders", {{"ReminderType", "1"}, {"TextBody", "Of no item"}});
    add("Reminders", {{"TaskIDNum", "77"}, {"ReminderType", "5"}});
    expectFoundAndMended("reminders of items that are gone");
    EXPECT_EQ(rows("SELECT ReminderID FROM Reminders ORDER BY ReminderID"), "{\"ReminderID\":1}\n{\"ReminderID\":2}\n");
}

TEST_F(DoctorTest, NotificationsOfItemsThatAreGone)
{
    succeed({"item", "add", "Call", "--kind", "docket"});
    add("ClientNotification", {{"DocketNum", "1"}});
    add("ClientNotification", {{"AppointmentNum", "5"}});
    expectFoundAndMended("notifications of items that are gone");
    EXPECT_EQ(rows("SELECT DocketNum FROM ClientNotification"), "{\"DocketNum\":1}\n");
}

TEST_F(DoctorTest, LinksOfClientsThatAreGone)
{
    add("Companies", {{"CompanyName", "Granite Ltd."}});
    add("ContactLinks", {{"CompanyNum", "1"}, {"ContactIDNum", "9"}});
    expectFoundAndMended("links of clients that are gone");
    EXPECT_EQ(rows("SELECT * FROM ContactLinks"), "");
}

TEST_F(DoctorTest, ItemsOfClientsThatAreGone)
{
    succeed({"item", "add", "Call", "--set", "companyIDNum=9"});
    expectFoundAndMended("appointments of clients that are gone");
    EXPECT_EQ(rows("SELECT Subject, CompanyIDNum FROM Appointments"), "{\"Subject\":\"Call\",\"CompanyIDNum\":-1}\n");
}

TEST_F(DoctorTest, SeriesOfOne)
{
    for (const char* series : {"4", "4", "5", "0"})
        succeed({"item", "add", "Call", "--kind", "task", "--set", std::string("RepeatNum=") + series});
    expectFoundAndMended("series of one among the tasks");
    EXPECT_EQ(rows("SELECT RepeatNum FROM Tasks ORDER BY TaskID"),
              "{\"RepeatNum\":4}\n{\"RepeatNum\":4}\n{\"RepeatNum\":0}\n{\"RepeatNum\":0}\n");
}

TEST_F(DoctorTest, ItemsOfUsersThatAreGoneAreForAPersonToDecide)
{
    succeed({"item", "add", "Call", "--set", "userIDNum=9"});
    EXPECT_EQ(result("appointments of users that are gone", {"--repair"}), (std::pair{1, 0}));
    const Outcome outcome = run({"doctor", "--repair"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err, "firmcal: 1 problem left\n");
    EXPECT_NE(outcome.out.find("1 found, to be decided by you"), std::string::npos) << outcome.out;
}

struct SpoiltCell {
    const char* name;
    const char* table;
    const char* column;
    const char* sql;
    const char* shown;
    const char* mended;
};

class SpoiltCellTest : public EmptyDatabaseTest, public testing::WithParamInterface<SpoiltCell> {};

TEST_P(SpoiltCellTest, IsNamedWithItsPlaceAndEmptied)
{
    const SpoiltCell& cell = GetParam();
    const std::string table = cell.table;
    host::addRow(*host::SqliteDatabase::open(database()), table, {});
    host::SqliteConnection(database(), host::SqliteConnection::Access::readWrite, 0)
        .execute("UPDATE " + table + " SET " + cell.column + "=" + cell.sql);
    const std::string place = table + "." + cell.column + " of row 1: '" + cell.shown + "'";
    const Outcome outcome = run({"doctor"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.out.find("1 found\n"), std::string::npos) << outcome.out;
    EXPECT_NE(outcome.out.find(place + "\n"), std::string::npos) << outcome.out;
    const auto json = nlohmann::ordered_json::parse(run({"doctor", "--json"}).out);
    EXPECT_EQ(json["checks"][0]["places"], nlohmann::ordered_json::array({place}));
    succeed({"doctor", "--repair"});
    succeed({"doctor"});
    EXPECT_EQ(rows("SELECT " + std::string(cell.column) + " FROM " + table),
              "{\"" + std::string(cell.column) + "\":" + cell.mended + "}\n");
}

INSTANTIATE_TEST_SUITE_P(
    Cells, SpoiltCellTest,
    testing::Values(SpoiltCell{"ColourOfAScheme", "ColourSchemes", "BackColour", "'red'", "red", "null"},
                    SpoiltCell{"ColourOfAnItem", "Appointments", "BackColour", "'red'", "red", "null"},
                    SpoiltCell{"ColourBeyond32Bits", "CustomFields", "ApptStatusColour1", "5000000000", "5000000000",
                               "null"},
                    SpoiltCell{"Icon", "CustomFields", "ApptStatusIcon1", "'x'", "x", "null"},
                    SpoiltCell{"Switch", "CustomFields", "ApptUseStatusColour1", "'maybe'", "maybe", "false"},
                    SpoiltCell{"Reference", "Reminders", "TaskIDNum", "'x'", "x", "null"},
                    SpoiltCell{"Date", "Tasks", "DateFrom", "'soon'", "soon", "null"}),
    qncal::test::rowName);

TEST_F(DoctorTest, SaysHowToMend)
{
    add("Reminders", {{"TaskIDNum", "77"}});
    add("Reminders", {{"TaskIDNum", "78"}});
    const Outcome outcome = run({"doctor"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err, "firmcal: 2 problems left; 'firmcal doctor --repair' mends what can be mended\n");
    EXPECT_NE(outcome.out.find("2 found\n"), std::string::npos) << outcome.out;
    EXPECT_NE(output({"doctor", "--repair"}).find("2 found, 2 mended\n"), std::string::npos);
}

TEST_F(DoctorTest, ADamagedFileIsNamed)
{
    for (int i = 0; i < 40; ++i)
        add("Companies", {{"CompanyName", std::string(500, 'x')}});
    {
        // The middle of the file, behind the pages that are read at opening.
        std::fstream file(database(), std::ios::in | std::ios::out | std::ios::binary);
        file.seekp(static_cast<std::streamoff>(std::filesystem::file_size(database()) - 6000));
        file << std::string(3000, '\xFF');
    }
    const Outcome outcome = run({"doctor"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.err.find("damaged"), std::string::npos) << outcome.err;
}

} // namespace
} // namespace qncal::firmcal::test
