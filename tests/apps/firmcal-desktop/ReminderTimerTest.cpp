#include "firmcal-desktop/ReminderTimer.h"

#include "firmcal-desktop/MainWindow.h"
#include "store/SqliteConnection.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QTemporaryDir>

namespace qncal::desktop {
namespace {

/// Over a file, which another program can spoil.
struct ReminderTimerTest : testing::Test {
    void execute(const char* sql)
    {
        host::SqliteConnection(file, host::SqliteConnection::Access::readWrite, 0).execute(sql);
    }
    QTemporaryDir folder;
    std::string file = folder.filePath("firm.db").toStdString();
    std::shared_ptr<host::SqliteDatabase> database = host::SqliteDatabase::create(file);
    DesktopHost host{database};
    MainWindow window{host};
    QLabel& failure = *window.findChild<QLabel*>("reminderFailure");
};

TEST_F(ReminderTimerTest, RemindersThatCannotBeReadAreToldUntilTheyCan)
{
    window.reminders().tick();
    EXPECT_TRUE(failure.isHidden());
    execute("ALTER TABLE Reminders RENAME TO Elsewhere");
    window.reminders().tick();
    EXPECT_FALSE(failure.isHidden());
    EXPECT_TRUE(failure.text().startsWith("The reminders could not be read: ")) << failure.text().toStdString();
    window.perform([] {});
    EXPECT_FALSE(failure.isHidden()) << "reading the agenda says nothing about the reminders";
    execute("ALTER TABLE Elsewhere RENAME TO Reminders");
    window.reminders().tick();
    EXPECT_TRUE(failure.isHidden());
    EXPECT_EQ(failure.text(), "");
}

} // namespace
} // namespace qncal::desktop
