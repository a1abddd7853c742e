#include "store/LazyPlaces.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace qncal::host {

void LazyPlaces::open(std::shared_ptr<SelectPlan> plan, const dialect::Literals& literals, StoreStatistics& statistics)
{
    plan_ = std::move(plan);
    literals_.assign(literals);
    statistics_ = &statistics;
    list_.clear(plan_->parts().byKey ? plan_->keyWidth() : 1);
    started_ = complete_ = false;
    deletionsSeen_.clear();
    for (const StoreTable* table : plan_->parts().tables)
        deletionsSeen_.push_back(table->deletions().size());
    listening_ = !plan_->isStreaming();
    if (listening_)
        for (StoreTable* table : plan_->parts().tables)
            table->tellBeforeWrite(*this);
}

void LazyPlaces::close()
{
    stopListening();
    plan_.reset();
    copies_.clear();
    list_.clear(1);
}

void LazyPlaces::stopListening()
{
    if (!std::exchange(listening_, false))
        return;
    for (StoreTable* table : plan_->parts().tables)
        table->tellNoMore(*this);
}

void LazyPlaces::beforeWrite()
{
    loadAll();
    stopListening();
}

bool LazyPlaces::start(Row& row)
{
    if (started_)
        return false;
    if (!plan_->isInKeyOrder()) {
        loadMore();
        started_ = true;
        return false;
    }
    // A set of one record is the commonest of all: one statement gives its key and its columns.
    SqliteStatement& statement = plan_->firstRecord(literals_);
    const StatementRun run(statement);
    const bool found = statement.step();
    if (found) {
        const int columns = static_cast<int>(plan_->parts().columns.size());
        row.readFrom(statement, columns);
        list_.append(std::array{statement.integer(columns)});
        ++statistics_->recordsRead;
    }
    complete_ = !found || plan_->parts().singleRecord;
    started_ = true;
    return found;
}

void LazyPlaces::loadMore()
{
    if (complete_)
        return;
    if (plan_->parts().byKey)
        loadKeys();
    else
        loadCopies();
}

void LazyPlaces::loadCopies()
{
    SqliteStatement& statement = plan_->allRecords(literals_);
    const StatementRun run(statement);
    copies_.load(statement, plan_->parts().columns.size());
    for (std::size_t record = 0; record < copies_.size(); ++record)
        list_.append(std::array{static_cast<std::int64_t>(record)});
    statistics_->recordsRead += copies_.size();
    complete_ = true;
}

void LazyPlaces::loadKeys()
{
    const std::size_t width = plan_->keyWidth();
    const bool blocks = plan_->isInKeyOrder();
    SqliteStatement& statement = blocks ? plan_->moreKeys(literals_) : plan_->allKeys(literals_);
    const StatementRun run(statement);
    if (blocks)
        statement.bind(plan_->ownParameter(0), list_.size() == 0 ? std::numeric_limits<std::int64_t>::min()
                                                                 : list_.keys(list_.size() - 1).front());
    // Only a block that was read to its end counts, so that a failure can be tried again.
    block_.clear();
    while (statement.step())
        for (std::size_t i = 0; i < width; ++i)
            block_.push_back(statement.integer(static_cast<int>(i)));
    for (std::size_t at = 0; at < block_.size(); at += width)
        list_.append(std::span(block_).subspan(at, width));
    const std::size_t read = block_.size() / width;
    statistics_->keysRead += read;
    complete_ = !blocks || read < static_cast<std::size_t>(SelectPlan::blockSize);
}

bool LazyPlaces::has(std::size_t index)
{
    while (index >= list_.size() && !complete_)
        loadMore();
    return index < list_.size();
}

void LazyPlaces::loadAll()
{
    while (!complete_)
        loadMore();
    started_ = true;
}

bool LazyPlaces::anyLive()
{
    noteDeletions();
    while (list_.liveCount() == 0 && !complete_)
        loadMore();
    return list_.liveCount() > 0;
}

std::int64_t LazyPlaces::count()
{
    if (!started_ && plan_->parts().byKey) {
        SqliteStatement& statement = plan_->count(literals_);
        const StatementRun run(statement);
        return statement.step() ? statement.integer(0) : 0;
    }
    loadAll();
    noteDeletions();
    return static_cast<std::int64_t>(list_.liveCount());
}

std::size_t LazyPlaces::placeOf(std::span<const std::int64_t> keys)
{
    auto place = list_.find(keys);
    while (!place && !complete_) {
        loadMore();
        place = list_.find(keys);
    }
    started_ = true;
    if (place)
        return *place;
    list_.append(keys);
    return list_.size() - 1;
}

std::optional<std::size_t> LazyPlaces::find(std::size_t column, const StoredValue& wanted)
{
    if (!plan_->parts().byKey)
        return copies_.find(column, wanted);
    SqliteStatement& statement = plan_->findAll(literals_, column);
    const StatementRun run(statement);
    statement.bind(plan_->ownParameter(0), wanted);
    std::optional<std::size_t> first;
    while (statement.step())
        if (const auto place = list_.find(std::array{statement.integer(0)}); place && (!first || *place < *first))
            first = place;
    return first;
}

void LazyPlaces::noteDeletions()
{
    for (std::size_t table = 0; table < deletionsSeen_.size(); ++table) {
        const auto& deletions = plan_->parts().tables[table]->deletions();
        if (deletionsSeen_[table] < deletions.size() && plan_->parts().byKey)
            list_.markGone(std::span(deletions).subspan(deletionsSeen_[table]), table);
        deletionsSeen_[table] = deletions.size();
    }
}

void LazyPlaces::settleDeletions()
{
    noteDeletions();
    std::ranges::fill(deletionsSeen_, 0U);
}

} // namespace qncal::host
