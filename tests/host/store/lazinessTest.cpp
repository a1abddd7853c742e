#include "host/store/SqliteDatabaseTest.h"

#include <memory>
#include <string>

namespace qncal::host {
namespace {

// Nothing is read before it is asked for, proven by what the store counts.

class LazinessTest : public SqliteDatabaseTest {
protected:
    LazinessTest()
    {
        for (int i = 0; i < 1000; ++i)
            addAppointment(*store_, "Row");
    }
    std::uint64_t read() const { return store_->statistics().recordsRead + store_->statistics().keysRead; }

    std::unique_ptr<SqliteDatabase> store_ = SqliteDatabase::openInMemory();
};

TEST_F(LazinessTest, OpeningForAddingReadsNothing)
{
    const auto before = read();
    addAppointment(*store_, "New");
    EXPECT_EQ(read(), before);
}

TEST_F(LazinessTest, AskingForRecordsReadsOne)
{
    const auto before = read();
    const auto handle = openUpdatable(*store_, allAppointments);
    EXPECT_TRUE(store_->hasRecords(handle));
    EXPECT_FALSE(store_->isEOF(handle));
    EXPECT_EQ(store_->getField(handle, "Subject"), Variant("Row"));
    EXPECT_EQ(read(), before + 1);
}

TEST_F(LazinessTest, CountingReadsNone)
{
    const auto before = read();
    EXPECT_EQ(appointmentCount(*store_), 1000);
    EXPECT_EQ(read(), before);
}

TEST_F(LazinessTest, WalkingReadsABlockOfKeysAtATime)
{
    const auto handle = openUpdatable(*store_, allAppointments);
    const auto before = store_->statistics().keysRead;
    store_->moveNext(handle);
    EXPECT_LE(store_->statistics().keysRead - before, 256U);
    EXPECT_GT(store_->statistics().keysRead - before, 1U);
}

TEST_F(LazinessTest, ASavedRecordIsOneUpdateOfWhatChanged)
{
    const auto handle = openUpdatable(*store_, "SELECT Appointments.* FROM Appointments WHERE AppointmentID=5;");
    const auto before = store_->statistics().updates;
    store_->setFieldValue(handle, "Subject", "Row", false, false, false);
    store_->flush();
    EXPECT_EQ(store_->statistics().updates, before) << "an equal value is no change";
    store_->setFieldValue(handle, "Subject", "Changed", false, false, false);
    store_->setFieldValue(handle, "TitleText", "Too", false, false, false);
    EXPECT_EQ(store_->statistics().updates, before);
    store_->closeRecordset(handle);
    EXPECT_EQ(store_->statistics().updates, before + 1);
}

TEST_F(LazinessTest, AStatementOfAKnownShapeIsNotParsedAgain)
{
    const auto open = [&](int id) {
        store_->closeRecordset(openUpdatable(
            *store_, "SELECT Appointments.* FROM Appointments WHERE AppointmentID=" + std::to_string(id) + ";"));
    };
    open(1);
    const auto before = store_->statistics().plans;
    for (int id = 2; id < 50; ++id)
        open(id);
    EXPECT_EQ(store_->statistics().plans, before);
}

} // namespace
} // namespace qncal::host
