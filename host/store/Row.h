#pragma once

#include "store/SqliteConnection.h"
#include "store/StoredValue.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace qncal::host {

/// The values of one record, all their text in one block that is used again for the next record.
class Row {
public:
    void clear();
    /// Takes the first `count` columns of the statement's current row.
    void readFrom(const SqliteStatement& statement, int count);
    void append(const StoredValue& value);
    void set(std::size_t place, const StoredValue& value);

    std::size_t size() const { return cells_.size(); }
    StoredValue value(std::size_t place) const;

private:
    struct Cell {
        StoredValue::Kind kind = StoredValue::Kind::null;
        std::uint32_t length = 0;
        union {
            std::int64_t integer = 0;
            double real;
            std::size_t offset;
        };
    };
    Cell cellOf(const StoredValue& value);

    std::vector<Cell> cells_;
    std::string texts_;
};

} // namespace qncal::host
