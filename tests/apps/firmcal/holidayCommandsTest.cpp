#include "apps/firmcal/CommandLine.h"

#include "support/rowName.h"

#include <nlohmann/json.hpp>

namespace qncal::firmcal::test {
namespace {

using Json = nlohmann::ordered_json;

class HolidayCommandsTest : public EmptyDatabaseTest {};

TEST_F(HolidayCommandsTest, GeneratesTheHolidaysOfTheFirmsRegion)
{
    const std::string generated = output({"holidays", "generate"});
    expectGolden("holidays-ontario-2026.txt", generated);
    EXPECT_EQ(output({"holidays", "list"}), generated);
    EXPECT_EQ(output({"holidays", "generate"}), "Nothing to add; the holidays are there already.\n");
    EXPECT_EQ(output({"holidays", "list"}), generated);
}

TEST_F(HolidayCommandsTest, GeneratesSeveralYearsOfAnotherRegion)
{
    const Json generated =
        Json::parse(output({"holidays", "generate", "--year", "2030", "--years", "2", "--country", "US", "--json"}));
    const auto holds = [&](const char* date, const char* name) {
        return std::ranges::find(generated, Json({{"date", date}, {"name", name}, {"type", "national"}}))
               != generated.end();
    };
    EXPECT_TRUE(holds("2030-07-04", "Independence Day"));
    EXPECT_TRUE(holds("2031-11-27", "Thanksgiving Day"));
    EXPECT_EQ(Json::parse(output({"holidays", "list", "--year", "2030", "--json"})).size()
                  + Json::parse(output({"holidays", "list", "--year", "2031", "--json"})).size(),
              generated.size());
    EXPECT_EQ(output({"holidays", "list"}), "No holidays in 2026; 'firmcal holidays generate' adds those by law.\n");
    EXPECT_EQ(output({"holidays", "list", "--json"}), "[]\n");
}

TEST_F(HolidayCommandsTest, GenerationKeepsWhatIsThere)
{
    succeed({"holidays", "add", "2026-12-25", "christmas day", "--type", "working"});
    succeed({"holidays", "generate"});
    EXPECT_EQ(rows("SELECT HolidayName, HolidayType FROM Holidays WHERE HolidayDate=#2026-12-25#"),
              "{\"HolidayName\":\"christmas day\",\"HolidayType\":2}\n");
}

TEST_F(HolidayCommandsTest, AddsAndRemovesOneByItsDayAndName)
{
    EXPECT_EQ(output({"holidays", "add", "2026-12-24", "Christmas Eve"}), "Added Thu, Dec 24, 2026: Christmas Eve\n");
    succeed({"holidays", "add", "2026-12-24", "Founder's day", "--type", "regional"});
    EXPECT_EQ(output({"holidays", "list"}), "Date               Name           Type\n"
                                            "-----------------  -------------  --------\n"
                                            "Thu, Dec 24, 2026  Christmas Eve  national\n"
                                            "Thu, Dec 24, 2026  Founder's day  regional\n");
    const Outcome again = run({"holidays", "add", "2026-12-24", "christmas eve"});
    EXPECT_EQ(again.status, 1);
    EXPECT_EQ(again.err, "firmcal: Thu, Dec 24, 2026: Christmas Eve is there already\n");
    EXPECT_EQ(output({"holidays", "remove", "2026-12-24", "CHRISTMAS EVE"}),
              "Removed Thu, Dec 24, 2026: Christmas Eve\n");
    EXPECT_EQ(run({"holidays", "remove", "2026-12-24", "Christmas Eve"}).err,
              "firmcal: no holiday 'Christmas Eve' on Thu, Dec 24, 2026\n");
    EXPECT_EQ(Json::parse(output({"holidays", "remove", "2026-12-24", "--json"})),
              Json::array({{{"date", "2026-12-24"}, {"name", "Founder's day"}, {"type", "regional"}}}));
    EXPECT_EQ(run({"holidays", "remove", "2026-12-24"}).err, "firmcal: no holiday on Thu, Dec 24, 2026\n");
}

TEST_F(HolidayCommandsTest, TheAgendaNamesTheHoliday)
{
    EXPECT_EQ(Json::parse(output({"holidays", "add", "today", "Founder's day", "--json"})),
              Json({{"date", "2026-03-02"}, {"name", "Founder's day"}, {"type", "national"}}));
    EXPECT_EQ(output({"agenda"}), "Monday, March 2, 2026  [Founder's day]\n  nothing\n");
}

struct BusinessDays {
    const char* name;
    const char* days;
    const char* from;
    const char* expected;
};

void PrintTo(const BusinessDays& days, std::ostream* out) { *out << days.name; }

class BusinessDaysTest : public HolidayCommandsTest, public testing::WithParamInterface<BusinessDays> {};

TEST_P(BusinessDaysTest, PassesOverWeekendsAndHolidays)
{
    succeed({"holidays", "add", "2026-04-03", "Good Friday"});
    succeed({"holidays", "add", "2026-03-10", "Working day", "--type", "working"});
    EXPECT_EQ(output({"day", "add", GetParam().days, "--from", GetParam().from}),
              std::string(GetParam().expected) + "\n");
}

INSTANTIATE_TEST_SUITE_P(All, BusinessDaysTest,
                         testing::Values(BusinessDays{"Tomorrow", "1", "today", "Tue, Mar 3, 2026"},
                                         BusinessDays{"OverAWeekend", "1", "2026-03-06", "Mon, Mar 9, 2026"},
                                         BusinessDays{"BackOverAWeekend", "-1", "2026-03-09", "Fri, Mar 6, 2026"},
                                         BusinessDays{"NoneFromAWorkingDay", "0", "2026-03-06", "Fri, Mar 6, 2026"},
                                         BusinessDays{"NoneFromASunday", "0", "2026-03-08", "Mon, Mar 9, 2026"},
                                         BusinessDays{"OverAHoliday", "1", "2026-04-02", "Mon, Apr 6, 2026"},
                                         BusinessDays{"BackOverAHoliday", "-1", "2026-04-06", "Thu, Apr 2, 2026"},
                                         BusinessDays{"ADayThatIsNoDayOff", "1", "2026-03-09", "Tue, Mar 10, 2026"},
                                         BusinessDays{"ManyDays", "250", "2026-03-02", "Tue, Feb 16, 2027"}),
                         qncal::test::rowName);

TEST_F(HolidayCommandsTest, BusinessDaysAsJsonFromToday)
{
    EXPECT_EQ(Json::parse(output({"day", "add", "10", "--json"})),
              Json({{"from", "2026-03-02"}, {"days", 10}, {"date", "2026-03-16"}}));
}

} // namespace
} // namespace qncal::firmcal::test
