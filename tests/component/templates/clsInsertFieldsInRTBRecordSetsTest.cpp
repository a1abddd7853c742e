#include "component/templates/MergeDataTest.h"

#include <map>

// The life of the record sets: which are opened, when, how, and in what order they are closed.

namespace qncal::test {

TEST_F(MergeDataTest, InitialisationOpensTheRecordOfEveryIDInOrder)
{
    engine.contactID(7);
    engine.companyID(7);
    engine.TaskID(7);
    engine.docketId(7);
    engine.appointmentID(7);
    engine.userID(7);
    engine.firmID(7);
    engine.initializeDataRecordsetsForSingleDocMerge();
    const auto sql = recorded->openedSql();
    ASSERT_EQ(sql.size(), 10u);
    EXPECT_NE(sql[0].find("WHERE ClientData.CompanyIDNum=7;"), std::string::npos);
    EXPECT_EQ(sql[1], "SELECT Companies.*, Companies.Custom1 AS CompanyCustom1, Companies.Custom2 AS CompanyCustom2, "
                      "Companies.Custom3 AS CompanyCustom3, Companies.Custom4 AS CompanyCustom4, Companies.Custom5 AS "
                      "CompanyCustom5 From Companies WHERE Companies.CompanyID=7;");
    EXPECT_EQ(sql[2], "SELECT SoftwareInfo.* From SoftwareInfo WHERE SoftwareInfo.DefaultSoftware=True AND "
                      "SoftwareInfo.CompanyIDNum=7;");
    EXPECT_TRUE(sql[3].starts_with("SELECT Contacts.*, Contacts.Custom1 AS ContactCustom1, "));
    EXPECT_TRUE(sql[3].ends_with(" From Contacts WHERE Contacts.ContactID=7;"));
    EXPECT_TRUE(sql[4].ends_with(" From AccountantFirmInfo WHERE CompanyID=7;"));
    EXPECT_EQ(sql[5], "SELECT AccountantEmployeeInfo.* From AccountantEmployeeInfo WHERE ContactID=7;");
    EXPECT_TRUE(sql[6].ends_with(" WHERE Appointments.AppointmentID=7;"));
    EXPECT_TRUE(sql[7].ends_with(" WHERE Dockets.DocketID=7;"));
    EXPECT_TRUE(sql[8].starts_with("SELECT Schedule.*, Tasks.*, Schedule.Custom1 AS ScheduleCustom1, "));
    EXPECT_TRUE(sql[8].ends_with("Schedule.ScheduleID = Tasks.ScheduleIDNum WHERE Tasks.TaskID=7;"));
    EXPECT_TRUE(sql[9].starts_with("SELECT Tasks.*, Tasks.Custom1 AS TaskCustom1, "));
}

TEST_F(MergeDataTest, SoftwareIsOpenedByContactWhereThereIsNoCompany)
{
    engine.contactID(7);
    engine.initializeDataRecordsetsForSingleDocMerge();
    ASSERT_EQ(recorded->opened.size(), 2u);
    EXPECT_EQ(recorded->openedSql()[1],
              "SELECT SoftwareInfo.* From SoftwareInfo WHERE SoftwareInfo.DefaultSoftware=True "
              "AND SoftwareInfo.ContactIDNum=7;");
}

TEST_F(MergeDataTest, InitialisationWithoutAConnectionOnlyCloses)
{
    addContact({});
    engine.initializeDataRecordsetsForSingleDocMerge();
    EXPECT_FALSE(recorded->open.empty());
    recorded->connected = false;
    engine.initializeDataRecordsetsForSingleDocMerge();
    EXPECT_TRUE(recorded->open.empty());
}

TEST_F(MergeDataTest, EndClosesTheRecordSets)
{
    addCompany({});
    engine.initializeDataRecordsetsForSingleDocMerge();
    engine.Terminate();
    EXPECT_TRUE(recorded->open.empty());
}

TEST_F(MergeDataTest, RecordSetOfAnEarlierIDFindsNothing)
{
    addCompany({{"CompanyName", "Maple Leaf"}});
    build(1);
    EXPECT_EQ(field("Company Name"), "Maple Leaf");
    addCompany({{"CompanyName", "Oak"}});
    EXPECT_EQ(field("Company Name"), "");
    engine.initializeDataRecordsetsForSingleDocMerge();
    EXPECT_EQ(field("Company Name"), "Oak");
}

TEST_F(MergeDataTest, RecordIsOpenedOnceForAllItsFields)
{
    addCompany({{"CompanyName", "Maple Leaf"}, {"City", "Guelph"}});
    build(1);
    recorded->opened.clear();
    field("Company Name");
    field("City");
    EXPECT_EQ(recorded->opened.size(), 2u) << "the company, and its software beside it";
}

TEST_F(MergeDataTest, BatchReadsTheWholeTableAndFindsEachRow)
{
    const std::int32_t first = addCompany({{"CompanyName", "Maple Leaf"}});
    const std::int32_t second = addCompany({{"CompanyName", "Oak"}});
    build(1, 2);
    engine.companyID(first);
    EXPECT_EQ(field("Company Name"), "Maple Leaf");
    engine.companyID(second);
    EXPECT_EQ(field("Company Name"), "Oak");
    EXPECT_EQ(field("Business Number"), "123 RC");
}

TEST_F(MergeDataTest, OnlyAMergeThatWritesBackOpensForWriting)
{
    addContact({});
    build(2, 5);
    recorded->opened.clear();
    engine.initializeDataRecordsetsForSingleDocMerge();
    EXPECT_EQ(recorded->opened[0].second, DatabaseService::updatable);
    engine.MergeFieldListUse(1);
    engine.initializeDataRecordsetsForSingleDocMerge();
    EXPECT_EQ(recorded->opened.back().second, DatabaseService::readOnly);
}

TEST_F(MergeDataTest, ScheduleIDChoosesItsTask)
{
    const std::int32_t task = addRow("Tasks", {{"ScheduleIDNum", "12"}});
    engine.scheduleID(12);
    EXPECT_EQ(engine.TaskID(), task);
    engine.scheduleID(13);
    EXPECT_EQ(engine.TaskID(), -1);
}

namespace {

/// Writes down the SQL text of each record set as it is closed.
class ClosingOrder : public RecordingDatabase {
public:
    using RecordingDatabase::RecordingDatabase;
    std::vector<std::string> closed;

    std::int32_t openRecordset(std::string_view sql, std::int32_t cursor, std::int32_t lock, bool showError,
                               std::string_view errorText, bool keep) override
    {
        const auto handle = RecordingDatabase::openRecordset(sql, cursor, lock, showError, errorText, keep);
        sqlOf_[handle] = sql;
        return handle;
    }
    void closeRecordset(std::int32_t handle) override
    {
        RecordingDatabase::closeRecordset(handle);
        closed.push_back(sqlOf_[handle]);
    }

private:
    std::map<std::int32_t, std::string> sqlOf_;
};

class CountingDialogHost : public host::HeadlessDialogHost {
public:
    int turns = 0;
    void doEvents() override { ++turns; }
};

} // namespace

TEST_F(MergeDataTest, InitialisationClosesWhatIsOpenInAnOrderOfItsOwn)
{
    const auto log = std::make_shared<ClosingOrder>(recorded);
    serviceRegistry().database = log;
    addCompany({{"CompanyName", "Maple Leaf"}});
    addContact({});
    engine.firmID(7);
    engine.userID(7);
    engine.appointmentID(7);
    engine.docketId(7);
    engine.TaskID(addRow("Tasks", {{"ScheduleIDNum", std::to_string(addRow("Schedule", {}))}}));
    build(1);
    engine.initializeDataRecordsetsForSingleDocMerge();
    field("Company Notes");
    field("Contact Notes");
    log->closed.clear();
    engine.resetAllItemIDs();
    engine.initializeDataRecordsetsForSingleDocMerge();
    const std::vector<std::string> tables{"ClientData.CompanyIDNum=",
                                          "Companies.CompanyID=",
                                          "CompaniesNotes.CompanyNum=",
                                          "Contacts.ContactID=",
                                          "ContactsNotes.ContactNum=",
                                          "SoftwareInfo.CompanyIDNum=",
                                          "From AccountantFirmInfo",
                                          "From AccountantEmployeeInfo",
                                          "Appointments.AppointmentID=",
                                          "Tasks.TaskID=",
                                          "Dockets.DocketID="};
    ASSERT_EQ(log->closed.size(), tables.size());
    for (std::size_t i = 0; i < tables.size(); ++i)
        EXPECT_NE(log->closed[i].find(tables[i]), std::string::npos) << tables[i] << " in " << log->closed[i];
}

TEST_F(MergeDataTest, AContactThatIsOpenedForItsFieldBringsItsSoftware)
{
    addContact({{"FirstName", "Ann"}});
    build(2);
    recorded->opened.clear();
    EXPECT_EQ(field("Contact First Name"), "Ann");
    const auto sql = recorded->openedSql();
    ASSERT_EQ(sql.size(), 2u);
    EXPECT_NE(sql[0].find(" From Contacts WHERE"), std::string::npos);
    EXPECT_EQ(sql[1], "SELECT SoftwareInfo.* From SoftwareInfo WHERE SoftwareInfo.DefaultSoftware=True AND "
                      "SoftwareInfo.ContactIDNum="
                          + std::to_string(engine.contactID()) + ";");
}

TEST_F(MergeDataTest, OtherEventsRunEightTimesBeforeARecordIsLookedFor)
{
    const auto host = std::make_shared<CountingDialogHost>();
    setDialogHost(host);
    addCompany({{"CompanyName", "Maple Leaf"}});
    build(1);
    field("Company Name");
    EXPECT_EQ(host->turns, 8);
    field("City");
    EXPECT_EQ(host->turns, 16);
    field("Contact First Name");
    EXPECT_EQ(host->turns, 16) << "no contact, no record";
}

TEST_F(MergeDataTest, BatchOpensWholeTablesOfSoftwareNotesAndTasks)
{
    addCompany({});
    addContact({});
    const std::int32_t schedule = addRow("Schedule", {});
    engine.TaskID(addRow("Tasks", {{"ScheduleIDNum", std::to_string(schedule)}}));
    build(8, 2);
    recorded->opened.clear();
    field("Software Name");
    field("Contact Notes");
    field("Company Notes");
    field("Task Name");
    const auto sql = recorded->openedSql();
    ASSERT_EQ(sql.size(), 4u);
    EXPECT_EQ(sql[0], "SELECT SoftwareInfo.* From SoftwareInfo;");
    EXPECT_EQ(sql[1], "SELECT ContactsNotes.* From ContactsNotes;");
    EXPECT_EQ(sql[2], "SELECT CompaniesNotes.* From CompaniesNotes;");
    EXPECT_TRUE(sql[3].ends_with(" INNER JOIN Tasks ON Schedule.ScheduleID = Tasks.ScheduleIDNum;")) << sql[3];
}

} // namespace qncal::test
