#include "store/SqliteDatabase.h"
#include "utilities/RunTimeError.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

/// Any text as a SELECT: it opens a record set that can be walked, or is refused with a run-time error.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using qncal::DatabaseService;
    static const auto database = qncal::host::SqliteDatabase::openInMemory();
    try {
        const std::string_view sql(reinterpret_cast<const char*>(data), size);
        const std::int32_t handle =
            database->openRecordset(sql, DatabaseService::cursorType, DatabaseService::readOnly, true, {}, true);
        while (!database->isEOF(handle))
            database->moveNext(handle);
        database->closeRecordset(handle);
    } catch (const qncal::RunTimeError&) { // refused
    }
    return 0;
}
