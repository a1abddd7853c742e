#pragma once

#include "core/schema.h"
#include "store/Catalogue.h"
#include "store/SqliteConnection.h"
#include "store/dialect/shape.h"
#include "utilities/NameIndex.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qncal::host {

/// What a literal is compared with, which decides how it is handed to the engine.
enum class LiteralUse : std::uint8_t { plain, date, time, boolean };

struct LiteralBinding {
    std::size_t literal = 0;
    bool negative = false;
    LiteralUse use = LiteralUse::plain;
};

/// A column of a record set.
struct PlanColumn {
    static constexpr std::size_t computed = static_cast<std::size_t>(-1);
    std::size_t table = computed;           ///< place among the plan's tables, `computed` for an expression
    std::uint16_t column = 0;               ///< place in the table
    std::optional<schema::ColumnType> type; ///< none when only the value itself tells
    std::string sql;
};

/// A SELECT of the dialect in terms of the engine: parts of SQL text out of which the statements are put together
/// that a record set needs, prepared once and shared by all record sets of the same shape.
///
/// A plan `byKey` identifies each record by the keys of its tables, so that records are read when they are looked
/// at and can be written. Otherwise (grouped, distinct and computed sets) the records are copies.
class SelectPlan {
public:
    struct Parts {
        std::vector<StoreTable*> tables;
        std::vector<PlanColumn> columns;
        NameIndex columnNames;
        NameIndex qualifiedNames; ///< "Table.Column"; empty texts for computed columns
        std::vector<LiteralBinding> bindings;
        std::string from, where, tail, order; ///< `tail` is GROUP BY and HAVING; all without leading blank
        bool distinct = false;
        bool byKey = false;
        bool singleRecord = false; ///< at most one record: the key is given
        std::optional<std::int64_t> top;
    };
    SelectPlan(Parts parts, SqliteConnection& connection);

    const Parts& parts() const { return parts_; }
    std::size_t keyWidth() const { return parts_.tables.size(); }
    /// Records come in the order of their keys, so that they can be fetched in blocks.
    bool isInKeyOrder() const { return parts_.byKey && keyWidth() == 1 && parts_.order.empty() && !parts_.top; }
    /// Records are found as they are walked over; any other set is fixed when it is opened.
    bool isStreaming() const { return isInKeyOrder() && parts_.where.empty(); }
    std::optional<std::size_t> findColumn(std::string_view name) const;
    /// False when an earlier column has the same name.
    bool isUnique(std::size_t column) const { return unique_[column]; }
    /// True when a column of a table stands in the set more than once.
    bool hasTwins() const { return hasTwins_; }
    /// True when a write to one column may show in another: it is computed, or a table stands in the set twice.
    bool hasDependentColumns() const { return hasDependentColumns_; }
    /// The state of the database that the last statement of the plan saw.
    std::uint32_t dataVersion() const { return connection_.dataVersion(); }
    std::vector<std::string> fieldNames() const;

    /// The statements. Each comes with the literals bound; parameters of its own follow at `ownParameter`.
    /// The first record's columns and its key, in key order.
    SqliteStatement& firstRecord(const dialect::Literals& literals);
    /// The next keys after one (own parameter 0), in key order.
    SqliteStatement& moreKeys(const dialect::Literals& literals);
    /// The keys of all records in their order.
    SqliteStatement& allKeys(const dialect::Literals& literals);
    /// One record's columns by its keys (own parameters), followed by the keys that are still there.
    SqliteStatement& record(const dialect::Literals& literals);
    /// All records' columns in their order.
    SqliteStatement& allRecords(const dialect::Literals& literals);
    SqliteStatement& count(const dialect::Literals& literals);
    /// The key of the first record whose column equals own parameter 0, in key order.
    SqliteStatement& findFirst(const dialect::Literals& literals, std::size_t column);
    /// The keys of all records of the table whose column equals own parameter 0, whether or not they are in the set.
    SqliteStatement& findAll(const dialect::Literals& literals, std::size_t column);

    int ownParameter(int place) const { return static_cast<int>(parts_.bindings.size()) + 1 + place; }
    static constexpr int blockSize = 256;

private:
    /// Prepares a statement when it is wanted for the first time, and binds the literals.
    template <class Text>
    SqliteStatement& ready(SqliteStatement& statement, const dialect::Literals& literals, const Text& text);
    void bindLiterals(SqliteStatement& statement, const dialect::Literals& literals);
    std::string own(int place) const { return "?" + std::to_string(ownParameter(place)); }
    std::string keyOf(std::size_t table) const;
    std::string keys() const;
    std::string columns() const;
    std::string whereClause(const std::string& condition) const;
    std::string orderClause() const;
    std::string equality(std::size_t column) const;
    std::string firstRecordText() const;
    std::string moreKeysText() const;
    std::string allKeysText() const;
    std::string recordText() const;
    std::string allRecordsText() const;
    std::string countText() const;

    Parts parts_;
    SqliteConnection& connection_;
    SqliteStatement firstRecord_, moreKeys_, allKeys_, record_, allRecords_, count_;
    std::vector<bool> unique_;
    bool hasTwins_ = false;
    bool hasDependentColumns_ = false;
    std::vector<SqliteStatement> findFirst_, findAll_; ///< by column
    std::vector<std::string> boundTexts_;              ///< dates and times as bound, until the next binding
};

} // namespace qncal::host
