#pragma once

#include "core/DatabaseService.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qncal::host {

/// The rows of one SELECT, for code on the host's side of the contract. The first row is current at once; the
/// handle is closed at the end of the object's life, in silence: whoever has written calls `close`. Every failure
/// is thrown to the caller as `RunTimeError`. The database must outlive the object.
class Rows {
public:
    static Rows read(DatabaseService& database, std::string_view sql)
    {
        return {database, sql, DatabaseService::readOnly};
    }
    static Rows change(DatabaseService& database, std::string_view sql)
    {
        return {database, sql, DatabaseService::updatable};
    }
    ~Rows();
    Rows(const Rows&) = delete;
    Rows& operator=(const Rows&) = delete;

    std::int32_t handle() const { return handle_; }
    bool isEmpty() const { return !database_.hasRecords(handle_); }
    /// True when no row is current, also when there is none at all.
    bool atEnd() const { return isEmpty() || database_.isEOF(handle_); }
    void moveNext() { database_.moveNext(handle_); }
    std::int32_t count() const { return database_.getRecordCount(handle_); }

    Variant field(std::string_view name) const { return database_.getField(handle_, name); }
    /// Null reads as an empty text.
    std::string text(std::string_view name) const;
    /// Null reads as `none`.
    std::int32_t integer(std::string_view name, std::int32_t none = -1) const;
    /// Null reads as False.
    bool boolean(std::string_view name) const;

    /// Writes a field of the current row. The database may put it off until `close`.
    void set(std::string_view name, std::string_view value)
    {
        database_.setFieldValue(handle_, name, value, false, false, false);
    }
    void addNew() { database_.addNew(handle_); }
    void setNew(std::string_view name, std::string_view value) { database_.setNewField(handle_, name, value); }
    void update() { database_.update(handle_); }
    void deleteCurrent() { database_.deleteRecord(handle_); }
    /// The last use of the object: throws when a write that was put off fails. Destruction then tries once more.
    void close();

private:
    Rows(DatabaseService& database, std::string_view sql, std::int32_t lock);

    DatabaseService& database_;
    std::int32_t handle_; ///< 0 once closed
};

/// A column and what it is to hold, as the contract wants it in text.
using FieldText = std::pair<std::string_view, std::string>;
/// Adds a row to a table of the schema and gives its key. Columns that are not named start with their default.
std::int32_t addRow(DatabaseService& database, std::string_view table, const std::vector<FieldText>& fields);

} // namespace qncal::host
