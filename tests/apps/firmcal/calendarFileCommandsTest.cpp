#include "apps/firmcal/CalendarFileTest.h"

namespace qncal::firmcal::test {
namespace {

TEST_F(CalendarFileTest, TimeZonesBecomeLocalTimes)
{
    const Json report = import(corpus("timeZones.ics"));
    EXPECT_EQ(calendar(), "2026-03-10 08:00-08:30 Wherever you are\n"
                          "2026-03-10 10:00-11:00 In UTC\n"
                          "2026-03-10 10:30-11:15 In a zone of the file's own\n"
                          "2026-03-10 11:00-18:00 From Berlin to Toronto\n"
                          "2026-03-10 11:00-11:30 Nobody knows where\n"
                          "2026-03-10 14:00-15:00 In Toronto\n");
    EXPECT_EQ(remarks(report, "changed"), "nobody knows this time zone; its times are taken as local\n");
}

TEST_F(CalendarFileTest, ClocksThatChangeMoveWhatIsOfAnotherZone)
{
    import(corpus("daylightSaving.ics"));
    EXPECT_EQ(calendar(), "2026-03-07 09:30-10:00 The same hour on the wall\n"
                          "2026-03-07 10:00-10:30 The same hour of the world\n"
                          "2026-03-08 09:30-10:00 The same hour on the wall\n"
                          "2026-03-08 11:00-11:30 The same hour of the world\n"
                          "2026-03-09 09:30-10:00 The same hour on the wall\n"
                          "2026-03-09 11:00-11:30 The same hour of the world\n"
                          "2026-03-26 10:00-11:00 The other side changes its clocks\n"
                          "2026-04-02 09:00-10:00 The other side changes its clocks\n");
}

TEST_F(CalendarFileTest, RecurrencesBecomeRowsOfOneSeries)
{
    const Json report = import(corpus("recurrences.ics"), {"--until", "2026-12-31"});
    EXPECT_EQ(report["until"], "2026-12-31");
    EXPECT_EQ(calendar(), "2024-02-29 00:00-23:59 Leap day\n"
                          "2026-03-02 09:00-09:30 Stand-up\n"
                          "2026-03-04 09:00-09:30 Stand-up\n"
                          "2026-03-09 14:00-15:00 Stand-up in the afternoon\n"
                          "2026-03-10 18:00-20:00 Evening class\n"
                          "2026-03-13 09:00-09:30 Stand-up\n"
                          "2026-03-16 09:00-09:30 Stand-up\n"
                          "2026-03-20 18:00-20:00 Evening class\n"
                          "2026-03-27 18:00-20:00 Evening class\n"
                          "2026-03-31 00:00-23:59 Month end\n"
                          "2026-04-14 18:00-20:00 Evening class\n"
                          "2026-04-30 00:00-23:59 Month end\n"
                          "2026-05-12 18:00-20:00 Evening class\n"
                          "2026-05-31 00:00-23:59 Month end\n"
                          "2026-06-30 00:00-23:59 Month end\n"
                          "2026-07-31 00:00-23:59 Month end\n");
    EXPECT_EQ(calendar("task"), "2026-03-06 17:00-17:00 Send the report\n"
                                "2026-03-20 17:00-17:00 Send the report\n"
                                "2026-04-03 17:00-17:00 Send the report\n");
    EXPECT_EQ(rows("SELECT RepeatNum, Count(AppointmentID) AS HowMany FROM Appointments WHERE Subject LIKE 'Stand-up%' "
                   "GROUP BY RepeatNum;"),
              "{\"RepeatNum\":1,\"HowMany\":5}\n");
    EXPECT_EQ(remarks(report, "changed"), "it goes on after 2026-12-31, the last day that is imported\n");
}

TEST_F(CalendarFileTest, AlarmsBecomeTheNearestReminders)
{
    import(corpus("alarms.ics"));
    EXPECT_EQ(rows("SELECT Subject, Remind, ReminderPeriod FROM Appointments ORDER BY DateFrom;"),
              "{\"Subject\":\"An hour before\",\"Remind\":true,\"ReminderPeriod\":\"1 Hr\"}\n"
              "{\"Subject\":\"Twenty-five minutes before\",\"Remind\":true,\"ReminderPeriod\":\"20 Min\"}\n"
              "{\"Subject\":\"At a moment\",\"Remind\":true,\"ReminderPeriod\":\"1 Day\"}\n"
              "{\"Subject\":\"Before the end\",\"Remind\":true,\"ReminderPeriod\":\"1 Hr\"}\n");
    EXPECT_EQ(rows("SELECT Remind, ReminderPeriod FROM Tasks;"), "{\"Remind\":true,\"ReminderPeriod\":\"1 Week\"}\n");
    EXPECT_EQ(rows("SELECT ReminderDate, AppointmentIDNum FROM Reminders WHERE AppointmentIDNum=1;").empty(), false);
}

TEST_F(CalendarFileTest, KnownAttendeesBecomeAGroup)
{
    succeed({"demo", (folder() / "demo.db").string(), "--seed", "1", "--items", "0"});
    const std::string demo = (folder() / "demo.db").string();
    const Json names = Json::parse(output({"--database", demo, "user", "list", "--json"}));
    std::ifstream in(corpus("attendees.ics"));
    std::string text{std::istreambuf_iterator<char>(in), {}};
    const auto put = [&](const std::string& placeholder, const std::string& name) {
        text.replace(text.find(placeholder), placeholder.size(), name);
    };
    put("First User", names[1]["name"]);
    put("Second User", names[2]["name"]);
    const std::string file = write("attendees.ics", text);
    const Json report = Json::parse(output({"--database", demo, "import", file, "--user", names[3]["name"], "--json"}));
    EXPECT_EQ(report["added"], 3);
    const Json rows = Json::parse(output({"--database", demo, "sql",
                                          "SELECT UserIDNum, UserGroupNum, Subject FROM Appointments "
                                          "ORDER BY AppointmentID;",
                                          "--json"}));
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[0]["UserIDNum"], names[1]["id"]);
    EXPECT_EQ(rows[1]["UserIDNum"], names[2]["id"]);
    EXPECT_EQ(rows[0]["UserGroupNum"], 1);
    EXPECT_EQ(rows[1]["UserGroupNum"], 1);
    EXPECT_EQ(rows[2]["UserIDNum"], names[3]["id"]);
    EXPECT_EQ(rows[2]["UserGroupNum"], 0);
    EXPECT_NE(remarks(report, "kept").find("Pat (Client)"), std::string::npos);
}

TEST_F(CalendarFileTest, TextsComeOutAsTheyWentIn)
{
    const Json report = import(corpus("texts.ics"));
    EXPECT_NE(remarks(report, "kept").find("LOCATION:Besprechungsraum „Süd“\\, 2. Stock\n"), std::string::npos);
    EXPECT_EQ(rows("SELECT Subject, Private FROM Appointments;"),
              "{\"Subject\":\"Prüfung, Teil 1; „Größe“ – 税務\",\"Private\":true}\n"
              "{\"Subject\":\"\",\"Private\":true}\n");
    const std::string file = (folder() / "out.ics").string();
    succeed({"export", file});
    std::ifstream in(file, std::ios::binary);
    std::string text{std::istreambuf_iterator<char>(in), {}};
    for (std::size_t fold = text.find("\r\n "); fold != std::string::npos; fold = text.find("\r\n ", fold))
        text.erase(fold, 3);
    for (const char* line :
         {"X-QNCAL-ORIGINAL-SUMMARY;LANGUAGE=de:Prüfung\\, Teil 1\\; „Größe“ – 税務",
          "SUMMARY:Prüfung\\, Teil 1\\; „Größe“ – 税務",
          "DESCRIPTION:First line\\nSecond line with a very long text that has been folded by the program that wrote "
          "it\\, in the middle of a word\\nC:\\\\clients\\\\north\\n\\n{braces} and a\ttab",
          "LOCATION:Besprechungsraum „Süd“\\, 2. Stock", "CATEGORIES:Clients,Year end", "STATUS:TENTATIVE",
          "CLASS:CONFIDENTIAL", "CLASS:PRIVATE", "PRIORITY:1", "TRANSP:TRANSPARENT", "SEQUENCE:3",
          "URL:https://example.com/a?b=1,2;c=3", "GEO:43.6532;-79.3832", "CREATED:20260101T080000Z",
          "UID:texts@texts.example",
          "X-APPLE-STRUCTURED-LOCATION;VALUE=URI;X-ADDRESS=\"1 King St\\nToronto\";X-TITLE=\"A:B\":geo:43.6,-79.3",
          "ATTACH;FMTTYPE=application/pdf:https://example.com/slip.pdf"})
        EXPECT_NE(text.find(std::string("\r\n") + line + "\r\n"), std::string::npos) << line;
}

TEST_F(CalendarFileTest, SeveralDaysAreARowEach)
{
    const Json report = import(corpus("days.ics"));
    EXPECT_EQ(remarks(report, "changed"), "it goes on for 3 days, one item each\n"
                                          "it goes on for 2 days, one item each\n"
                                          "it ends at midnight, on the calendar at 23:59\n");
    EXPECT_EQ(calendar(), "2026-04-01 00:00-23:59 All day\n"
                          "2026-04-02 00:00-23:59 All day without an end\n"
                          "2026-04-06 00:00-23:59 Three days\n"
                          "2026-04-07 00:00-23:59 Three days\n"
                          "2026-04-08 00:00-23:59 Three days\n"
                          "2026-04-10 22:00-23:59 Over midnight\n"
                          "2026-04-11 00:00-02:00 Over midnight\n"
                          "2026-04-12 20:00-23:59 Until midnight\n"
                          "2026-04-14 12:00-12:00 A moment\n");
}

TEST_F(CalendarFileTest, ToDosBecomeTasks)
{
    const Json report = import(corpus("tasks.ics"));
    EXPECT_EQ(calendar("task"), "2026-03-02 00:00-23:59 Some day\n"
                                "2026-04-15 00:00-23:59 Due on a day\n"
                                "2026-04-17 16:00-16:00 Due at the end of the week\n");
    EXPECT_EQ(remarks(report, "skipped"), "VJOURNAL is no event and no to-do\n");
    EXPECT_EQ(remarks(report, "changed"), "it begins before the day that it is due; the task is on that day\n"
                                          "it has no date and is put on 2026-03-02\n");
}

TEST_F(CalendarFileTest, AComponentWithAFaultIsSkippedAndListed)
{
    const Json report = import(corpus("faults.ics"));
    EXPECT_EQ(calendar(), "2026-04-20 09:00-10:00 A good one\n");
    EXPECT_EQ(report["skipped"], 5);
    EXPECT_EQ(remarks(report, "lost"), "THIS LINE IS NO PROPERTY\n");
    EXPECT_EQ(remarks(report, "skipped"), "an event without DTSTART\n"
                                          "'DTSTART:2026-04-20 9 am': no date\n"
                                          "'DTEND:20260420T080000': the end is before the start\n"
                                          "'RRULE:FREQ=SOMETIMES': no rule of recurrence\n"
                                          "'DURATION:an hour': no duration\n");
    EXPECT_NE(output({"import", corpus("faults.ics")})
                  .find("\n  line 17: With a date of its own kind: 'DTSTART:2026-04-20 9 am': no date\n"),
              std::string::npos);
}

TEST_F(CalendarFileTest, AChangedFileUpdatesItsItems)
{
    const auto series = [&](const std::string& more) {
        return write("series.ics", "BEGIN:VCALENDAR\nBEGIN:VEVENT\nUID:1\nDTSTART:20260302T090000\nDURATION:PT1H\n"
                                   "RRULE:FREQ=DAILY;COUNT=3\n"
                                       + more + "END:VEVENT\nEND:VCALENDAR\n");
    };
    import(series("SUMMARY:Before\n"));
    succeed({"item", "set", "3", "--set", "Custom1=Mine"});
    const Json report = import(series("SUMMARY:After\nEXDATE:20260303T090000\n"));
    EXPECT_EQ(report["added"], 0);
    EXPECT_EQ(report["updated"], 2);
    EXPECT_EQ(remarks(report, "changed"), "item 2 of an earlier import is not in this file; it stays\n");
    EXPECT_EQ(rows("SELECT Subject, RepeatNum, Custom1 FROM Appointments ORDER BY AppointmentID;"),
              "{\"Subject\":\"After\",\"RepeatNum\":1,\"Custom1\":\"\"}\n"
              "{\"Subject\":\"Before\",\"RepeatNum\":1,\"Custom1\":\"\"}\n"
              "{\"Subject\":\"After\",\"RepeatNum\":1,\"Custom1\":\"Mine\"}\n");
}

class CorpusTest : public CalendarFileTest, public testing::WithParamInterface<const char*> {};

TEST_P(CorpusTest, ASecondImportChangesNothing)
{
    const Json first = import(corpus(GetParam()));
    const std::string before = calendar() + calendar("task");
    const Json second = import(corpus(GetParam()));
    EXPECT_EQ(second["added"], 0);
    EXPECT_EQ(second["updated"], 0);
    EXPECT_EQ(second["unchanged"], first["added"]);
    EXPECT_EQ(calendar() + calendar("task"), before);
}

TEST_P(CorpusTest, WhatIsExportedComesBackInAnEmptyDatabase)
{
    const Json first = import(corpus(GetParam()));
    const std::string before = calendar() + calendar("task");
    const std::string file = (folder() / "first.ics").string();
    succeed({"export", file});
    const std::string other = (folder() / "other.db").string();
    succeed({"--database", other, "init", other});
    const Json second =
        Json::parse(output({"--database", other, "import", file, "--zone", "America/Toronto", "--json"}));
    EXPECT_EQ(second["added"], first["added"]);
    const std::string columns = "UserIDNum, Subject, DateFrom, TimeFrom, TimeTo, TextBody, RepeatNum, UserGroupNum, "
                                "Remind, ReminderPeriod, Private";
    for (const std::string table : {"Appointments", "Tasks"}) {
        const std::string sql =
            "SELECT " + columns + " FROM " + table + " ORDER BY DateFrom, TimeFrom, TimeTo, Subject;";
        EXPECT_EQ(output({"--database", other, "sql", sql, "--json"}), output({"sql", sql, "--json"}));
    }
    EXPECT_EQ(output({"--database", other, "export", "-"}), output({"export", "-"}));
}

TEST_P(CorpusTest, ADryRunWritesNothing)
{
    const Json report = import(corpus(GetParam()), {"--dry-run"});
    EXPECT_GT(report["added"], 0);
    EXPECT_EQ(calendar() + calendar("task"), "");
}

INSTANTIATE_TEST_SUITE_P(CalendarFiles, CorpusTest,
                         testing::Values("timeZones.ics", "daylightSaving.ics", "recurrences.ics", "alarms.ics",
                                         "attendees.ics", "texts.ics", "days.ics", "tasks.ics", "faults.ics"),
                         [](const auto& row) {
                             const std::string name = row.param;
                             return name.substr(0, name.find('.'));
                         });

TEST_F(CalendarFileTest, AFileThatCannotBeReadIsAFailure)
{
    const auto failure = [&](const std::string& file) {
        const Outcome outcome = run({"import", file});
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.out, "");
        return outcome.err;
    };
    EXPECT_EQ(failure("/nowhere.ics"), "firmcal: cannot read /nowhere.ics\n");
    EXPECT_EQ(failure(folder().string()), "firmcal: cannot read " + folder().string() + "\n");
    const std::string garbage = write("garbage.ics", std::string("\x00\xFF\x13garbage\n", 11));
    EXPECT_EQ(failure(garbage),
              "firmcal: " + garbage + ": this is no iCalendar file: it does not begin with BEGIN:VCALENDAR\n");
    const std::string truncated =
        write("truncated.ics", "BEGIN:VCALENDAR\nBEGIN:VEVENT\nUID:1\nDTSTART:20260302T090000\nEND:VEVENT\n"
                               "BEGIN:VEVENT\nUID:2\nDTSTART:2026");
    EXPECT_EQ(failure(truncated),
              "firmcal: " + truncated + ": the file ends in the middle of the VEVENT that begins at line 6\n");
    EXPECT_EQ(calendar(), "");
    const std::string nothing =
        write("nothing.ics", "BEGIN:VCALENDAR\nBEGIN:VEVENT\nUID:1\nEND:VEVENT\nEND:VCALENDAR\n");
    EXPECT_EQ(run({"import", nothing}).status, 1);
    EXPECT_EQ(run({"import", corpus("days.ics"), "--zone", "Middle/Earth"}).err,
              "firmcal: there is no time zone 'Middle/Earth'\n");
}

TEST_F(CalendarFileTest, AnExportDoesNotOverwriteUnasked)
{
    const std::string file = write("mine.ics", "precious");
    const Outcome outcome = run({"export", file});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err, "firmcal: " + file + " exists; --replace overwrites it\n");
    EXPECT_EQ(output({"export", file, "--replace"}), "Exported 0 items to " + file + " as 0 components.\n");
}

TEST_F(CalendarFileTest, AnExportTakesTheDaysAndKindsThatAreAskedFor)
{
    import(corpus("days.ics"));
    import(corpus("tasks.ics"));
    const auto count = [&](std::vector<std::string> more) {
        more.insert(more.begin(), {"export", "-"});
        const std::string text = output(more);
        std::size_t found = 0;
        for (std::size_t at = text.find("SUMMARY:"); at != std::string::npos; at = text.find("SUMMARY:", at + 1))
            ++found;
        return found;
    };
    EXPECT_EQ(count({}), 12U);
    EXPECT_EQ(count({"--kind", "task"}), 3U);
    EXPECT_EQ(count({"--from", "2026-04-07", "--to", "2026-04-10"}), 3U);
}

TEST_F(CalendarFileTest, ProgressShowsOnATerminalAlone)
{
    const Outcome atTerminal = runAtTerminal({"import", corpus("days.ics")}, "");
    EXPECT_NE(atTerminal.err.find("Importing: 6 of 6\n"), std::string::npos);
    EXPECT_EQ(run({"import", corpus("days.ics")}).err, "");
}

} // namespace
} // namespace qncal::firmcal::test
