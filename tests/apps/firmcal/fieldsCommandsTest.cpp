#include "apps/firmcal/CommandLine.h"

#include "store/SqliteConnection.h"

#include <nlohmann/json.hpp>

namespace qncal::firmcal::test {
namespace {

using FieldsCommandsTest = EmptyDatabaseTest;

TEST_F(FieldsCommandsTest, ShowsNamesColoursAndIcons)
{
    succeed({"fields", "set", "status2", "--name", "Cancelled", "--colour", "#00AA00", "--icon", "42"});
    succeed({"fields", "set", "custom1", "--name", "Room"});
    EXPECT_EQ(output({"fields", "show"}), "Field    Name       Colour   Icon\n"
                                          "-------  ---------  -------  ----\n"
                                          "status1\n"
                                          "status2  Cancelled  #00AA00  42\n"
                                          "status3\n"
                                          "status4\n"
                                          "status5\n"
                                          "custom1  Room\n"
                                          "custom2\n"
                                          "custom3\n"
                                          "custom4\n"
                                          "custom5\n");
    const auto json = nlohmann::ordered_json::parse(output({"fields", "show", "--json"}));
    EXPECT_EQ(json["kind"], "appointment");
    EXPECT_EQ(json["fields"][1]["icon"], 42);
    EXPECT_TRUE(json["fields"][0]["colour"].is_null());
    EXPECT_FALSE(json["fields"][5].contains("icon"));
}

TEST_F(FieldsCommandsTest, WhatIsNoColourAndNoIconIsBlank)
{
    for (const char* status : {"status1", "status2", "status3"})
        succeed({"fields", "set", status, "--colour", "#00AA00", "--icon", "7"});
    host::SqliteConnection(database(), host::SqliteConnection::Access::readWrite, 0)
        .execute("UPDATE CustomFields SET ApptStatusColour1='red', ApptStatusIcon1='x', ApptStatusIcon2=70000, "
                 "ApptUseStatusColour3='maybe', ApptStatusIcon3=43");
    const std::string shown = output({"fields", "show"});
    EXPECT_NE(shown.find("status1\n"
                         "status2        #00AA00\n"
                         "status3\n"),
              std::string::npos)
        << shown;
}

TEST_F(FieldsCommandsTest, KeepsTheKindsApartInOneRow)
{
    succeed({"fields", "set", "status1", "--kind", "task", "--name", "Done"});
    EXPECT_EQ(output({"fields", "set", "status1", "--kind", "docket", "--name", "Billed"}),
              "status1 of time entries changed\n");
    EXPECT_EQ(rows("SELECT ApptStatusName1, TaskStatusName1, DocketStatusName1 FROM CustomFields;"),
              "{\"ApptStatusName1\":null,\"TaskStatusName1\":\"Done\",\"DocketStatusName1\":\"Billed\"}\n");
}

TEST_F(FieldsCommandsTest, SwitchesColourAndIconOffAndKeepsThem)
{
    succeed({"fields", "set", "status1", "--colour", "#0000FF", "--icon", "7"});
    EXPECT_EQ(output({"fields", "set", "STATUS1", "--colour", "none", "--icon", "none"}),
              "status1 of appointments changed\n");
    EXPECT_EQ(rows("SELECT ApptUseStatusColour1, ApptStatusColour1, ApptUseStatusIcon1, ApptStatusIcon1 FROM "
                   "CustomFields;"),
              "{\"ApptUseStatusColour1\":false,\"ApptStatusColour1\":16711680,\"ApptUseStatusIcon1\":false,"
              "\"ApptStatusIcon1\":7}\n");
}

TEST_F(FieldsCommandsTest, SaysWhatIsWrong)
{
    EXPECT_EQ(run({"fields", "set", "status6", "--name", "x"}).status, 2);
    EXPECT_EQ(run({"fields", "set", "status1"}).status, 2);
    EXPECT_EQ(run({"fields", "set", "custom1", "--icon", "3"}).status, 2);
    EXPECT_EQ(run({"fields", "set", "status1", "--icon", "43"}).err, "firmcal: '43' is no icon (1 to 42, or none)\n");
    EXPECT_EQ(run({"fields", "set", "status1", "--name", "x", "--colour", "red"}).status, 1);
    EXPECT_EQ(rows("SELECT CustomFieldsID FROM CustomFields WHERE ApptStatusName1='x';"), "");
}

} // namespace
} // namespace qncal::firmcal::test
