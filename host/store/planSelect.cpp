#include "store/planSelect.h"

#include "store/dialect/Lexer.h"
#include "utilities/text.h"

#include <algorithm>
#include <utility>

namespace qncal::host {

namespace {

using dialect::Expression;
using dialect::FromNode;
using dialect::Select;
using schema::ColumnType;
using Kind = Expression::Kind;

class Planner {
public:
    Planner(const Select& select, std::string_view sql, const Catalogue& catalogue)
        : select_(select), sql_(sql), catalogue_(catalogue)
    {
    }

    SelectPlan::Parts plan()
    {
        for (const FromNode& node : select_.from) {
            collectTables(node);
        }
        parts_.distinct = select_.distinct;
        parts_.top = select_.top;
        for (const FromNode& node : select_.from)
            parts_.from += (parts_.from.empty() ? "" : " CROSS JOIN ") + fromText(node);
        if (select_.where)
            parts_.where = text(*select_.where);
        columns();
        if (parts_.columns.empty())
            dialect::failAt(sql_, 0, "no columns");
        grouping();
        ordering();
        parts_.byKey = !parts_.distinct && !grouped_ && parts_.tail.empty();
        parts_.singleRecord = parts_.byKey && parts_.tables.size() == 1 && select_.where && givesKey(*select_.where);
        return std::move(parts_);
    }

private:
    struct Found {
        std::size_t table;
        std::uint16_t column;
    };

    void collectTables(const FromNode& node)
    {
        if (node.isJoin()) {
            collectTables(*node.left);
            collectTables(*node.right);
            return;
        }
        StoreTable* const table = catalogue_.find(node.table);
        if (!table)
            dialect::failAt(sql_, node.offset, "there is no table " + node.table);
        const std::string& name = node.alias.empty() ? node.table : node.alias;
        for (const std::string& other : tableNames_)
            if (equalsNoCase(other, name))
                dialect::failAt(sql_, node.offset, "the table " + name + " stands twice in the FROM clause");
        parts_.tables.push_back(table);
        tableNames_.push_back(name);
    }

    /// Tables get their numbers in the order of `collectTables`.
    std::string fromText(const FromNode& node)
    {
        if (!node.isJoin()) {
            const std::size_t table = tablesWritten_++;
            return quotedName(parts_.tables[table]->schema().name) + " AS t" + std::to_string(table);
        }
        std::string left = fromText(*node.left);
        std::string right = fromText(*node.right);
        if (node.right->isJoin())
            right = "(" + right + ")";
        return left + (node.outer ? " LEFT JOIN " : " JOIN ") + right + " ON " + text(node.on);
    }

    std::optional<std::size_t> findTable(std::string_view name) const
    {
        for (std::size_t table = 0; table < tableNames_.size(); ++table)
            if (equalsNoCase(tableNames_[table], name))
                return table;
        return std::nullopt;
    }

    std::size_t tableNamed(const std::string& name, std::size_t offset) const
    {
        const auto table = findTable(name);
        if (!table)
            dialect::failAt(sql_, offset, "the table " + name + " is not in the FROM clause");
        return *table;
    }

    std::optional<Found> findColumn(const Expression& column) const
    {
        std::optional<Found> found;
        for (std::size_t table = 0; table < parts_.tables.size(); ++table) {
            if (!column.qualifier.empty() && table != tableNamed(column.qualifier, column.offset))
                continue;
            const auto place = parts_.tables[table]->columnNames().find(column.name);
            if (!place)
                continue;
            if (found)
                dialect::failAt(sql_, column.offset, "the column " + column.name + " is in more than one table");
            found = Found{table, static_cast<std::uint16_t>(*place)};
        }
        return found;
    }

    [[noreturn]] void unknownColumn(const Expression& column) const
    {
        dialect::failAt(sql_, column.offset,
                        "there is no column " + (column.qualifier.empty() ? "" : column.qualifier + ".") + column.name);
    }

    const schema::Column& schemaColumn(const Found& found) const
    {
        return parts_.tables[found.table]->column(found.column);
    }

    /// The expression that a bare name stands for when it is an alias of the column list.
    const Expression* aliased(const Expression& column) const
    {
        if (!column.qualifier.empty())
            return nullptr;
        for (const dialect::SelectItem& item : select_.items)
            if (!item.star && &item.expression != &column && equalsNoCase(item.alias, column.name))
                return &item.expression;
        return nullptr;
    }

    std::optional<ColumnType> typeOf(const Expression& expression) const
    {
        switch (expression.kind) {
        case Kind::column: {
            const auto found = findColumn(expression);
            return found ? std::optional(schemaColumn(*found).type) : std::nullopt;
        }
        case Kind::boolean:
        case Kind::logicalNot:
        case Kind::like:
        case Kind::in:
        case Kind::between:
        case Kind::isNull:
            return ColumnType::boolean;
        case Kind::binary: {
            static constexpr std::string_view arithmetic = "+-*/&";
            if (arithmetic.find(expression.name) == std::string_view::npos)
                return ColumnType::boolean;
            return std::nullopt;
        }
        case Kind::call:
            if (expression.name == "MIN" || expression.name == "MAX")
                return typeOf(expression.operands.front());
            return std::nullopt;
        default:
            return std::nullopt;
        }
    }

    LiteralUse useWith(const Expression& other) const
    {
        const auto type = typeOf(other);
        if (type == ColumnType::date)
            return LiteralUse::date;
        if (type == ColumnType::time)
            return LiteralUse::time;
        return type == ColumnType::boolean ? LiteralUse::boolean : LiteralUse::plain;
    }

    std::string literal(const Expression& expression, LiteralUse use)
    {
        parts_.bindings.push_back({expression.literal, expression.negative, use});
        return "?" + std::to_string(parts_.bindings.size());
    }

    std::string operand(const Expression& expression, const Expression& other)
    {
        if (expression.kind != Kind::literal)
            return text(expression);
        const std::string parameter = literal(expression, useWith(other));
        // Without a column that brings its own order, texts still compare as they do in columns.
        return other.kind != Kind::column ? parameter + " COLLATE NOCASE" : parameter;
    }

    std::string columnText(const Found& found) const
    {
        return "t" + std::to_string(found.table) + "." + quotedName(schemaColumn(found).name);
    }

    std::string text(const Expression& expression)
    {
        const auto& operands = expression.operands;
        const char* const inverted = expression.negated ? " NOT" : "";
        switch (expression.kind) {
        case Kind::column: {
            if (const auto found = findColumn(expression))
                return columnText(*found);
            if (const Expression* const meant = aliased(expression); meant && depth_ < select_.items.size()) {
                ++depth_;
                std::string written = text(*meant);
                --depth_;
                return written;
            }
            unknownColumn(expression);
        }
        case Kind::literal:
            return literal(expression, LiteralUse::plain);
        case Kind::boolean:
            return expression.negated ? "0" : "1";
        case Kind::null:
            return "NULL";
        case Kind::negate:
            return "(-" + text(operands[0]) + ")";
        case Kind::logicalNot:
            return "(NOT " + text(operands[0]) + ")";
        case Kind::binary: {
            const std::string left = operand(operands[0], operands[1]);
            const std::string right = operand(operands[1], operands[0]);
            if (expression.name == "&")
                return "(IFNULL(" + left + ", '') || IFNULL(" + right + ", ''))";
            if (expression.name == "/")
                return "(CAST(" + left + " AS REAL) / " + right + ")";
            return "(" + left + " " + expression.name + " " + right + ")";
        }
        case Kind::like: {
            const std::string subject = text(operands[0]);
            return "(" + subject + inverted + " LIKE " + text(operands[1]) + ")";
        }
        case Kind::in: {
            std::string list;
            const std::string subject = text(operands[0]);
            for (std::size_t i = 1; i < operands.size(); ++i)
                list += (i == 1 ? "" : ", ") + operand(operands[i], operands[0]);
            return "(" + subject + inverted + " IN (" + list + "))";
        }
        case Kind::between: {
            const std::string subject = text(operands[0]);
            const std::string low = operand(operands[1], operands[0]);
            return "(" + subject + inverted + " BETWEEN " + low + " AND " + operand(operands[2], operands[0]) + ")";
        }
        case Kind::isNull:
            return "(" + text(operands[0]) + " IS" + inverted + " NULL)";
        case Kind::call:
            grouped_ = true;
            if (operands.empty())
                return "COUNT(*)";
            return expression.name + "(" + (expression.distinct ? "DISTINCT " : "") + text(operands[0]) + ")";
        }
        unknownColumn(expression);
    }

    void columns()
    {
        for (const dialect::SelectItem& item : select_.items) {
            if (!item.star) {
                column(item);
                continue;
            }
            const std::size_t only =
                item.qualifier.empty() ? parts_.tables.size() : tableNamed(item.qualifier, item.offset);
            for (std::size_t table = 0; table < parts_.tables.size(); ++table)
                if (item.qualifier.empty() || table == only)
                    for (std::size_t place = 0; place < parts_.tables[table]->schema().columns.size(); ++place)
                        addColumn({table, static_cast<std::uint16_t>(place)}, {});
        }
    }

    void column(const dialect::SelectItem& item)
    {
        if (item.expression.kind == Kind::column)
            if (const auto found = findColumn(item.expression)) {
                addColumn(*found, item.alias);
                return;
            }
        PlanColumn computed;
        computed.sql = text(item.expression);
        computed.type = typeOf(item.expression);
        parts_.columnNames.add(item.alias.empty() ? "Expr" + std::to_string(1000 + parts_.columns.size()) : item.alias);
        parts_.qualifiedNames.add({});
        parts_.columns.push_back(std::move(computed));
    }

    void addColumn(const Found& found, const std::string& alias)
    {
        const schema::Column& column = schemaColumn(found);
        parts_.columnNames.add(alias.empty() ? column.name : alias);
        parts_.qualifiedNames.add(tableNames_[found.table] + "." + std::string(column.name));
        parts_.columns.push_back({found.table, found.column, column.type, columnText(found)});
    }

    void grouping()
    {
        for (const Expression& term : select_.groupBy)
            parts_.tail += (parts_.tail.empty() ? "GROUP BY " : ", ") + text(term);
        if (select_.having)
            parts_.tail += (parts_.tail.empty() ? "HAVING " : " HAVING ") + text(*select_.having);
    }

    void ordering()
    {
        for (const dialect::OrderTerm& term : select_.orderBy) {
            const Expression* expression = &term.expression;
            std::string written;
            if (term.place) {
                written = parts_.columns[*term.place - 1].sql;
            } else {
                written = text(*expression);
                // True is the smaller of the two in the dialect, where it counts as -1.
                if (typeOf(*expression) == ColumnType::boolean)
                    written = "-" + written;
            }
            parts_.order += (parts_.order.empty() ? "" : ", ") + written + (term.descending ? " DESC" : "");
        }
    }

    /// True when the condition holds for one key at most.
    bool givesKey(const Expression& condition) const
    {
        if (condition.kind != Kind::binary)
            return false;
        if (condition.name == "AND")
            return givesKey(condition.operands[0]) || givesKey(condition.operands[1]);
        const Expression& left = condition.operands[0];
        const Expression& right = condition.operands[1];
        if (condition.name != "=" || left.kind != Kind::column || right.kind != Kind::literal)
            return false;
        const auto found = findColumn(left);
        return found && found->column == 0;
    }

    const Select& select_;
    std::string_view sql_;
    const Catalogue& catalogue_;
    SelectPlan::Parts parts_;
    std::vector<std::string> tableNames_; ///< alias or name
    std::size_t tablesWritten_ = 0;
    std::size_t depth_ = 0; ///< of aliases that stand for aliases
    bool grouped_ = false;
};

} // namespace

SelectPlan::Parts planSelect(const Select& select, std::string_view sql, const Catalogue& catalogue)
{
    return Planner(select, sql, catalogue).plan();
}

} // namespace qncal::host
