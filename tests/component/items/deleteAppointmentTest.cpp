#include "core/forwarding/ForwardingDatabaseService.h"
#include "items/modDatabaseFunctions.h"
#include "support/ComponentTest.h"
#include "support/RecordingDatabase.h"

namespace qncal {
namespace {

class deleteAppointmentTest : public test::ComponentTest {
protected:
    deleteAppointmentTest() { serviceRegistry().database = recording; }

    std::shared_ptr<test::RecordingDatabase> recording = std::make_shared<test::RecordingDatabase>(database);
};

TEST_F(deleteAppointmentTest, DeletesAnAppointmentAndKeepsWhatIsDone)
{
    const std::int32_t id = addRow("Appointments", {});
    const std::string number = std::to_string(id);
    const auto done = addRow("Reminders", {{"AppointmentIDNum", number}, {"Completed", "True"}});
    addRow("Reminders", {{"AppointmentIDNum", number}});
    const auto sent = addRow("ClientNotification", {{"AppointmentNum", number}, {"NotificationSent", "True"}});
    addRow("ClientNotification", {{"AppointmentNum", number}});
    EXPECT_TRUE(modDatabaseFunctions::deleteAppointment(id, true));
    EXPECT_EQ(rowCount("Appointments"), 0);
    EXPECT_EQ(rowCount("Reminders"), 1);
    EXPECT_EQ(cell("Reminders", done, "Completed"), "True");
    EXPECT_EQ(rowCount("ClientNotification"), 1);
    EXPECT_EQ(cell("ClientNotification", sent, "NotificationSent"), "True");
    EXPECT_TRUE(recording->open.empty());
    EXPECT_EQ(errors->labels(),
              (std::vector<std::string>{"Vestrel.exe-modDatabaseFunctions-deleteAppointment",
                                        "Vestrel.exe-modDatabaseFunctions-deleteAppointmentClientNotifications"}));
}

TEST_F(deleteAppointmentTest, DeletesAnAppointmentWithEverything)
{
    const std::int32_t id = addRow("Appointments", {});
    addRow("Reminders", {{"AppointmentIDNum", std::to_string(id)}, {"Completed", "True"}});
    addRow("ClientNotification", {{"AppointmentNum", std::to_string(id)}, {"NotificationSent", "True"}});
    EXPECT_TRUE(modDatabaseFunctions::deleteAppointment(id, false));
    EXPECT_EQ(rowCount("Reminders") + rowCount("ClientNotification") + rowCount("Appointments"), 0);
}

TEST_F(deleteAppointmentTest, AnAppointmentIsDeletedAfterItsRemindersAndNotifications)
{
    const std::string number = std::to_string(addRow("Appointments", {}));
    EXPECT_TRUE(modDatabaseFunctions::deleteAppointment(1, false));
    EXPECT_EQ(
        recording->opened,
        (std::vector<std::pair<std::string, std::int32_t>>{
            {"SELECT Appointments.AppointmentID FROM Appointments WHERE Appointments.AppointmentID=" + number + ";", 3},
            {"SELECT Reminders.AppointmentIDNum, Reminders.Completed FROM Reminders WHERE AppointmentIDNum = " + number
                 + ";",
             3},
            {"SELECT ClientNotification.AppointmentNum, ClientNotification.NotificationSent "
             "FROM ClientNotification WHERE AppointmentNum = "
                 + number + ";",
             3}}));
    EXPECT_EQ(recording->operations,
              (std::vector<std::string>{"isConnected", "openRecordset", "hasRecords",                   //
                                        "openRecordset", "hasRecords", "closeRecordset",                // reminders
                                        "getPosition",                                                  //
                                        "isConnected", "openRecordset", "hasRecords", "closeRecordset", // notifications
                                        "setPosition", "deleteRecord", "closeRecordset"}));
}

TEST_F(deleteAppointmentTest, TheAppointmentsRecordIsMadeCurrentAgainAndItsDeletionIsTheResult)
{
    class RefusedDeletion : public ForwardingDatabaseService {
    public:
        using ForwardingDatabaseService::ForwardingDatabaseService;
        std::vector<std::pair<std::int32_t, std::int32_t>> positions; // a handle and a position
        std::int32_t getPosition(std::int32_t handle) override
        {
            positions.emplace_back(handle, 71);
            return 71;
        }
        bool setPosition(std::int32_t handle, std::int32_t position) override
        {
            positions.emplace_back(handle, position);
            return true;
        }
        bool deleteRecord(std::int32_t) override { return false; }
    };
    const std::int32_t id = addRow("Appointments", {});
    const auto refusing = std::make_shared<RefusedDeletion>(recording);
    serviceRegistry().database = refusing;
    EXPECT_FALSE(modDatabaseFunctions::deleteAppointment(id, false));
    ASSERT_EQ(refusing->positions.size(), 2u);
    EXPECT_EQ(refusing->positions[1], refusing->positions[0]);
    EXPECT_EQ(rowCount("Appointments"), 1);
    EXPECT_TRUE(recording->open.empty());
}

TEST_F(deleteAppointmentTest, NoAppointmentNoDeletion)
{
    addRow("Reminders", {{"AppointmentIDNum", "9"}});
    EXPECT_FALSE(modDatabaseFunctions::deleteAppointment(9, false));
    EXPECT_EQ(rowCount("Reminders"), 1);
    recording->connected = false;
    EXPECT_FALSE(modDatabaseFunctions::deleteAppointment(addRow("Appointments", {}), false));
    modDatabaseFunctions::deleteAppointmentClientNotifications(1, false);
    EXPECT_EQ(rowCount("Appointments"), 1);
}

} // namespace
} // namespace qncal
