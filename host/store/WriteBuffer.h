#pragma once

#include "store/RecordCursor.h"
#include "store/SqliteConnection.h"

#include <cstdint>
#include <vector>

namespace qncal::host {

/// The writes to one record that wait to become one UPDATE. The values stand in the current row of the record set
/// that wrote them, which therefore must not move before `flush`.
///
/// From the first of them to the flush the database is locked for other writers, and the record is what it was
/// found to be under the lock. What can go wrong therefore goes wrong at the write itself; only a disk that is full
/// or failing is left for the flush.
class WriteBuffer {
public:
    WriteBuffer(SqliteConnection& connection, StoreStatistics& statistics)
        : connection_(connection), statistics_(statistics)
    {
    }

    bool isEmpty() const { return owner_ == nullptr; }
    bool isOf(const RecordCursor& cursor) const { return owner_ == &cursor; }
    /// A write to another record flushes those that wait. Throws, and holds nothing of it, when the database is
    /// locked by another process or the record is no longer there.
    void add(RecordCursor& owner, const RecordCursor::Write& write);
    /// After a failure the writes go on waiting, without the lock, so that the call can be tried again.
    void flush();
    bool hasFailed() const { return failed_; }
    void discard();

private:
    struct Column {
        std::uint16_t column;
        std::size_t place;
    };
    void lock();
    void unlock() noexcept;
    void commit();
    void waitFor(const RecordCursor::Write& write);

    SqliteConnection& connection_;
    StoreStatistics& statistics_;
    SqliteStatement begin_, commit_;
    RecordCursor* owner_ = nullptr; ///< none while nothing waits
    StoreTable* table_ = nullptr;
    std::int64_t key_ = 0;
    std::vector<Column> columns_; ///< ascending; none when all writes were equal to what is stored
    std::vector<StoreTable::Change> values_;
    bool failed_ = false;
};

} // namespace qncal::host
