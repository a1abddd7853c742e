#include "apps/firmcal-desktop/DesktopTest.h"

#include "items/clsCalendarItem.h"
#include "qt/widgets/RichTextEdit.h"

#include <QComboBox>
#include <QLabel>

namespace qncal::test {
namespace {

struct ItemCommandsTest : DesktopTest {
    ItemCommandsTest()
    {
        item.calendarItemType(enumLocalCalendarAppointmentItem);
        item.addNewItem();
        item.Subject("Year end");
        item.userIDNum(1);
        item.DateFrom(Date::of(2026, 4, 4));
        item.TimeFrom(Date::timeOf(6, 0));
        item.TimeTo(Date::timeOf(7, 30));
        item.Remind(true);
        EXPECT_TRUE(item.saveCalendarItem());
        window.reload();
        window.currentItem(item.itemID());
        EXPECT_EQ(window.currentItem(), item.itemID());
    }
    std::string stored(std::string_view column) { return ofAppointment(item.itemID(), column); }
    std::string times()
    {
        clsCalendarItem now;
        now.calendarItemType(enumLocalCalendarAppointmentItem);
        now.itemID(item.itemID());
        if (!now.loadCalendarItem())
            return "deleted";
        const CivilTime from = now.TimeFrom().civilTime();
        const CivilTime to = now.TimeTo().civilTime();
        return QString::asprintf("%d:%02d-%d:%02d", from.hour, from.minute, to.hour, to.minute).toStdString();
    }

    clsCalendarItem item;
};

TEST_F(ItemCommandsTest, DeletingAsksFirst)
{
    whenAsked([&](QMessageBox& box) {
        EXPECT_TRUE(box.text().contains("Year end?")) << box.text().toStdString();
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    press(Qt::Key_Delete);
    EXPECT_EQ(times(), "6:00-7:30");

    whenAsked([&](QMessageBox& box) {
        picture(box, "desktop-delete");
        pressWithAlt(box, Qt::Key_Y);
    });
    press(Qt::Key_Delete);
    EXPECT_EQ(times(), "deleted");
    EXPECT_EQ(value("SELECT Reminders.* FROM Reminders WHERE AppointmentIDNum=" + std::to_string(item.itemID()) + ";",
                    "ReminderID"),
              "no row");
    EXPECT_NE(window.currentItem(), item.itemID());
}

TEST_F(ItemCommandsTest, TheStartIsMovedAndTheLengthStays)
{
    whenShown("frmSelectStartTime", [&](host::FormWindow& dialog) {
        auto& quarter = widget<QComboBox>(dialog, "cboField");
        quarter.setFocus();
        quarter.lineEdit()->selectAll();
        QTest::keyClicks(&quarter, "2:45 PM");
        QTest::keyClick(&quarter, Qt::Key_Return);
    });
    chooseFromMenu(Qt::Key_I, {Qt::Key_S});
    EXPECT_EQ(times(), "14:45-16:15");
    EXPECT_EQ(window.currentItem(), item.itemID()) << "the cursor stays on it";
}

TEST_F(ItemCommandsTest, AnEndBeforeTheStartIsRefused)
{
    whenShown("frmSelectStartTime", [&](host::FormWindow& dialog) {
        auto& quarter = widget<QComboBox>(dialog, "cboField");
        quarter.setFocus();
        quarter.lineEdit()->selectAll();
        QTest::keyClicks(&quarter, "5:00 AM");
        whenAsked([](QMessageBox& box) {
            EXPECT_EQ(box.text(), "an item cannot end before it begins at 06:00");
            box.accept();
        });
        QTest::keyClick(&quarter, Qt::Key_Return);
    });
    chooseFromMenu(Qt::Key_I, {Qt::Key_E});
    EXPECT_EQ(times(), "6:00-7:30");
}

TEST_F(ItemCommandsTest, TheBestTimeIsProposed)
{
    whenAsked([&](QMessageBox& box) {
        EXPECT_EQ(box.text().toStdString(), "The best time for \"Year end\" on Sat, Apr 4, 2026 is 09:00 to 10:30 "
                                            "(now 06:00 to 07:30).\nMove it there?");
        QTest::keyClick(box.focusWidget(), Qt::Key_Return);
    });
    chooseFromMenu(Qt::Key_I, {Qt::Key_B});
    EXPECT_EQ(times(), "6:00-7:30");
    whenAsked([&](QMessageBox& box) {
        QTest::keyClick(box.focusWidget(), Qt::Key_Tab);
        QTest::keyClick(box.focusWidget(), Qt::Key_Space);
    });
    chooseFromMenu(Qt::Key_I, {Qt::Key_B});
    EXPECT_EQ(times(), "9:00-10:30");
}

TEST_F(ItemCommandsTest, EnterShowsTheTextOfTheItem)
{
    whenShown("frmTestComment", [&](host::FormWindow& dialog) {
        EXPECT_TRUE(widget<host::RichTextEdit>(dialog, "rtbClientNotes").toPlainText().contains("Year end"));
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    agenda().setFocus();
    QTest::keyClick(&agenda(), Qt::Key_Return);
}

TEST_F(ItemCommandsTest, SavingSchedulesTheReminderThatThenComesUp)
{
    present = Date::of(2026, 4, 4, 5, 46);
    auto& reminders = window.reminders();
    reminders.tick();
    EXPECT_TRUE(reminders.window().isVisible());
    ASSERT_EQ(widget<QLabel>(window, "reminderFailure").text(), "");
    EXPECT_GE(reminders.window().reminderCount(), 1);
    item.deleteCalendarItem();
    const int before = reminders.window().reminderCount();
    reminders.tick();
    EXPECT_EQ(reminders.window().reminderCount(), before - 1);
}

TEST_F(ItemCommandsTest, AClosedDatabaseIsTriedAgainAtTheNextTick)
{
    database->close();
    window.reminders().tick();
    EXPECT_FALSE(window.reminders().window().isVisible());
}

} // namespace
} // namespace qncal::test
