#include "store/SelectScope.h"

#include "store/dialect/Lexer.h"
#include "utilities/text.h"

#include <algorithm>

namespace qncal::host {

using dialect::Expression;
using dialect::FromNode;
using schema::ColumnType;
using Kind = Expression::Kind;

SelectScope::SelectScope(const dialect::Select& select, std::string_view sql, const Catalogue& catalogue)
    : select_(select), sql_(sql)
{
    for (const FromNode& node : select.from)
        collectTables(node, catalogue);
}

void SelectScope::collectTables(const FromNode& node, const Catalogue& catalogue)
{
    if (node.isJoin()) {
        collectTables(*node.left, catalogue);
        collectTables(*node.right, catalogue);
        return;
    }
    StoreTable* const table = catalogue.find(node.table);
    if (!table)
        dialect::failAt(sql_, node.offset, "there is no table " + node.table);
    const std::string& name = node.alias.empty() ? node.table : node.alias;
    if (std::ranges::any_of(tableNames_, [&](const std::string& other) { return equalsNoCase(other, name); }))
        dialect::failAt(sql_, node.offset, "the table " + name + " stands twice in the FROM clause");
    tables_.push_back(table);
    tableNames_.push_back(name);
}

std::size_t SelectScope::tableNamed(const std::string& name, std::size_t offset) const
{
    const auto found =
        std::ranges::find_if(tableNames_, [&](const std::string& other) { return equalsNoCase(other, name); });
    if (found == tableNames_.end())
        dialect::failAt(sql_, offset, "the table " + name + " is not in the FROM clause");
    return static_cast<std::size_t>(found - tableNames_.begin());
}

std::optional<SelectScope::Found> SelectScope::findColumn(const Expression& column) const
{
    std::optional<Found> found;
    for (std::size_t table = 0; table < tables_.size(); ++table) {
        if (!column.qualifier.empty() && table != tableNamed(column.qualifier, column.offset))
            continue;
        const auto place = tables_[table]->columnNames().find(column.name);
        if (!place)
            continue;
        if (found)
            dialect::failAt(sql_, column.offset, "the column " + column.name + " is in more than one table");
        found = Found{table, static_cast<std::uint16_t>(*place)};
    }
    return found;
}

void SelectScope::failUnknown(const Expression& column) const
{
    dialect::failAt(sql_, column.offset,
                    "there is no column " + (column.qualifier.empty() ? "" : column.qualifier + ".") + column.name);
}

const Expression* SelectScope::meant(const Expression& expression) const
{
    const Expression* found = &expression;
    // Aliases that stand for each other would go round for ever.
    for (std::size_t steps = 0; found && steps <= select_.items.size(); ++steps) {
        if (found->kind != Kind::column || findColumn(*found))
            return found;
        found = aliased(*found);
    }
    return nullptr;
}

const Expression* SelectScope::aliased(const Expression& column) const
{
    if (!column.qualifier.empty())
        return nullptr;
    for (const dialect::SelectItem& item : select_.items)
        if (!item.star && &item.expression != &column && equalsNoCase(item.alias, column.name))
            return &item.expression;
    return nullptr;
}

bool SelectScope::isTableColumn(const Expression& expression) const
{
    const Expression* const found = meant(expression);
    return found && found->kind == Kind::column;
}

std::optional<ColumnType> SelectScope::typeOf(const Expression& expression) const
{
    const Expression* const found = meant(expression);
    if (!found)
        return std::nullopt;
    switch (found->kind) {
    case Kind::column:
        return column(*findColumn(*found)).type;
    case Kind::comparison:
    case Kind::boolean:
    case Kind::logicalNot:
    case Kind::like:
    case Kind::in:
    case Kind::between:
    case Kind::isNull:
        return ColumnType::boolean;
    case Kind::chain:
        return isLogical(*found) ? std::optional(ColumnType::boolean) : std::nullopt;
    case Kind::call:
        // Of columns only: an alias inside might stand for the very expression it is in.
        if ((found->name == "MIN" || found->name == "MAX") && isTableColumn(found->operands.front()))
            return typeOf(found->operands.front());
        return std::nullopt;
    default:
        return std::nullopt;
    }
}

} // namespace qncal::host
