#include "host/store/OtherProgram.h"

#include "items/clsCalendarItem.h"
#include "services/HostEnvironment.h"
#include "store/storeError.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

/// The saving of an item in a store that fails. Whatever is reported as done is in the file.

namespace qncal::host {
namespace {

class ItemSaveTest : public StoreInFileTest {
protected:
    ItemSaveTest() { reopen({.busyTimeout = 1}); }

    void reopen(const SqliteDatabase::Options& options)
    {
        host_.reset();
        store_->close();
        database_ = SqliteDatabase::open(path_, options);
        host_ = std::make_unique<HostEnvironment>(HostServices{.database = database_});
    }
    std::int32_t savedItem()
    {
        clsCalendarItem item;
        item.calendarItemType(enumLocalCalendarAppointmentItem);
        item.Subject("Before");
        EXPECT_TRUE(item.saveCalendarItem());
        return item.itemID();
    }
    static void loadAndChange(clsCalendarItem& item, std::int32_t id, const std::string& subject)
    {
        item.calendarItemType(enumLocalCalendarAppointmentItem);
        item.itemID(id);
        ASSERT_TRUE(item.loadCalendarItem());
        item.Subject(subject);
    }
    std::int32_t borrow(std::int32_t id)
    {
        return database_->openRecordset(
            "SELECT Appointments.* FROM Appointments WHERE AppointmentID=" + std::to_string(id) + ";", 1, 3, true, {},
            true);
    }
    std::string stored() { return other_.value("SELECT Subject FROM Appointments"); }
    /// The number of the only error reported since the last call; 0 for none.
    std::int32_t reported()
    {
        const auto& reports = host_->errors().reports();
        EXPECT_LE(reports.size(), 1U);
        const std::int32_t number = reports.empty() ? 0 : reports.front().error.number;
        host_->errors().clear();
        return number;
    }

    std::shared_ptr<SqliteDatabase> database_;
    std::unique_ptr<HostEnvironment> host_;
    OtherProgram other_{path_};
};

TEST_F(ItemSaveTest, ALockedDatabaseFailsTheSaveThroughABorrowedHandle)
{
    const auto id = savedItem();
    clsCalendarItem item;
    loadAndChange(item, id, "After");
    const auto handle = borrow(id);
    other_.lock();
    EXPECT_FALSE(item.saveCalendarItem(handle));
    EXPECT_EQ(reported(), storeError::locked);
    EXPECT_EQ(errorOf([&] { database_->closeRecordset(handle); }), 0);
    other_.unlock();
    EXPECT_EQ(stored(), "Before");
}

TEST_F(ItemSaveTest, ARetryOfTheStatementSavesTheItem)
{
    const auto id = savedItem();
    clsCalendarItem item;
    loadAndChange(item, id, "After");
    const auto handle = borrow(id);
    other_.lock();
    host_->errors().setPolicy([&](const ErrorReport&) {
        other_.unlock();
        return ErrorAction::retry;
    });
    EXPECT_TRUE(item.saveCalendarItem(handle));
    EXPECT_EQ(reported(), storeError::locked);
    database_->closeRecordset(handle);
    EXPECT_EQ(stored(), "After");
}

TEST_F(ItemSaveTest, ARowThatIsGoneFailsTheSaveThroughABorrowedHandle)
{
    const auto id = savedItem();
    clsCalendarItem item;
    loadAndChange(item, id, "After");
    const auto handle = borrow(id);
    EXPECT_TRUE(database_->hasRecords(handle));
    other_.run("DELETE FROM Appointments");
    EXPECT_FALSE(item.saveCalendarItem(handle));
    EXPECT_EQ(reported(), storeError::noCurrentRecord);
    EXPECT_EQ(errorOf([&] { database_->closeRecordset(handle); }), 0);
}

TEST_F(ItemSaveTest, AFullDiskFailsTheSaveOfAnItemThatOpensItsOwnRow)
{
    const auto id = savedItem();
    database_->idle();
    reopen({.busyTimeout = 1, .largestFile = static_cast<std::int64_t>(std::filesystem::file_size(path_)) + 4096});
    clsCalendarItem item;
    loadAndChange(item, id, std::string(100000, 'x'));
    EXPECT_FALSE(item.saveCalendarItem());
    EXPECT_EQ(reported(), storeError::diskFull);
    EXPECT_EQ(stored(), "Before");
}

} // namespace
} // namespace qncal::host
