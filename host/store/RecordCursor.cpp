#include "store/RecordCursor.h"

#include "store/columnValue.h"
#include "store/storeError.h"
#include "utilities/text.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace qncal::host {

void RecordCursor::open(std::shared_ptr<SelectPlan> plan, const dialect::ShapedText& text, bool updatable,
                        StoreStatistics& statistics)
{
    plan_ = std::move(plan);
    text_ = text;
    updatable_ = updatable;
    statistics_ = &statistics;
    places_.clear(plan_->parts().byKey ? plan_->keyWidth() : 1);
    started_ = complete_ = detached_ = rowLoaded_ = adding_ = false;
    index_ = 0;
    lastColumn_ = 0;
    deletionsSeen_ = plan_->parts().tables.front()->deletions().size();
}

void RecordCursor::close()
{
    plan_.reset();
    copies_.clear();
}

std::uint64_t RecordCursor::version() const
{
    std::uint64_t sum = 0;
    for (const StoreTable* table : plan_->parts().tables)
        sum += table->version();
    return sum;
}

void RecordCursor::requireUpdatable() const
{
    if (!updatable_)
        throw RunTimeError(storeError::readOnly, "The record set was opened read-only");
    if (!plan_->parts().byKey)
        throw RunTimeError(storeError::readOnly, "A grouped or computed record set cannot be written");
}

std::size_t RecordCursor::requireColumn(std::string_view name)
{
    // Readers ask for the columns in their order, and for each twice: first whether it is null.
    const NameIndex& names = plan_->parts().columnNames;
    if (names.name(lastColumn_) == name)
        return lastColumn_;
    const std::size_t next = lastColumn_ + 1;
    if (next < names.size() && names.name(next) == name && plan_->isUnique(next))
        return lastColumn_ = next;
    const auto place = plan_->findColumn(name);
    if (!place)
        throw RunTimeError(storeError::unknownName, "The record set has no field \"" + std::string(name) + "\"");
    return lastColumn_ = *place;
}

// --- places ---

void RecordCursor::start()
{
    if (started_)
        return;
    if (!plan_->isInKeyOrder()) {
        loadMore();
        started_ = true;
        return;
    }
    SqliteStatement& statement = plan_->firstRecord(text_);
    const StatementRun run(statement);
    if (statement.step()) {
        const int columns = static_cast<int>(plan_->parts().columns.size());
        row_.readFrom(statement, columns);
        rowKeys_.assign(1, statement.integer(columns));
        places_.append(rowKeys_);
        rowLoaded_ = true;
        rowVersion_ = version();
        complete_ = plan_->parts().singleRecord;
        ++statistics_->recordsRead;
    } else {
        complete_ = true;
    }
    started_ = true;
}

void RecordCursor::loadMore()
{
    if (complete_)
        return;
    const int width = static_cast<int>(plan_->keyWidth());
    std::vector<std::int64_t> keys(plan_->keyWidth());
    if (!plan_->parts().byKey) {
        SqliteStatement& statement = plan_->allRecords(text_);
        const StatementRun run(statement);
        copies_.clear();
        while (statement.step())
            copies_.emplace_back().readFrom(statement, static_cast<int>(plan_->parts().columns.size()));
        for (std::int64_t number = 0; number < static_cast<std::int64_t>(copies_.size()); ++number)
            places_.append(std::array{number});
        statistics_->recordsRead += copies_.size();
        complete_ = true;
        return;
    }
    const bool blocks = plan_->isInKeyOrder();
    SqliteStatement& statement = blocks ? plan_->moreKeys(text_) : plan_->allKeys(text_);
    const StatementRun run(statement);
    if (blocks)
        statement.bind(plan_->ownParameter(0), places_.size() == 0 ? std::numeric_limits<std::int64_t>::min()
                                                                   : places_.keys(places_.size() - 1).front());
    std::vector<std::int64_t> block;
    while (statement.step())
        for (int i = 0; i < width; ++i)
            block.push_back(statement.integer(i));
    // Only a block that was read to its end counts, so that a failure can be tried again.
    for (std::size_t at = 0; at < block.size(); at += keys.size())
        places_.append(std::span(block).subspan(at, keys.size()));
    const std::size_t read = block.size() / keys.size();
    statistics_->keysRead += read;
    complete_ = !blocks || read < static_cast<std::size_t>(SelectPlan::blockSize);
}

void RecordCursor::loadAll()
{
    while (!complete_)
        loadMore();
}

bool RecordCursor::hasPlace(std::size_t index)
{
    while (index >= places_.size() && !complete_)
        loadMore();
    return index < places_.size();
}

void RecordCursor::noteDeletions()
{
    const auto& deletions = plan_->parts().tables.front()->deletions();
    if (deletionsSeen_ < deletions.size() && plan_->parts().byKey)
        places_.markGone(std::span(deletions).subspan(deletionsSeen_));
    deletionsSeen_ = deletions.size();
}

/// Gives a found or added record its place.
void RecordCursor::settle()
{
    start();
    if (!detached_)
        return;
    auto place = places_.find(detachedKeys_);
    if (!place) {
        loadAll();
        place = places_.find(detachedKeys_);
    }
    if (!place) {
        places_.append(detachedKeys_);
        place = places_.size() - 1;
    }
    index_ = static_cast<std::ptrdiff_t>(*place);
    detached_ = false;
}

bool RecordCursor::hasRecords()
{
    if (detached_)
        return true;
    start();
    noteDeletions();
    while (places_.liveCount() == 0 && !complete_)
        loadMore();
    return places_.liveCount() > 0;
}

bool RecordCursor::isEOF()
{
    if (detached_)
        return false;
    start();
    if (index_ < 0)
        return false;
    // A deleted record that is still current counts as being there; only a move leaves it.
    return !hasPlace(static_cast<std::size_t>(index_));
}

void RecordCursor::leaveRow()
{
    rowLoaded_ = false;
    adding_ = false;
}

bool RecordCursor::moveNext()
{
    settle();
    if (isEOF())
        return false;
    leaveRow();
    do
        ++index_;
    while (hasPlace(static_cast<std::size_t>(index_))
           && (!places_.isLive(static_cast<std::size_t>(index_)) || !readRow()));
    return true;
}

bool RecordCursor::movePrevious()
{
    settle();
    if (index_ < 0)
        return false;
    hasPlace(static_cast<std::size_t>(index_));
    leaveRow();
    do
        --index_;
    while (index_ >= 0 && (!places_.isLive(static_cast<std::size_t>(index_)) || !readRow()));
    return index_ >= 0;
}

std::int64_t RecordCursor::count()
{
    if (!started_ && !detached_ && plan_->parts().byKey) {
        SqliteStatement& statement = plan_->count(text_);
        const StatementRun run(statement);
        return statement.step() ? statement.integer(0) : 0;
    }
    settle();
    loadAll();
    noteDeletions();
    return static_cast<std::int64_t>(places_.liveCount());
}

std::int64_t RecordCursor::position()
{
    settle();
    return index_ < 0 ? 0 : places_.position(static_cast<std::size_t>(index_));
}

bool RecordCursor::setPosition(std::int64_t position)
{
    settle();
    if (position < 0)
        return false;
    while (!complete_ && static_cast<std::size_t>(position) > places_.size())
        loadMore();
    leaveRow();
    index_ = position == 0 ? beforeFirst : static_cast<std::ptrdiff_t>(places_.index(position));
    return position == 0 || isAtPlace() || position == places_.position(places_.size());
}

bool RecordCursor::find(std::string_view field, std::string_view value)
{
    const auto column = plan_->findColumn(field);
    if (!column)
        return false;
    const auto type = columnOf(*column).type;
    const auto wanted = storedFromText(type.value_or(schema::ColumnType::real), value, buffer_);
    if (!wanted)
        return false;
    start();
    if (!plan_->parts().byKey || plan_->parts().top)
        return findByWalk(*column, *wanted);
    SqliteStatement& statement = plan_->find(text_, *column);
    const StatementRun run(statement);
    statement.bind(plan_->ownParameter(0), *wanted);
    if (!statement.step())
        return false;
    leaveRow();
    detachedKeys_.clear();
    for (int i = 0; i < static_cast<int>(plan_->keyWidth()); ++i)
        detachedKeys_.push_back(statement.integer(i));
    detached_ = true;
    return true;
}

bool RecordCursor::findByWalk(std::size_t column, const StoredValue& wanted)
{
    settle();
    loadAll();
    const std::ptrdiff_t before = index_;
    for (index_ = 0; isAtPlace(); ++index_) {
        rowLoaded_ = false;
        if (!places_.isLive(static_cast<std::size_t>(index_)) || !readRow())
            continue;
        const StoredValue value = row_.value(column);
        const bool equal = value.kind == StoredValue::Kind::text && wanted.kind == StoredValue::Kind::text
                               ? equalsNoCase(value.text, wanted.text)
                               : value.kind != StoredValue::Kind::null && computedValue(value) == computedValue(wanted);
        if (equal) {
            adding_ = false;
            return true;
        }
    }
    index_ = before;
    rowLoaded_ = false;
    return false;
}

// --- the current record ---

/// Reads the current record; false when it is no longer there.
bool RecordCursor::readRow()
{
    if (!plan_->parts().byKey) {
        row_ = copies_[static_cast<std::size_t>(places_.keys(static_cast<std::size_t>(index_)).front())];
        rowLoaded_ = true;
        rowVersion_ = version();
        return true;
    }
    const auto keys =
        detached_ ? std::span<const std::int64_t>(detachedKeys_) : places_.keys(static_cast<std::size_t>(index_));
    SqliteStatement& statement = plan_->record(text_);
    const StatementRun run(statement);
    for (std::size_t i = 0; i < keys.size(); ++i)
        statement.bind(plan_->ownParameter(static_cast<int>(i)), keys[i]);
    if (!statement.step()) {
        if (!detached_)
            places_.markGone(static_cast<std::size_t>(index_));
        rowLoaded_ = false;
        return false;
    }
    row_.readFrom(statement, static_cast<int>(plan_->parts().columns.size()));
    rowKeys_.assign(keys.begin(), keys.end());
    rowLoaded_ = true;
    rowVersion_ = version();
    ++statistics_->recordsRead;
    return true;
}

void RecordCursor::requireRow()
{
    if (rowLoaded_ && (!plan_->parts().byKey || rowVersion_ == version()))
        return;
    if (!detached_) {
        start();
        if (rowLoaded_ && rowVersion_ == version())
            return;
        if (index_ < 0 || !hasPlace(static_cast<std::size_t>(index_)))
            throw RunTimeError(storeError::noCurrentRecord, "There is no current record");
        if (places_.isClosed(static_cast<std::size_t>(index_)))
            throw RunTimeError(storeError::noCurrentRecord, "The current record has been deleted");
    }
    if (!readRow())
        throw RunTimeError(storeError::noCurrentRecord, "The current record has been deleted");
}

Variant RecordCursor::field(std::string_view name)
{
    const std::size_t place = requireColumn(name);
    if (adding_)
        return newField(place);
    requireRow();
    const auto& type = columnOf(place).type;
    return type ? fieldValue(*type, row_.value(place)) : computedValue(row_.value(place));
}

Variant RecordCursor::newField(std::size_t place) const
{
    const PlanColumn& column = columnOf(place);
    if (column.table == PlanColumn::computed)
        return {};
    return fieldValue(*column.type, newRow_.value(column.column));
}

RecordCursor::Write RecordCursor::writeField(std::string_view name, std::string_view value)
{
    requireUpdatable();
    const std::size_t place = requireColumn(name);
    const PlanColumn& column = columnOf(place);
    if (column.table == PlanColumn::computed)
        throw RunTimeError(storeError::readOnly, "The field \"" + std::string(name) + "\" is computed");
    requireRow();
    StoreTable& table = *plan_->parts().tables[column.table];
    const StoredValue stored = storedForColumn(table.schema(), table.column(column.column), value, buffer_);
    if (column.column == 0 && !(stored == row_.value(place)))
        throw RunTimeError(storeError::readOnly, "The key of a record cannot be changed");
    const Write write{&table, rowKeys_[column.table], column.column, place, !(stored == row_.value(place))};
    if (write.changes)
        row_.set(place, stored);
    return write;
}

// --- adding and deleting ---

void RecordCursor::beginRecord()
{
    requireUpdatable();
    if (plan_->keyWidth() != 1)
        throw RunTimeError(storeError::readOnly, "A record cannot be added to a join");
    StoreTable& table = *plan_->parts().tables.front();
    const std::int64_t key = table.takeKey();
    newRow_ = table.defaults();
    newRow_.set(0, {StoredValue::Kind::integer, key});
    newSet_.assign(newRow_.size(), false);
    newSet_[0] = true;
    adding_ = true;
}

void RecordCursor::setNewField(std::string_view name, std::string_view value)
{
    if (!adding_)
        throw RunTimeError(storeError::noCurrentRecord, "No new record has been begun");
    const PlanColumn& column = columnOf(requireColumn(name));
    if (column.table == PlanColumn::computed)
        throw RunTimeError(storeError::readOnly, "The field \"" + std::string(name) + "\" is computed");
    const StoreTable& table = *plan_->parts().tables.front();
    newRow_.set(column.column, storedForColumn(table.schema(), table.column(column.column), value, buffer_));
    newSet_[column.column] = true;
}

void RecordCursor::storeRecord()
{
    if (!adding_)
        throw RunTimeError(storeError::noCurrentRecord, "No new record has been begun");
    StoreTable& table = *plan_->parts().tables.front();
    std::vector<StoreTable::Change> values;
    for (std::size_t column = 0; column < newSet_.size(); ++column)
        if (newSet_[column])
            values.emplace_back(static_cast<std::uint16_t>(column), newRow_.value(column));
    table.insert(values);
    ++statistics_->inserts;
    leaveRow();
    detachedKeys_.assign(1, newRow_.value(0).integer);
    detached_ = true;
    if (complete_) {
        places_.append(detachedKeys_);
        index_ = static_cast<std::ptrdiff_t>(places_.size()) - 1;
        detached_ = false;
    }
}

bool RecordCursor::deleteRecord()
{
    requireUpdatable();
    adding_ = false;
    requireRow();
    settle();
    StoreTable& table = *plan_->parts().tables.front();
    const bool deleted = table.remove(rowKeys_.front());
    noteDeletions();
    places_.close(static_cast<std::size_t>(index_));
    rowLoaded_ = false;
    return deleted;
}

} // namespace qncal::host
