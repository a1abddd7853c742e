#pragma once

#include "store/Row.h"
#include "store/SqliteConnection.h"

#include <cstddef>
#include <optional>
#include <unordered_map>

namespace qncal::host {

/// The records of a set that is no more than a result: grouped, distinct or computed.
class RecordCopies {
public:
    void clear();
    /// Takes all rows of the statement; on a failure there are none.
    void load(SqliteStatement& statement, std::size_t columns);

    std::size_t size() const { return count_; }
    StoredValue value(std::size_t record, std::size_t column) const
    {
        return values_.value(record * columns_ + column);
    }
    /// The first record whose column equals the value; texts compare without regard to case.
    std::optional<std::size_t> find(std::size_t column, const StoredValue& wanted) const;

private:
    Row values_; ///< record after record
    std::size_t columns_ = 0;
    std::size_t count_ = 0;
    /// For each column that was searched for a whole number, the first record with each: a search for the first
    /// free number asks again and again.
    mutable std::unordered_map<std::size_t, std::unordered_map<std::int64_t, std::size_t>> numbers_;
};

/// True when two stored values are equal for the dialect; Null equals nothing.
bool equalValues(const StoredValue& a, const StoredValue& b);

} // namespace qncal::host
