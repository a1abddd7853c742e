#pragma once

#include "utilities/Variant.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace qncal {

/// Host contract: record sets by handle over an SQL database of the Jet dialect.
///
/// A handle is a number above zero, issued by `openRecordset` and valid until `closeRecordset`. Each handle has
/// a current record of its own. Every operation may throw `RunTimeError`; nothing is changed by a call that
/// throws; a full or failing disk alone may be told by a later call, which is then the one to try again. Names of
/// tables and fields compare without regard to case. Called on the component's thread; an
/// implementation never calls back. A handle that an error left open must not disturb later calls.
///
/// Values come back as variants and go in as text: numbers in decimal, booleans as "True" and "False", dates as
/// `defaultDateText` writes them, all converted by the service to the column's type. An empty text into a
/// number, date or colour column stores Null; a boolean or key column refuses it, as every column does a text that
/// does not convert, with an error naming table, column and text. A column that no one set stores its default, or
/// Null.
///
/// A record set is fixed when it is opened: what others add or change through this service later does not move a
/// record in or out of it or to another place, records deleted leave it, and records added through the handle itself
/// come to its end. All records of one table in no order are the exception: they are found as they are walked over,
/// and those added meanwhile may be among them. `findRecord` finds what the set holds, by the values of the moment.
/// A record set over several tables takes writes to the fields of each, but neither new records nor deletions; a
/// grouped, distinct or computed one takes no writes at all.
class DatabaseService {
public:
    static constexpr std::int32_t cursorType = 1;
    static constexpr std::int32_t readOnly = 1;
    static constexpr std::int32_t updatable = 3;

    virtual ~DatabaseService() = default;

    /// True while a database is open. Asked anew at the start of each routine.
    virtual bool isConnected() = 0;
    /// Runs a SELECT and makes its first record current. The component passes cursor type 1, lock type
    /// `readOnly` or `updatable`, showError and keep True, and an empty error text.
    virtual std::int32_t openRecordset(std::string_view sql, std::int32_t cursor, std::int32_t lock, bool showError,
                                       std::string_view errorText, bool keep) = 0;
    virtual void closeRecordset(std::int32_t handle) = 0;
    virtual bool isRecordsetOpen(std::int32_t handle) = 0;

    virtual bool hasRecords(std::int32_t handle) = 0;
    virtual bool isRecordsetEmpty(std::int32_t handle) = 0;
    virtual bool isEOF(std::int32_t handle) = 0;
    virtual bool moveNext(std::int32_t handle) = 0;
    virtual bool movePrevious(std::int32_t handle) = 0;
    virtual std::int32_t getRecordCount(std::int32_t handle) = 0;
    /// Positions count from 1; past the last record it is the count plus 1.
    virtual std::int32_t getPosition(std::int32_t handle) = 0;
    virtual bool setPosition(std::int32_t handle, std::int32_t position) = 0;
    /// Makes the first record whose field equals the value current. When there is none, or the record set lacks
    /// the field, the result is False and the current record stays. The four texts carry nothing.
    virtual bool findRecord(std::int32_t handle, std::string_view fieldName, std::string_view value,
                            std::string& reserved1, std::string& reserved2, std::string& reserved3,
                            std::string& reserved4) = 0;

    /// A field of the current record, or of the new record while one is open. An unknown name is an error.
    virtual Variant getField(std::int32_t handle, std::string_view fieldName) = 0;
    /// Writes a field of the current record at once, or of the new record while one is open.
    virtual bool setFieldValue(std::int32_t handle, std::string_view fieldName, std::string_view value, bool flag1,
                               bool flag2, bool flag3) = 0;
    /// Begins a new record. Its autonumber key can be read with `getField` before `update`.
    virtual bool addNew(std::int32_t handle) = 0;
    virtual bool setNewField(std::int32_t handle, std::string_view fieldName, std::string_view value) = 0;
    /// Stores the record begun with `addNew`, which becomes current.
    virtual bool update(std::int32_t handle) = 0;
    /// Deletes the current record; moves step over it from then on.
    virtual bool deleteRecord(std::int32_t handle) = 0;

    /// A date as it stands between # and # in SQL text.
    virtual std::string getSQLDate(const Date& date) = 0;
    /// A text made fit for the single quotes of a LIKE pattern: it matches itself and nothing else.
    virtual std::string getSQLText(std::string_view text) = 0;
};

} // namespace qncal
