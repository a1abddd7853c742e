#pragma once

#include "store/Catalogue.h"
#include "store/dialect/Tree.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qncal::host {

/// What the names in a SELECT stand for: tables of its FROM clause, their columns, aliases of its column list; and
/// what type an expression has by that. Every failure is a `RunTimeError` that tells the place in the text.
class SelectScope {
public:
    struct Found {
        std::size_t table;
        std::uint16_t column;
    };

    /// All three must outlive the scope.
    SelectScope(const dialect::Select& select, std::string_view sql, const Catalogue& catalogue);

    /// The tables from left to right.
    const std::vector<StoreTable*>& tables() const { return tables_; }
    /// The alias of a table, or its name.
    const std::string& tableName(std::size_t table) const { return tableNames_[table]; }
    std::size_t tableNamed(const std::string& name, std::size_t offset) const;

    std::optional<Found> findColumn(const dialect::Expression& column) const;
    const schema::Column& column(const Found& found) const { return tables_[found.table]->column(found.column); }
    [[noreturn]] void failUnknown(const dialect::Expression& column) const;

    /// What an expression stands for: a bare name that no table has may be an alias of the column list, and that
    /// of another. None for a name that nobody knows.
    const dialect::Expression* meant(const dialect::Expression& expression) const;
    bool isTableColumn(const dialect::Expression& expression) const;
    /// The type of an expression, none when only its values tell.
    std::optional<schema::ColumnType> typeOf(const dialect::Expression& expression) const;
    static bool isLogical(const dialect::Expression& chain) { return chain.name == "AND" || chain.name == "OR"; }

private:
    void collectTables(const dialect::FromNode& node, const Catalogue& catalogue);
    const dialect::Expression* aliased(const dialect::Expression& column) const;

    const dialect::Select& select_;
    std::string_view sql_;
    std::vector<StoreTable*> tables_;
    std::vector<std::string> tableNames_;
};

} // namespace qncal::host
