#include "apps/firmcal/CalendarFileTest.h"

#include <cstdlib>
#include <filesystem>

/// Calendar files that go to and come from programs of other packages.

namespace qncal::firmcal::test {
namespace {

class OtherCalendarProgramTest : public CalendarFileTest {
protected:
    /// Whether a program of another package is there; the test is skipped, with a message, without it.
    static bool has(const std::string& program)
    {
        return std::system(("command -v " + program + " >/dev/null 2>&1").c_str()) == 0;
    }
    static void runProgram(const std::string& command)
    {
        ASSERT_EQ(std::system((command + " >/dev/null 2>&1").c_str()), 0) << command;
    }
};

TEST_F(OtherCalendarProgramTest, CalcurseWroteIt)
{
    if (!has("calcurse"))
        GTEST_SKIP() << "calcurse is not installed";
    const std::filesystem::path data = folder() / "calcurse";
    std::filesystem::create_directories(data);
    std::ofstream(data / "apts") << "03/10/2026 @ 10:00 -> 03/10/2026 @ 11:30 |Year-end review\n"
                                    "03/11/2026 @ 09:00 -> 03/11/2026 @ 09:30 {1W -> 04/01/2026} !Stand-up\n"
                                    "03/20/2026 [1] All day thing\n";
    std::ofstream(data / "todo") << "[1] File the T2\n";
    const std::string file = (folder() / "calcurse.ics").string();
    ASSERT_EQ(std::system(("calcurse -D " + data.string() + " -xical > " + file).c_str()), 0);
    EXPECT_EQ(import(file)["skipped"], 0);
    EXPECT_EQ(calendar(), "2026-03-10 10:00-11:30 Year-end review\n"
                          "2026-03-11 09:00-09:30 Stand-up\n"
                          "2026-03-18 09:00-09:30 Stand-up\n"
                          "2026-03-20 00:00-23:59 All day thing\n"
                          "2026-03-25 09:00-09:30 Stand-up\n"
                          "2026-04-01 09:00-09:30 Stand-up\n");
    EXPECT_EQ(calendar("task"), "2026-03-02 00:00-23:59 File the T2\n");
    EXPECT_EQ(rows("SELECT Count(AppointmentID) AS HowMany FROM Appointments WHERE Remind=True AND "
                   "ReminderPeriod='5 Min';"),
              "{\"HowMany\":4}\n");
    EXPECT_EQ(import(file)["added"], 0);
}

TEST_F(OtherCalendarProgramTest, CalcurseReadsWhatIsExported)
{
    if (!has("calcurse"))
        GTEST_SKIP() << "calcurse is not installed";
    import(corpus("days.ics"));
    const std::string file = (folder() / "firm.ics").string();
    succeed({"export", file});
    const std::filesystem::path data = folder() / "calcurse";
    std::filesystem::create_directories(data);
    runProgram("calcurse -D " + data.string() + " -i " + file);
    std::ifstream in(data / "apts");
    const std::string text{std::istreambuf_iterator<char>(in), {}};
    EXPECT_NE(text.find("04/10/2026 @ 22:00 -> 04/10/2026 @ 23:59"), std::string::npos);
    EXPECT_NE(text.find("04/01/2026 [1]"), std::string::npos);
}

TEST_F(OtherCalendarProgramTest, KhalWroteIt)
{
    if (!has("khal"))
        GTEST_SKIP() << "khal is not installed";
    const std::filesystem::path home = folder() / "khal";
    std::filesystem::create_directories(home / "calendar");
    std::ofstream(home / "config") << "[calendars]\n[[work]]\npath = " << (home / "calendar").string()
                                   << "\n[locale]\ntimeformat = %H:%M\ndateformat = %Y-%m-%d\n"
                                      "longdateformat = %Y-%m-%d\ndatetimeformat = %Y-%m-%d %H:%M\n"
                                      "longdatetimeformat = %Y-%m-%d %H:%M\nlocal_timezone = America/Toronto\n"
                                      "default_timezone = America/Toronto\n[default]\ndefault_calendar = work\n"
                                      "[sqlite]\npath = "
                                   << (home / "khal.db").string() << "\n";
    const std::string khal =
        "HOME=" + home.string() + " LC_ALL=C.UTF-8 khal -c " + (home / "config").string() + " new ";
    runProgram(khal
               + "2026-03-10 10:00 11:30 'Year-end review' :: 'Bring the slips' --location Boardroom "
                 "--alarms 30m --repeat weekly --until 2026-03-25");
    runProgram(khal + "2026-03-12 2026-03-14 Conference");
    for (const auto& file : std::filesystem::directory_iterator(home / "calendar"))
        EXPECT_EQ(import(file.path().string())["skipped"], 0);
    EXPECT_EQ(calendar(), "2026-03-10 10:00-11:30 Year-end review\n"
                          "2026-03-12 00:00-23:59 Conference\n"
                          "2026-03-13 00:00-23:59 Conference\n"
                          "2026-03-14 00:00-23:59 Conference\n"
                          "2026-03-17 10:00-11:30 Year-end review\n"
                          "2026-03-24 10:00-11:30 Year-end review\n");
    EXPECT_EQ(rows("SELECT Count(AppointmentID) AS HowMany FROM Appointments WHERE Remind=True AND "
                   "ReminderPeriod='30 Min';"),
              "{\"HowMany\":3}\n");
}

} // namespace
} // namespace qncal::firmcal::test
