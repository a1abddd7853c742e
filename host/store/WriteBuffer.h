#pragma once

#include "store/RecordCursor.h"

#include <cstdint>
#include <vector>

namespace qncal::host {

/// The writes to one record that wait to become one UPDATE. The values stand in the current row of the record set
/// that wrote them, which therefore must not move before `flush`.
class WriteBuffer {
public:
    explicit WriteBuffer(StoreStatistics& statistics) : statistics_(statistics) {}

    bool isEmpty() const { return columns_.empty(); }
    bool isOf(const RecordCursor& cursor) const { return owner_ == &cursor; }
    /// A write to another record flushes those that wait.
    void add(RecordCursor& owner, const RecordCursor::Write& write);
    /// After a failure the writes go on waiting, so that the call can be tried again.
    void flush();
    bool hasFailed() const { return failed_; }
    void discard();

private:
    struct Column {
        std::uint16_t column;
        std::size_t place;
    };
    StoreStatistics& statistics_;
    RecordCursor* owner_ = nullptr;
    StoreTable* table_ = nullptr;
    std::int64_t key_ = 0;
    std::vector<Column> columns_; ///< ascending
    std::vector<StoreTable::Change> values_;
    bool failed_ = false;
};

} // namespace qncal::host
