#include "apps/firmcal/CommandLine.h"

#include "store/SqliteConnection.h"
#include "support/rowName.h"

#include <fstream>

namespace qncal::firmcal::test {
namespace {

struct Wrong {
    const char* name;
    std::vector<std::string> arguments;
    int status;
    /// What the one line on the error stream says after "firmcal: ".
    const char* message;
};

void PrintTo(const Wrong& wrong, std::ostream* out) { *out << wrong.name; }

class WrongInputTest : public EmptyDatabaseTest, public testing::WithParamInterface<Wrong> {};

TEST_P(WrongInputTest, EndsWithOneClearLineAndChangesNothing)
{
    succeed({"item", "add", "Only one", "--date", "2026-03-02"});
    const std::string before = rows("SELECT * FROM Appointments");
    const Outcome outcome = run(GetParam().arguments);
    EXPECT_EQ(outcome.status, GetParam().status);
    EXPECT_EQ(outcome.err, std::string("firmcal: ") + GetParam().message + "\n");
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(rows("SELECT * FROM Appointments"), before);
}

INSTANTIATE_TEST_SUITE_P(
    All, WrongInputTest,
    testing::Values(
        Wrong{"NoCommand", {}, 2, "a command is missing; see 'firmcal --help'"},
        Wrong{"NoSecondCommand", {"item"}, 2, "a command is missing; see 'firmcal item --help'"},
        Wrong{"UnknownCommand", {"frobnicate"}, 2, "there is no command 'frobnicate'; see 'firmcal --help'"},
        Wrong{"UnknownSecondCommand", {"item", "burn"}, 2, "there is no command 'burn'; see 'firmcal item --help'"},
        Wrong{"UnknownOption",
              {"agenda", "--month"},
              2,
              "The following argument was not expected: --month; see 'firmcal agenda --help'"},
        Wrong{"NoSubject", {"item", "add"}, 2, "SUBJECT is required; see 'firmcal item add --help'"},
        Wrong{"NoNumber", {"item", "show"}, 2, "ID is required; see 'firmcal item show --help'"},
        Wrong{"NumberIsNone", {"item", "show", "x"}, 2, "Could not convert: ID = x; see 'firmcal item show --help'"},
        Wrong{"UnknownKind",
              {"item", "add", "x", "--kind", "meeting"},
              2,
              "no kind 'meeting' (appointment, task, docket); see 'firmcal item add --help'"},
        Wrong{"TooManyDays",
              {"agenda", "--days", "0"},
              2,
              "--days: Value 0 not in range 1 to 366; see 'firmcal agenda --help'"},
        Wrong{
            "BothAnswers", {"user", "list", "--yes", "--no"}, 2, "--yes excludes --no; see 'firmcal user list --help'"},
        Wrong{"ArchivedAppointments",
              {"item", "list", "--archived", "--kind", "appointment"},
              2,
              "--archived goes with tasks alone; see 'firmcal item list --help'"},
        Wrong{"UnknownItem", {"item", "show", "99"}, 1, "no appointment 99"},
        Wrong{"UnknownTask", {"item", "set", "1", "--kind", "task", "--date", "today"}, 1, "no task 1"},
        Wrong{"UnknownDocket", {"item", "delete", "5", "--kind", "docket", "--yes"}, 1, "no time entry 5"},
        Wrong{"UnknownTaskToArchive", {"item", "archive", "5"}, 1, "no task 5"},
        Wrong{"UnknownField",
              {"item", "set", "1", "--set", "Subjct=x"},
              1,
              "no field 'Subjct'; did you mean Subject? 'firmcal item fields' lists them"},
        Wrong{
            "FieldThatCanOnlyBeRead", {"item", "set", "1", "--set", "clientType=2"}, 1, "clientType can only be read"},
        Wrong{"NoAssignment", {"item", "set", "1", "--set", "Remind"}, 1, "'Remind' is not of the form Name=Value"},
        Wrong{"WrongYesNo",
              {"item", "set", "1", "--set", "Remind=perhaps"},
              1,
              "Remind: 'perhaps' is neither yes nor no"},
        Wrong{"OneWrongOfTwo",
              {"item", "set", "1", "--subject", "Changed", "--set", "BackColour=red"},
              1,
              "BackColour: 'red' is no colour (#RRGGBB, or a number from 0 to 16777215)"},
        Wrong{"WrongChannels",
              {"item", "set", "1", "--set", "notifyType=16"},
              1,
              "notifyType: '16' is no sum of channels (1 e-mail, 2 fax, 4 phone, 8 letter)"},
        Wrong{"WrongDate",
              {"item", "add", "x", "--date", "2026-02-30"},
              1,
              "'2026-02-30' is no date (2026-03-31, today, tomorrow, monday, +3d, +2w)"},
        Wrong{"WrongTime", {"item", "add", "x", "--start", "25:00"}, 1, "'25:00' is no time (9:30, 14:05, 9 pm)"},
        Wrong{"WrongHours",
              {"item", "add", "x", "--hours", "0"},
              1,
              "'0' is no number of hours (1.5 or 1:30, at most 24)"},
        Wrong{"EndBeforeStart",
              {"item", "add", "x", "--start", "10:00", "--end", "9:00"},
              1,
              "the item would end at 09:00, before it begins at 10:00"},
        Wrong{"EndAfterMidnight",
              {"item", "set", "1", "--start", "23:30"},
              1,
              "the item would begin at 23:30 and end after midnight"},
        Wrong{"NothingToChange", {"item", "set", "1"}, 2, "nothing to change; see 'firmcal item set --help'"},
        Wrong{"UnknownUser", {"agenda", "--user", "nobody"}, 1, "no user 'nobody'; 'firmcal user list' shows them"},
        Wrong{"UnknownOwner",
              {"item", "add", "x", "--for", "nobody"},
              1,
              "no user 'nobody'; 'firmcal user list' shows them"},
        Wrong{"UnknownCompany",
              {"item", "add", "x", "--company", "Nowhere"},
              1,
              "no company 'Nowhere'; 'firmcal client list' shows them"},
        Wrong{"UnknownContactNumber", {"client", "show", "--contact", "7"}, 1, "no contact 7"},
        Wrong{"WrongNow", {"agenda", "--now", "someday"}, 1, "'someday' is no date (2026-03-31, 2026-03-31T09:30)"},
        Wrong{"WrongCountry", {"agenda", "--country", "FR"}, 1, "'FR' is no country (CA, US)"},
        Wrong{"WrongProvince",
              {"agenda", "--province", "XX"},
              1,
              "'XX' is no province (AB, BC, MB, NB, NL, NS, ON, PE, QC, SK)"},
        Wrong{"UnknownItemToRender", {"item", "render", "99"}, 1, "no appointment 99"},
        Wrong{"UnknownItemToPlace", {"item", "best-time", "99", "--kind", "docket"}, 1, "no time entry 99"},
        Wrong{"UnknownItemToMove", {"item", "move", "99", "--to", "today"}, 1, "no appointment 99"},
        Wrong{"WrongDayToMoveTo",
              {"item", "move", "1", "--to", "someday"},
              1,
              "'someday' is no date (2026-03-31, today, tomorrow, monday, +3d, +2w)"},
        Wrong{"NoDayToMoveTo", {"item", "move", "1"}, 2, "--to is required; see 'firmcal item move --help'"},
        Wrong{"WrongHour",
              {"item", "move", "1", "--to", "today", "--hour", "24"},
              2,
              "--hour: Value 24 not in range 0 to 23; see 'firmcal item move --help'"},
        Wrong{"HourAndBest",
              {"item", "move", "1", "--to", "today", "--hour", "9", "--best"},
              2,
              "--hour excludes --best; see 'firmcal item move --help'"},
        Wrong{"UnknownKindOfTemplate",
              {"template", "fields", "--kind", "memo"},
              2,
              "no kind 'memo' (appointment, task, docket, company, contact, address); see 'firmcal template fields "
              "--help'"},
        Wrong{"KindWithoutAFirmTemplate",
              {"template", "show", "--kind", "contact"},
              2,
              "no kind 'contact' (appointment, task, docket); see 'firmcal template show --help'"},
        Wrong{"NoTemplate",
              {"template", "set"},
              2,
              "a template is missing: FILE or --text; see 'firmcal template set --help'"},
        Wrong{"EmptyTemplate",
              {"template", "set", "--text", ""},
              1,
              "the template is empty; 'firmcal template reset' puts the default back"},
        Wrong{"TwoTemplates",
              {"template", "set", "t.txt", "--text", "x"},
              2,
              "FILE excludes --text; see 'firmcal template set --help'"},
        Wrong{"TitleAndDisplay",
              {"template", "reset", "--title", "--display"},
              2,
              "--title excludes --display; see 'firmcal template reset --help'"},
        Wrong{"WrongHolidayDate",
              {"holidays", "add", "2026-02-30", "x"},
              1,
              "'2026-02-30' is no date (2026-03-31, today, tomorrow, monday, +3d, +2w)"},
        Wrong{"NoHolidayName", {"holidays", "add", "today"}, 2, "NAME is required; see 'firmcal holidays add --help'"},
        Wrong{"WrongHolidayType",
              {"holidays", "add", "today", "x", "--type", "bank"},
              2,
              "no type of holiday 'bank' (national, regional, working); see 'firmcal holidays add --help'"},
        Wrong{"NoHolidayToRemove", {"holidays", "remove", "today"}, 1, "no holiday on Mon, Mar 2, 2026"},
        Wrong{"WrongYear",
              {"holidays", "generate", "--year", "1800"},
              2,
              "--year: Value 1800 not in range 1900 to 2199; see 'firmcal holidays generate --help'"},
        Wrong{"WrongYears",
              {"holidays", "generate", "--years", "0"},
              2,
              "--years: Value 0 not in range 1 to 50; see 'firmcal holidays generate --help'"},
        Wrong{"WrongNumberOfDays",
              {"day", "add", "many"},
              2,
              "DAYS: Value many not in range -10000 to 10000; see 'firmcal day add --help'"},
        Wrong{"TooManyBusinessDays",
              {"day", "add", "10001"},
              2,
              "DAYS: Value 10001 not in range -10000 to 10000; see 'firmcal day add --help'"},
        Wrong{"WrongDayToCountFrom",
              {"day", "add", "1", "--from", "2026-02-30"},
              1,
              "'2026-02-30' is no date (2026-03-31, today, tomorrow, monday, +3d, +2w)"},
        Wrong{"WrongStatement",
              {"sql", "SELECT * FORM Tasks"},
              1,
              "SQL error in line 1, column 10: FROM expected, near \"FORM Tasks\""},
        Wrong{"UnknownColumn",
              {"sql", "SELECT Nix FROM Tasks"},
              1,
              "SQL error in line 1, column 8: there is no column Nix, near \"Nix FROM Tasks\""}),
    qncal::test::rowName);

class WrongDatabaseTest : public CommandLineTest {
protected:
    void expectFailure(const std::vector<std::string>& arguments, const std::string& message)
    {
        const Outcome outcome = run(arguments);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.out, "");
        EXPECT_NE(outcome.err.find(message), std::string::npos) << outcome.err;
        EXPECT_EQ(outcome.err.find('\n'), outcome.err.size() - 1) << "one line";
    }
};

TEST_F(WrongDatabaseTest, MissingFile)
{
    expectFailure({"agenda"}, "there is no file " + database() + "; 'firmcal init' and 'firmcal demo' make databases");
    EXPECT_FALSE(std::filesystem::exists(database())) << "looking makes no file";
}

TEST_F(WrongDatabaseTest, NoneGiven) { expectFailure({"agenda", "--database", ""}, "no database given"); }

TEST_F(WrongDatabaseTest, FileThatIsNoDatabase)
{
    std::ofstream(database()) << std::string(4096, 'x');
    expectFailure({"agenda"}, "is no database");
}

TEST_F(WrongDatabaseTest, NewerVersion)
{
    succeed({"init", database()});
    host::SqliteConnection(database(), host::SqliteConnection::Access::readWrite, 0)
        .execute("PRAGMA user_version = 99");
    expectFailure({"agenda"}, "version 99");
}

TEST_F(WrongDatabaseTest, FileThatExistsIsNotOverwritten)
{
    std::ofstream(database()) << "precious";
    expectFailure({"init", database()}, database() + " exists already");
    expectFailure({"demo", database()}, database() + " exists already");
    EXPECT_EQ(std::filesystem::file_size(database()), 8u);
}

TEST_F(WrongDatabaseTest, AFolderThatIsMissing)
{
    expectFailure({"init", (folder() / "nowhere" / "firm.db").string()}, "Cannot open the database");
}

TEST_F(WrongDatabaseTest, AFailedDemoLeavesNoFile)
{
    expectFailure({"demo", database(), "--province", "XX"}, "'XX' is no province");
    EXPECT_TRUE(std::filesystem::is_empty(folder()));
}

} // namespace
} // namespace qncal::firmcal::test
