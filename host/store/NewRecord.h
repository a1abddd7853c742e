#pragma once

#include "store/Row.h"
#include "store/StoreTable.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace qncal::host {

/// A record on its way into a table. Has its key from the beginning; nothing is stored before `store`.
class NewRecord {
public:
    void begin(StoreTable& table);
    void abandon() { table_ = nullptr; }
    bool isOpen() const { return table_ != nullptr; }

    /// The value of a column of the table, which may be its default.
    StoredValue value(std::size_t column) const { return values_.value(column); }
    /// The key may be set too: tables that take over records of another keep the keys that these had.
    void set(std::size_t column, std::string_view text);
    /// Stores the record and gives its key. After a failure it is still open; when somebody else has come to use
    /// the key that it was given, the error names the new one with which it can be stored.
    std::int64_t store();

private:
    void replaceTakenKey();

    StoreTable* table_ = nullptr;
    bool isKeyChosen_ = false; ///< by the caller
    Row values_;
    std::vector<bool> isSet_;
    std::vector<StoreTable::Change> changes_;
    std::string buffer_;
};

} // namespace qncal::host
