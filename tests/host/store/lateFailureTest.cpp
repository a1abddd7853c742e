#include "host/store/OtherProgram.h"
#include "host/store/StoreFactory.h"

#include "store/storeError.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

/// A failure belongs to the statement that wrote, not to one that happens to come later.

namespace qncal::host {
namespace {

class LateFailureTest : public StoreInFileTest {
protected:
    LateFailureTest() { addAppointment("Before"); }
    std::string stored() { return other_.value("SELECT Subject FROM Appointments WHERE AppointmentID = 1"); }

    OtherProgram other_{path_};
};

TEST_F(LateFailureTest, ALockedDatabaseFailsTheWriteAndItsRetryWorks)
{
    const auto handle = open(allAppointments);
    EXPECT_EQ(get(handle, "Subject"), Variant("Before"));
    other_.lock();
    EXPECT_EQ(errorOf([&] { set(handle, "Subject", "After"); }), storeError::locked);
    EXPECT_EQ(get(handle, "Subject"), Variant("Before")) << "nothing is changed by a call that throws";
    other_.unlock();
    EXPECT_TRUE(set(handle, "Subject", "After"));
    store_->closeRecordset(handle);
    EXPECT_EQ(stored(), "After");
}

TEST_F(LateFailureTest, ARecordThatIsGoneFailsTheWrite)
{
    const auto handle = open(allAppointments);
    EXPECT_EQ(get(handle, "Subject"), Variant("Before"));
    other_.run("DELETE FROM Appointments");
    EXPECT_EQ(errorOf([&] { set(handle, "Subject", "After"); }), storeError::noCurrentRecord);
    EXPECT_EQ(errorOf([&] { store_->closeRecordset(handle); }), 0);
    EXPECT_EQ(other_.tryRun("DELETE FROM Tasks"), SQLITE_OK) << "no lock is left behind";
}

TEST_F(LateFailureTest, AValueThatEqualsAStaleCopyIsWrittenAllTheSame)
{
    const auto handle = open(allAppointments);
    EXPECT_EQ(get(handle, "Subject"), Variant("Before"));
    other_.run("UPDATE Appointments SET Subject = 'Theirs'");
    set(handle, "Subject", "Before");
    store_->closeRecordset(handle);
    EXPECT_EQ(stored(), "Before");
}

TEST_F(LateFailureTest, AWriteLeavesTheOtherFieldsThatOthersWrote)
{
    const auto handle = open(allAppointments);
    EXPECT_EQ(get(handle, "Subject"), Variant("Before"));
    other_.run("UPDATE Appointments SET TitleText = 'Theirs'");
    set(handle, "Subject", "Mine");
    EXPECT_EQ(get(handle, "TitleText"), Variant("Theirs"));
    EXPECT_EQ(stored(), "Mine");
}

TEST_F(LateFailureTest, TheLockIsHeldFromTheWriteToTheNextFlush)
{
    const auto handle = open(allAppointments);
    const auto isFree = [&] { return other_.tryRun("UPDATE Tasks SET Subject = 'x'") == SQLITE_OK; };
    auto write = [&, number = 0]() mutable { set(handle, "Subject", "After " + std::to_string(++number)); };
    write();
    EXPECT_FALSE(isFree());
    store_->flush();
    EXPECT_TRUE(isFree());
    write();
    store_->idle();
    EXPECT_TRUE(isFree());
    write();
    get(handle, "Subject");
    EXPECT_TRUE(isFree()) << "after a read";
    write();
    EXPECT_NE(errorOf([&] { set(handle, "DateFrom", "soon"); }), 0);
    EXPECT_TRUE(isFree()) << "after an error";
    set(handle, "Subject", get(handle, "Subject").toText());
    store_->flush();
    EXPECT_TRUE(isFree()) << "after a write that changed nothing";
    write();
    store_->closeRecordset(handle);
    EXPECT_TRUE(isFree()) << "after the close";
}

TEST_F(LateFailureTest, AFullDiskFailsTheFlushAndTheWriteGoesOnWaiting)
{
    store_->close();
    const auto size = static_cast<std::int64_t>(std::filesystem::file_size(path_));
    store_ = SqliteDatabase::open(path_, {.largestFile = size + 4096 * 4});
    const auto handle = open(allAppointments);
    set(handle, "Subject", std::string(100000, 'x'));
    EXPECT_EQ(errorOf([&] { store_->flush(); }), storeError::diskFull);
    EXPECT_EQ(other_.tryRun("UPDATE Tasks SET Subject = 'x'"), SQLITE_OK) << "no lock is held meanwhile";
    set(handle, "Subject", "Short");
    store_->closeRecordset(handle);
    EXPECT_EQ(stored(), "Short");
}

TEST_F(LateFailureTest, AFullDiskDoesNotKeepAHandleFromClosing)
{
    store_->close();
    const auto size = static_cast<std::int64_t>(std::filesystem::file_size(path_));
    store_ = SqliteDatabase::open(path_, {.largestFile = size + 4096 * 4});
    const auto handle = open(allAppointments);
    set(handle, "Subject", std::string(100000, 'x'));
    EXPECT_EQ(errorOf([&] { store_->closeRecordset(handle); }), storeError::diskFull);
    EXPECT_TRUE(store_->isRecordsetOpen(handle)) << "closing can be tried again";
    EXPECT_EQ(errorOf([&] { store_->closeRecordset(handle); }), storeError::diskFull);
    EXPECT_FALSE(store_->isRecordsetOpen(handle)) << "what cannot be written twice is given up with its handle";
    EXPECT_EQ(stored(), "Before");
}

} // namespace
} // namespace qncal::host
