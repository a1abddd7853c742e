#include "controls/DialogHost.h"
#include "controls/Form.h"
#include "headless/HeadlessDialogHost.h"
#include "host/store/OtherProgram.h"
#include "services/HostEnvironment.h"
#include "services/NotificationLedger.h"
#include "services/Rows.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

/// Writes that the store puts off, seen from the host around it.

namespace qncal::host {
namespace {

class TurnActionTest : public testing::Test {
protected:
    TurnActionTest() { setDialogHost(dialogs_); }
    ~TurnActionTest() override { setDialogHost(nullptr); }

    TemporaryFolder folder_;
    std::string path_ = folder_.file("store.db");
    std::shared_ptr<SqliteDatabase> database_ = SqliteDatabase::create(path_, {.busyTimeout = 1});
    HostEnvironment host_{HostServices{.database = database_}};
    std::shared_ptr<HeadlessDialogHost> dialogs_ = std::make_shared<HeadlessDialogHost>();
    OtherProgram other_{path_};
};

TEST_F(TurnActionTest, NothingIsLeftStandingWhileADialogIsOpen)
{
    addRow(*database_, "Appointments", {{"Subject", "Before"}});
    Rows rows = Rows::change(*database_, "SELECT Appointments.* FROM Appointments;");
    dialogs_->onTurn(host_.turnAction());
    const auto stored = [&] { return other_.value("SELECT Subject FROM Appointments"); };

    rows.set("Subject", "At the dialog");
    EXPECT_EQ(stored(), "Before");
    Form form("frmAny");
    dialogs_->whenShown("frmAny", [&](Hand&) { EXPECT_EQ(stored(), "At the dialog"); });
    form.showModal();
    rows.set("Subject", "At the events");
    dialogs_->doEvents();
    EXPECT_EQ(stored(), "At the events");
}

TEST_F(TurnActionTest, OutlivesTheDatabase)
{
    const auto action = host_.turnAction();
    database_->close();
    EXPECT_NO_THROW(action());
    const auto orphan = HostEnvironment(HostServices{.database = SqliteDatabase::openInMemory()}).turnAction();
    EXPECT_NO_THROW(orphan());
}

TEST_F(TurnActionTest, ARowThatCannotBeWrittenIsToldByItsClose)
{
    const std::int32_t id = addRow(*database_, "Appointments", {{"Subject", "Before"}});
    database_->close();
    const auto size = static_cast<std::int64_t>(std::filesystem::file_size(path_));
    const auto small = SqliteDatabase::open(path_, {.largestFile = size + 4096 * 4});
    Rows rows =
        Rows::change(*small, "SELECT Appointments.* FROM Appointments WHERE AppointmentID=" + std::to_string(id) + ";");
    rows.set("Subject", std::string(100000, 'x'));
    EXPECT_THROW(rows.close(), RunTimeError);
    EXPECT_EQ(other_.value("SELECT Subject FROM Appointments"), "Before");
}

TEST_F(TurnActionTest, ANotificationThatCannotBeWrittenIsAnError)
{
    NotificationLedger notifications(database_);
    const auto id = notifications.createEmailNotification(0, 12, Date::of(2026, 3, 2), -1, -1, -1);
    other_.lock();
    EXPECT_THROW(notifications.setEmailNotificationDate(0, 0, id, Date::of(2026, 3, 3), -1), RunTimeError);
    EXPECT_THROW(notifications.deleteNotification(id), RunTimeError);
    other_.unlock();
    notifications.setEmailNotificationDate(0, 0, id, Date::of(2026, 3, 3), -1);
    EXPECT_EQ(other_.value("SELECT NotificationDate FROM ClientNotification"), "2026-03-03");
}

} // namespace
} // namespace qncal::host
