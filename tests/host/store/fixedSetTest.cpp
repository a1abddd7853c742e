#include "host/store/StoreFactory.h"

#include <gtest/gtest.h>

#include <string>

/// A record set is fixed when it is opened, unless it is all records of one table in no order.

namespace qncal::host {
namespace {

const std::string all = "SELECT Appointments.* FROM Appointments;";
constexpr int records = 600; // more than two blocks of keys

class FixedSetTest : public StoreTest {
protected:
    void SetUp() override
    {
        StoreTest::SetUp();
        const auto handle = openUpdatable(all);
        for (int i = 0; i < records; ++i) {
            store().addNew(handle);
            store().setNewField(handle, "Subject", "old");
            store().setNewField(handle, "UserIDNum", std::to_string(i % 2));
            store().update(handle);
        }
        store().closeRecordset(handle);
        step();
    }
    int walk(std::int32_t handle)
    {
        int count = 0;
        for (; !store().isEOF(handle); store().moveNext(handle))
            ++count;
        return count;
    }
};

INSTANTIATE_TEST_SUITE_P(Stores, FixedSetTest, testing::ValuesIn(storeFactories()),
                         [](const auto& store) { return store.param.name; });

class FixedSetKinds : public FixedSetTest {
protected:
    static constexpr const char* sets[] = {
        "SELECT Appointments.* FROM Appointments WHERE Subject = 'old';",
        "SELECT Appointments.* FROM Appointments WHERE Subject = 'old' ORDER BY Appointments.Subject;",
        "SELECT Appointments.* FROM Appointments ORDER BY Appointments.UserIDNum;",
        "SELECT Appointments.Subject FROM Appointments INNER JOIN Appointments AS Others ON "
        "Appointments.AppointmentID = Others.AppointmentID;",
        "SELECT TOP 600 Appointments.* FROM Appointments;",
        "SELECT DISTINCT Appointments.AppointmentID FROM Appointments;",
    };
};

INSTANTIATE_TEST_SUITE_P(Stores, FixedSetKinds, testing::ValuesIn(storeFactories()),
                         [](const auto& store) { return store.param.name; });

TEST_P(FixedSetKinds, RecordsAddedLaterAreNotInIt)
{
    for (const char* const sql : sets) {
        const auto unread = openReadOnly(sql);
        const auto begun = openReadOnly(sql);
        store().moveNext(begun);
        const auto id = add("Appointments", "AppointmentID", {{"Subject", "old"}});
        EXPECT_EQ(store().getRecordCount(unread), records) << sql;
        EXPECT_EQ(walk(unread), records) << sql;
        EXPECT_EQ(walk(begun), records - 1) << sql;
        EXPECT_FALSE(find(begun, "AppointmentID", std::to_string(id))) << sql;
        store().closeRecordset(unread);
        store().closeRecordset(begun);
        const auto added =
            openUpdatable("SELECT Appointments.* FROM Appointments WHERE AppointmentID = " + std::to_string(id) + ";");
        store().deleteRecord(added);
        store().closeRecordset(added);
    }
}

TEST_P(FixedSetTest, RecordsThatNoLongerMeetTheConditionStayInIt)
{
    const auto handle = openUpdatable("SELECT Appointments.* FROM Appointments WHERE Subject = 'old';");
    int walked = 0;
    for (; !store().isEOF(handle); store().moveNext(handle), ++walked) {
        EXPECT_EQ(store().getPosition(handle), walked + 1);
        set(handle, "Subject", "new");
    }
    EXPECT_EQ(walked, records);
    EXPECT_EQ(store().getRecordCount(handle), records);
    EXPECT_TRUE(find(handle, "AppointmentID", "500"));
    EXPECT_EQ(store().getPosition(handle), 500);
}

TEST_P(FixedSetTest, ALoopThatDeletesEverySecondRecordMeetsAll)
{
    const auto handle = openUpdatable("SELECT Appointments.* FROM Appointments WHERE Subject = 'old';");
    for (int i = 0; !store().isEOF(handle); store().moveNext(handle), ++i)
        if (i % 2 == 0)
            store().deleteRecord(handle);
    EXPECT_EQ(store().getRecordCount(handle), records / 2);
    EXPECT_EQ(store().getPosition(handle), records / 2 + 1);
    EXPECT_TRUE(store().setPosition(handle, 150));
    EXPECT_EQ(store().getField(handle, "AppointmentID"), Variant(300));
    EXPECT_EQ(store().getPosition(handle), 150);
}

TEST_P(FixedSetTest, AllRecordsInNoOrderMayShowThoseAddedMeanwhile)
{
    const auto handle = openReadOnly(all);
    EXPECT_TRUE(store().hasRecords(handle));
    const auto id = add("Appointments", "AppointmentID", {{"Subject", "new"}});
    EXPECT_TRUE(find(handle, "AppointmentID", std::to_string(id)));
    EXPECT_EQ(store().getPosition(handle), records + 1);
}

} // namespace
} // namespace qncal::host
