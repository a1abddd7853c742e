#include "common/statusFields.h"

#include "support/ComponentTest.h"

namespace qncal::firmcal {
namespace {

class StatusFieldsTest : public test::ComponentTest {};

TEST_F(StatusFieldsTest, AreEmptyWithoutTheirRow)
{
    for (const StatusField& status : statusFields(*database, enumLocalCalendarTaskItem)) {
        EXPECT_EQ(status.name, "");
        EXPECT_FALSE(status.colour);
        EXPECT_FALSE(status.icon);
    }
}

TEST_F(StatusFieldsTest, AreOfTheKindAndShowWhatIsSwitchedOn)
{
    addRow("CustomFields", {{"TaskStatusName2", "Filed"},
                            {"TaskUseStatusColour2", "True"},
                            {"TaskStatusColour2", "255"},
                            {"TaskUseStatusIcon2", "False"},
                            {"TaskStatusIcon2", "7"},
                            {"ApptStatusName2", "Cancelled"}});
    const StatusField task = statusFields(*database, enumLocalCalendarTaskItem)[1];
    EXPECT_EQ(task.name, "Filed");
    EXPECT_EQ(task.colour, 255);
    EXPECT_FALSE(task.icon);
    EXPECT_EQ(statusFields(*database, enumLocalCalendarAppointmentItem)[1].name, "Cancelled");
}

TEST_F(StatusFieldsTest, WhatIsNoIconIsNotShown)
{
    addRow("CustomFields", {{"TaskUseStatusIcon1", "True"},
                            {"TaskStatusIcon1", "99"},
                            {"TaskUseStatusIcon2", "True"},
                            {"TaskStatusIcon2", "0"},
                            {"TaskUseStatusIcon3", "True"},
                            {"TaskStatusIcon3", "42"}});
    const StatusFields tasks = statusFields(*database, enumLocalCalendarTaskItem);
    EXPECT_FALSE(tasks[0].icon);
    EXPECT_FALSE(tasks[1].icon);
    EXPECT_EQ(tasks[2].icon, 42);
}

} // namespace
} // namespace qncal::firmcal
