#include "store/RecordCursor.h"

#include "store/columnValue.h"
#include "store/storeError.h"

#include <utility>

namespace qncal::host {

namespace {

[[noreturn]] void failDeleted()
{
    throw RunTimeError(storeError::noCurrentRecord, "The current record has been deleted");
}

} // namespace

void RecordCursor::open(std::shared_ptr<SelectPlan> plan, const dialect::Literals& literals, bool updatable,
                        StoreStatistics& statistics)
{
    places_.open(std::move(plan), literals, statistics);
    updatable_ = updatable;
    statistics_ = &statistics;
    index_ = 0;
    isUnplaced_ = rowLoaded_ = false;
    lastColumn_ = 0;
    newRecord_.abandon();
}

void RecordCursor::close()
{
    newRecord_.abandon();
    places_.close();
}

std::uint64_t RecordCursor::version() const
{
    std::uint64_t sum = 0;
    for (const StoreTable* table : plan().parts().tables)
        sum += table->version();
    return sum;
}

void RecordCursor::requireUpdatable() const
{
    if (!updatable_)
        throw RunTimeError(storeError::readOnly, "The record set was opened read-only");
    if (!isByKey())
        throw RunTimeError(storeError::readOnly, "A grouped or computed record set cannot be written");
}

std::size_t RecordCursor::requireColumn(std::string_view name)
{
    // Readers ask for the columns in their order, and for each twice: first whether it is null.
    const NameIndex& names = plan().parts().columnNames;
    if (names.name(lastColumn_) == name)
        return lastColumn_;
    const std::size_t next = lastColumn_ + 1;
    if (next < names.size() && names.name(next) == name && plan().isUnique(next))
        return lastColumn_ = next;
    const auto place = plan().findColumn(name);
    if (!place)
        throw RunTimeError(storeError::unknownName, "The record set has no field \"" + std::string(name) + "\"");
    return lastColumn_ = *place;
}

const PlanColumn& RecordCursor::requireTableColumn(std::string_view name, std::size_t& place)
{
    place = requireColumn(name);
    const PlanColumn& column = plan().parts().columns[place];
    if (column.table == PlanColumn::computed)
        throw RunTimeError(storeError::readOnly, "The field \"" + std::string(name) + "\" is computed");
    return column;
}

// Where the record set stands.

void RecordCursor::start()
{
    if (!places_.start(row_))
        return;
    const auto keys = places_.list().keys(0);
    rowKeys_.assign(keys.begin(), keys.end());
    rowLoaded_ = true;
    noteRowVersions();
}

/// Gives a found or added record its place.
void RecordCursor::settle()
{
    if (!isUnplaced_) {
        start();
        return;
    }
    index_ = static_cast<std::ptrdiff_t>(places_.placeOf(unplacedKeys_));
    isUnplaced_ = false;
}

bool RecordCursor::hasRecords()
{
    if (isUnplaced_)
        return true;
    start();
    return places_.anyLive();
}

bool RecordCursor::isEOF()
{
    if (isUnplaced_)
        return false;
    start();
    // A deleted record that is still current counts as being there; only a move leaves it.
    return index_ >= 0 && !places_.has(index());
}

void RecordCursor::leaveRow()
{
    rowLoaded_ = false;
    newRecord_.abandon();
}

bool RecordCursor::moveNext()
{
    settle();
    if (isEOF())
        return false;
    leaveRow();
    do
        ++index_;
    while (places_.has(index()) && !isAtRecord());
    return true;
}

bool RecordCursor::movePrevious()
{
    settle();
    if (index_ == beforeFirst)
        return false;
    leaveRow();
    do
        --index_;
    while (index_ != beforeFirst && !isAtRecord());
    return true;
}

std::int64_t RecordCursor::count()
{
    if (isUnplaced_)
        settle();
    return places_.count();
}

std::int64_t RecordCursor::position()
{
    settle();
    return index_ == beforeFirst ? 0 : places_.list().position(index());
}

bool RecordCursor::setPosition(std::int64_t position)
{
    settle();
    if (position < 0)
        return false;
    const PlaceList& list = places_.list();
    while (position > list.position(list.size()) - 1 && places_.has(list.size())) {
    }
    leaveRow();
    index_ = position == 0 ? beforeFirst : static_cast<std::ptrdiff_t>(list.index(position));
    return position <= list.position(list.size());
}

bool RecordCursor::find(std::string_view field, std::string_view value)
{
    const auto column = plan().findColumn(field);
    if (!column)
        return false;
    const auto& type = plan().parts().columns[*column].type;
    const auto wanted = storedFromText(type.value_or(schema::ColumnType::integer), value, buffer_);
    if (!wanted || wanted->kind == StoredValue::Kind::null)
        return false;
    if (isUnplaced_ || !plan().isInKeyOrder())
        settle();
    if (places_.isComplete())
        return findPlace(*column, *wanted);

    SqliteStatement& statement = plan().findFirst(places_.literals(), *column);
    const StatementRun run(statement);
    statement.bind(plan().ownParameter(0), *wanted);
    if (!statement.step())
        return false;
    leaveRow();
    unplacedKeys_.assign(1, statement.integer(0));
    isUnplaced_ = true;
    return true;
}

bool RecordCursor::findPlace(std::size_t column, const StoredValue& wanted)
{
    if (isByKey() && plan().keyWidth() > 1)
        return findByWalk(column, wanted);
    const auto place = places_.find(column, wanted);
    if (!place)
        return false;
    leaveRow();
    index_ = static_cast<std::ptrdiff_t>(*place);
    return true;
}

bool RecordCursor::findByWalk(std::size_t column, const StoredValue& wanted)
{
    settle();
    const std::ptrdiff_t before = std::exchange(index_, 0);
    for (; places_.has(index()); ++index_)
        if (isAtRecord() && equalValues(value(column), wanted)) {
            newRecord_.abandon();
            return true;
        }
    index_ = before;
    rowLoaded_ = false;
    return false;
}

// The current record.

/// Reads the current record; false when it is no longer there.
bool RecordCursor::readRow()
{
    rowLoaded_ = !isByKey();
    if (rowLoaded_)
        return true;
    const auto keys = isUnplaced_ ? std::span<const std::int64_t>(unplacedKeys_) : places_.list().keys(index());
    SqliteStatement& statement = plan().record(places_.literals());
    const StatementRun run(statement);
    for (std::size_t i = 0; i < keys.size(); ++i)
        statement.bind(plan().ownParameter(static_cast<int>(i)), keys[i]);
    const int columns = static_cast<int>(plan().parts().columns.size());
    bool found = statement.step();
    // A record of an outer join may lack a table from the start; one that had it and lost it is gone.
    for (std::size_t i = 1; found && i < keys.size(); ++i)
        found = statement.integer(columns + static_cast<int>(i)) == keys[i];
    if (!found) {
        if (!isUnplaced_)
            places_.list().markGone(index());
        return false;
    }
    row_.readFrom(statement, columns);
    rowKeys_.assign(keys.begin(), keys.end());
    rowLoaded_ = true;
    noteRowVersions();
    ++statistics_->recordsRead;
    return true;
}

void RecordCursor::requireRow()
{
    if (isRowFresh())
        return;
    if (!isUnplaced_) {
        start();
        if (isRowFresh())
            return;
        if (index_ < 0 || !places_.has(index()))
            throw RunTimeError(storeError::noCurrentRecord, "There is no current record");
        if (places_.list().isClosed(index()))
            failDeleted();
    }
    if (!readRow())
        failDeleted();
}

StoredValue RecordCursor::value(std::size_t place) const
{
    return isByKey() ? row_.value(place) : places_.copies().value(index(), place);
}

Variant RecordCursor::field(std::string_view name)
{
    const std::size_t place = requireColumn(name);
    const PlanColumn& column = plan().parts().columns[place];
    if (isAdding())
        return column.table == PlanColumn::computed ? Variant()
                                                    : fieldValue(*column.type, newRecord_.value(column.column));
    requireRow();
    return column.type ? fieldValue(*column.type, value(place)) : computedValue(value(place));
}

RecordCursor::Write RecordCursor::planWrite(std::string_view name, std::string_view text)
{
    requireUpdatable();
    std::size_t place = 0;
    const PlanColumn& column = requireTableColumn(name, place);
    requireRow();
    StoreTable& table = *plan().parts().tables[column.table];
    if (rowKeys_[column.table] == 0)
        throw RunTimeError(storeError::noCurrentRecord, "The join found no record for \"" + std::string(name) + "\"");
    const StoredValue stored = storedForColumn(table.schema(), table.column(column.column), text, buffer_);
    if (column.column == 0 && stored.integer != rowKeys_[column.table])
        throw RunTimeError(storeError::readOnly, "The key of a record cannot be changed");
    return {&table, rowKeys_[column.table], column.column, place, stored};
}

void RecordCursor::noteRowVersions()
{
    rowVersion_ = version();
    rowDataVersion_ = plan().dataVersion();
}

void RecordCursor::confirmRow()
{
    if (isRowFresh() && rowDataVersion_ == plan().dataVersion())
        return;
    if (!readRow())
        failDeleted();
}

bool RecordCursor::putWrite(const Write& write)
{
    const bool changes = !(write.value == row_.value(write.place));
    if (changes)
        putIntoRow(write.place, write.value);
    return changes;
}

void RecordCursor::acceptOwnWrite()
{
    noteRowVersions();
    if (plan().hasDependentColumns())
        rowLoaded_ = false;
}

/// A column may stand in the record set under several names.
void RecordCursor::putIntoRow(std::size_t place, const StoredValue& value)
{
    row_.set(place, value);
    if (!plan().hasTwins())
        return;
    const auto& columns = plan().parts().columns;
    for (std::size_t other = 0; other < columns.size(); ++other)
        if (other != place && columns[other].table == columns[place].table
            && columns[other].column == columns[place].column)
            row_.set(other, value);
}

// Adding and deleting.

void RecordCursor::beginRecord()
{
    requireUpdatable();
    if (plan().keyWidth() != 1)
        throw RunTimeError(storeError::readOnly, "A record cannot be added to a join");
    newRecord_.begin(*plan().parts().tables.front());
}

void RecordCursor::setNewField(std::string_view name, std::string_view text)
{
    if (!isAdding())
        throw RunTimeError(storeError::noCurrentRecord, "No new record has been begun");
    std::size_t place = 0;
    newRecord_.set(requireTableColumn(name, place).column, text);
}

void RecordCursor::storeRecord()
{
    if (!isAdding())
        throw RunTimeError(storeError::noCurrentRecord, "No new record has been begun");
    const std::int64_t key = newRecord_.store();
    ++statistics_->inserts;
    leaveRow();
    // Places that are still to be read will hold the new record; those that are known get it at their end.
    unplacedKeys_.assign(1, key);
    isUnplaced_ = true;
    if (places_.isComplete())
        settle();
}

bool RecordCursor::deleteRecord()
{
    requireUpdatable();
    if (plan().keyWidth() != 1)
        throw RunTimeError(storeError::readOnly, "A record of a join cannot be deleted");
    newRecord_.abandon();
    requireRow();
    settle();
    const bool deleted = plan().parts().tables.front()->remove(rowKeys_.front());
    places_.noteDeletions();
    places_.list().close(index());
    rowLoaded_ = false;
    return deleted;
}

} // namespace qncal::host
