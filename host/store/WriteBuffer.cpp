#include "store/WriteBuffer.h"

#include "store/storeError.h"

#include <algorithm>

namespace qncal::host {

void WriteBuffer::add(RecordCursor& owner, const RecordCursor::Write& write)
{
    if (!isEmpty() && (owner_ != &owner || table_ != write.table || key_ != write.key))
        flush();
    owner_ = &owner;
    table_ = write.table;
    key_ = write.key;
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
    failed_ = true;
    const bool found = table_->update(key_, values_);
    ++statistics_.updates;
    owner_->acceptOwnWrite();
    discard();
    if (!found)
        throw RunTimeError(storeError::noCurrentRecord, "The record has been deleted by someone else");
}

void WriteBuffer::discard()
{
    columns_.clear();
    owner_ = nullptr;
    failed_ = false;
}

} // namespace qncal::host
