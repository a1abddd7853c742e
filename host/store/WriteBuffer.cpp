#include "store/WriteBuffer.h"

#include "store/storeError.h"

#include <algorithm>
#include <utility>

namespace qncal::host {

void WriteBuffer::add(RecordCursor& owner, const RecordCursor::Write& write)
{
    if (!isEmpty() && (owner_ != &owner || table_ != write.table || key_ != write.key))
        flush();
    if (isEmpty()) {
        lock();
        try {
            owner.confirmRow();
        } catch (...) {
            unlock();
            throw;
        }
        owner_ = &owner;
        table_ = write.table;
        key_ = write.key;
    }
    if (owner.putWrite(write))
        waitFor(write);
}

void WriteBuffer::waitFor(const RecordCursor::Write& write)
{
    // In one order, so that the same set of columns is the same statement.
    const auto at = std::ranges::lower_bound(columns_, write.column, {}, &Column::column);
    if (at == columns_.end() || at->column != write.column)
        columns_.insert(at, {write.column, write.place});
    else
        at->place = write.place;
}

void WriteBuffer::flush()
{
    if (isEmpty())
        return;
    values_.clear();
    for (const Column& column : columns_)
        values_.emplace_back(column.column, owner_->currentValue(column.place));
    const bool isRetry = std::exchange(failed_, true);
    bool found = true;
    try {
        if (isRetry)
            lock();
        if (!columns_.empty()) {
            found = table_->update(key_, values_);
            ++statistics_.updates;
        }
        commit();
    } catch (...) {
        unlock();
        owner_->keepRow();
        throw;
    }
    owner_->acceptOwnWrite();
    discard();
    if (!found)
        throw RunTimeError(storeError::noCurrentRecord, "The record has been deleted by someone else");
}

void WriteBuffer::discard()
{
    unlock();
    columns_.clear();
    owner_ = nullptr;
    failed_ = false;
}

void WriteBuffer::lock()
{
    if (!begin_)
        begin_ = connection_.prepareToKeep("BEGIN IMMEDIATE");
    const StatementRun run(begin_);
    begin_.step();
}

void WriteBuffer::commit()
{
    if (!commit_)
        commit_ = connection_.prepareToKeep("COMMIT");
    const StatementRun run(commit_);
    commit_.step();
}

void WriteBuffer::unlock() noexcept
{
    if (connection_.isInTransaction())
        connection_.rollback();
}

} // namespace qncal::host
