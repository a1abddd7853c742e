#pragma once

#include "store/Catalogue.h"
#include "store/HandleTable.h"
#include "store/SelectPlan.h"
#include "store/SqliteConnection.h"
#include "store/WriteBuffer.h"
#include "store/dialect/shape.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>

namespace qncal::host {

/// What an open database consists of.
class StoreEngine {
public:
    struct Limits {
        int busyTimeout;          ///< milliseconds
        std::int64_t largestFile; ///< bytes, 0 for none
        std::int64_t longestLog;  ///< bytes
    };
    StoreEngine(const std::string& path, SqliteConnection::Access access, std::span<const schema::Table> tables,
                std::int32_t version, const Limits& limits);

    /// The plan of an SQL text, whose literals are then in `literals()`. A text of a known shape is not parsed again.
    std::shared_ptr<SelectPlan> plan(std::string_view sql);
    const dialect::Literals& literals() const { return text_.literals(); }

    /// Writes the log of the file back as far as nobody else reads it.
    void checkpoint();
    /// To be called when a record set was closed: the moment for what may not stand between two writes.
    void recordSetClosed();
    /// To be called when a record was deleted.
    void recordDeleted();
    /// The last duties of a database that closes.
    void finish();

    HandleTable& handles() { return handles_; }
    WriteBuffer& writes() { return writes_; }
    StoreStatistics& statistics() { return statistics_; }
    const Catalogue& catalogue() const { return catalogue_; }

private:
    void forgetDeletions();

    SqliteConnection connection_;
    std::unique_ptr<int> logPages_; ///< pages of the log after the last write; the engine holds its address
    std::int64_t mostLogPages_;
    StoreStatistics statistics_;
    Catalogue catalogue_;
    std::unordered_map<std::string, std::shared_ptr<SelectPlan>> plans_;
    dialect::ShapedText text_;
    HandleTable handles_;
    WriteBuffer writes_{connection_, statistics_};
};

} // namespace qncal::host
