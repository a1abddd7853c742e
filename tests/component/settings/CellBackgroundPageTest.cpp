#include "settings/CellBackgroundPage.h"

#include "support/ComponentTest.h"

#include <gtest/gtest.h>

namespace qncal {
namespace {

class CellBackgroundPageTest : public test::ComponentTest {
protected:
    CellBackgroundPageTest()
    {
        page.cpDayViewBackColour.forEach([](ColourPicker& picker, int day) { picker.colour(100 + day); });
    }
    Form form{"frmDayTimerSettings"};
    CellBackgroundPage page{form};
};

TEST_F(CellBackgroundPageTest, CheckingTakesTheDayViewsColoursIntoThatView)
{
    page.chkUseSameColours(0).value(1);
    EXPECT_EQ(page.cpWeekViewBackColour(0).colour(), 100);
    EXPECT_EQ(page.cpWeekViewBackColour(6).colour(), 106);
    EXPECT_EQ(page.cpMonthViewBackColour(6).colour(), 0);
    page.chkUseSameColours(1).value(1);
    EXPECT_EQ(page.cpMonthViewBackColour(3).colour(), 103);
    EXPECT_EQ(page.chkUseSameColours(1).caption(), "Use same colour scheme as day view.");
}

TEST_F(CellBackgroundPageTest, ClearingLeavesTheColours)
{
    page.chkUseSameColours(0).value(1);
    page.cpDayViewBackColour(0).colour(7);
    page.chkUseSameColours(0).value(0);
    EXPECT_EQ(page.cpWeekViewBackColour(0).colour(), 100);
}

TEST_F(CellBackgroundPageTest, WhileTheDialogFillsThePageNothingHappens)
{
    page.populating(true);
    page.chkUseSameColours(0).value(1);
    EXPECT_EQ(page.cpWeekViewBackColour(0).colour(), 0);
}

} // namespace
} // namespace qncal
