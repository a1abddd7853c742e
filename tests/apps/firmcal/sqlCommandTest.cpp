#include "apps/firmcal/CommandLine.h"

namespace qncal::firmcal::test {
namespace {

class SqlCommandTest : public EmptyDatabaseTest {
protected:
    void SetUp() override
    {
        EmptyDatabaseTest::SetUp();
        succeed({"item", "add", "Räumen", "--date", "2026-03-04", "--set", "Remind=yes"});
        succeed({"item", "add", "Call", "--date", "2026-03-03"});
    }
};

TEST_F(SqlCommandTest, PrintsATableInTheOrderAsked)
{
    EXPECT_EQ(output({"sql", "SELECT AppointmentID, Subject, DateFrom, TimeFrom, Remind, Custom1 FROM Appointments "
                             "ORDER BY DateFrom;"}),
              "AppointmentID  Subject  DateFrom    TimeFrom  Remind  Custom1\n"
              "-------------  -------  ----------  --------  ------  -------\n"
              "            2  Call     2026-03-03  09:00:00  False\n"
              "            1  Räumen   2026-03-04  09:00:00  True\n");
}

TEST_F(SqlCommandTest, PrintsTheHeadersOfAnEmptyResult)
{
    EXPECT_EQ(output({"sql", "SELECT Subject FROM Tasks"}), "Subject\n-------\n");
    EXPECT_EQ(output({"sql", "SELECT Subject FROM Tasks", "--json"}), "[]\n");
}

TEST_F(SqlCommandTest, JsonTellsNumbersTextsTruthAndNull)
{
    EXPECT_EQ(
        rows("SELECT AppointmentID, Subject, Remind, ScheduleTypeIDNum, UserIDNum FROM Appointments WHERE "
             "AppointmentID=1"),
        "{\"AppointmentID\":1,\"Subject\":\"Räumen\",\"Remind\":true,\"ScheduleTypeIDNum\":-1,\"UserIDNum\":-1}\n");
    EXPECT_EQ(rows("SELECT Custom1 FROM Tasks"), "");
}

TEST_F(SqlCommandTest, ATerminalGetsShortCellsAndACount)
{
    succeed({"item", "set", "1", "--set", "Custom1=" + std::string(100, 'x')});
    const std::string sql = "SELECT Custom1 FROM Appointments WHERE AppointmentID=1";
    const Outcome atTerminal = runAtTerminal({"sql", sql}, "");
    EXPECT_EQ(atTerminal.out, "Custom1\n" + std::string(60, '-') + "\n" + std::string(59, 'x') + "…\n1 row\n");
    EXPECT_NE(output({"sql", sql}).find(std::string(100, 'x') + "\n"), std::string::npos);
}

TEST_F(SqlCommandTest, NamesThatTwoTablesShareComeWithTheTable)
{
    const std::string shown = output({"sql", "SELECT Companies.ClientID, Contacts.ClientID FROM Companies INNER JOIN "
                                             "Contacts ON Companies.CompanyID = Contacts.ContactID"});
    EXPECT_TRUE(shown.starts_with("ClientID  Contacts.ClientID\n")) << shown;
}

} // namespace
} // namespace qncal::firmcal::test
