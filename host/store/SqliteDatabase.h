#pragma once

#include "core/DatabaseService.h"
#include "core/schema.h"
#include "store/StoreStatistics.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace qncal::host {

class RecordCursor;
class StoreEngine;

/// The `DatabaseService` over an SQLite database, in a file or in memory.
///
/// Writes to existing records are combined on their way to the engine. Nobody who goes through this object can
/// tell; for others (another process, an SQL tool) they are there after `flush`, which a host calls at each turn
/// of its event loop. Until then the others cannot write. They must not be on the same thread: they would wait in
/// vain. A file is in WAL mode; its log is written back by `idle` and `close`.
///
/// Objects are used by one thread at a time. Several objects and processes may share a file.
class SqliteDatabase : public DatabaseService {
public:
    struct Options {
        std::span<const schema::Table> tables = schema::tables();
        std::int32_t version = schema::version;
        int busyTimeout = 5000;       ///< milliseconds to wait for another process
        std::int64_t largestFile = 0; ///< bytes that the file may grow to; 0 for as many as the disk holds
        /// Bytes of the log from which on it is written back when no quiet moment comes.
        std::int64_t longestLog = 64 << 20;
    };

    /// Each throws `RunTimeError` that names the file: when it is missing (open), is no database, is of a newer
    /// version, cannot be written, or is locked. An older version is brought up to date.
    static std::unique_ptr<SqliteDatabase> open(const std::string& path);
    static std::unique_ptr<SqliteDatabase> open(const std::string& path, const Options& options);
    /// Makes a new file; an existing one is opened.
    static std::unique_ptr<SqliteDatabase> create(const std::string& path);
    static std::unique_ptr<SqliteDatabase> create(const std::string& path, const Options& options);
    static std::unique_ptr<SqliteDatabase> openInMemory();
    static std::unique_ptr<SqliteDatabase> openInMemory(const Options& options);

    ~SqliteDatabase() override;

    /// Writes everything out and closes all record sets. Throws when the last writes fail; closed it is all the same.
    void close();
    /// Hands buffered writes to the engine.
    void flush();
    /// For quiet moments: writes the log back into the database file.
    void idle();
    const StoreStatistics& statistics() const;
    /// The names by which `getField` knows the fields of a record set, in their order. A name that an earlier
    /// field has comes with its table, as in "Companies.CompanyID".
    std::vector<std::string> fieldNames(std::int32_t handle);

    bool isConnected() override;
    std::int32_t openRecordset(std::string_view sql, std::int32_t cursor, std::int32_t lock, bool showError,
                               std::string_view errorText, bool keep) override;
    /// A handle that is not open is none to close: nothing happens.
    void closeRecordset(std::int32_t handle) override;
    bool isRecordsetOpen(std::int32_t handle) override;
    bool hasRecords(std::int32_t handle) override;
    bool isRecordsetEmpty(std::int32_t handle) override;
    bool isEOF(std::int32_t handle) override;
    bool moveNext(std::int32_t handle) override;
    bool movePrevious(std::int32_t handle) override;
    std::int32_t getRecordCount(std::int32_t handle) override;
    std::int32_t getPosition(std::int32_t handle) override;
    bool setPosition(std::int32_t handle, std::int32_t position) override;
    bool findRecord(std::int32_t handle, std::string_view fieldName, std::string_view value, std::string& reserved1,
                    std::string& reserved2, std::string& reserved3, std::string& reserved4) override;
    Variant getField(std::int32_t handle, std::string_view fieldName) override;
    bool setFieldValue(std::int32_t handle, std::string_view fieldName, std::string_view value, bool flag1, bool flag2,
                       bool flag3) override;
    bool addNew(std::int32_t handle) override;
    bool setNewField(std::int32_t handle, std::string_view fieldName, std::string_view value) override;
    bool update(std::int32_t handle) override;
    bool deleteRecord(std::int32_t handle) override;
    std::string getSQLDate(const Date& date) override;
    std::string getSQLText(std::string_view text) override;

private:
    explicit SqliteDatabase(std::unique_ptr<StoreEngine> engine);
    StoreEngine& engine() const;
    RecordCursor& cursor(std::int32_t handle);
    RecordCursor& settledCursor(std::int32_t handle);
    RecordCursor& ownSettledCursor(std::int32_t handle);
    void flushToClose(std::int32_t handle);

    std::unique_ptr<StoreEngine> engine_; ///< none once closed
};

} // namespace qncal::host
