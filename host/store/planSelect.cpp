#include "store/planSelect.h"

#include "store/SelectScope.h"
#include "store/dialect/Lexer.h"

#include <algorithm>
#include <initializer_list>
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
        : select_(select), sql_(sql), scope_(select, sql, catalogue)
    {
    }

    SelectPlan::Parts plan()
    {
        parts_.tables = scope_.tables();
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
        parts_.byKey = !parts_.distinct && parts_.tail.empty() && !hasAggregate();
        parts_.singleRecord = parts_.byKey && parts_.tables.size() == 1 && select_.where && givesKey(*select_.where);
        return std::move(parts_);
    }

private:
    /// Tables get their numbers in the order of the scope.
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

    LiteralUse useWith(const Expression& other) const
    {
        const auto type = scope_.typeOf(other);
        if (type == ColumnType::date)
            return LiteralUse::date;
        if (type == ColumnType::time)
            return LiteralUse::time;
        return type == ColumnType::boolean ? LiteralUse::boolean : LiteralUse::plain;
    }

    std::string literal(const Expression& expression, LiteralUse use)
    {
        if (use != LiteralUse::plain && expression.literalKind == dialect::LiteralKind::text)
            dialect::failAt(sql_, expression.offset,
                            use == LiteralUse::boolean ? "a boolean is compared with a text"
                                                       : "a date is compared with a text");
        parts_.bindings.push_back({expression.literal, expression.negative, use});
        return "?" + std::to_string(parts_.bindings.size());
    }

    /// What stands beside `other` in a comparison.
    std::string operand(const Expression& expression, const Expression& other)
    {
        return expression.kind == Kind::literal ? literal(expression, useWith(other)) : text(expression);
    }

    /// The left side of a comparison, which brings the order of texts unless a column of a table does.
    std::string subject(const Expression& expression, const Expression& other)
    {
        std::string written = operand(expression, other);
        return scope_.isTableColumn(expression) || scope_.isTableColumn(other) ? written : written + " COLLATE NOCASE";
    }

    /// A term to sort or group by: texts have one order, whether or not they come straight from a column.
    std::string sortable(const Expression& expression)
    {
        return scope_.isTableColumn(expression) ? text(expression) : text(expression) + " COLLATE NOCASE";
    }

    /// The engine would take numbers out of the texts in which dates are stored, and True is -1 in the dialect.
    std::string number(const Expression& expression)
    {
        const auto type = scope_.typeOf(expression);
        const bool isLiteral = expression.kind == Kind::literal;
        const auto is = [&](dialect::LiteralKind literal, std::initializer_list<ColumnType> types) {
            return (isLiteral && expression.literalKind == literal)
                   || (type && std::ranges::find(types, *type) != types.end());
        };
        const char* wrong = nullptr;
        if (is(dialect::LiteralKind::date, {ColumnType::date, ColumnType::time}))
            wrong = "a date";
        else if (is(dialect::LiteralKind::text, {ColumnType::text, ColumnType::memo}))
            wrong = "a text";
        else if (type == ColumnType::boolean)
            wrong = "a boolean";
        if (wrong)
            dialect::failAt(sql_, expression.offset, std::string("there is no arithmetic with ") + wrong);
        return text(expression);
    }

    std::string columnText(const SelectScope::Found& found) const
    {
        return "t" + std::to_string(found.table) + "." + quotedName(scope_.column(found).name);
    }

    std::string text(const Expression& expression)
    {
        const auto& operands = expression.operands;
        const char* const inverted = expression.negated ? " NOT" : "";
        switch (expression.kind) {
        case Kind::column: {
            const Expression* const found = scope_.meant(expression);
            if (!found)
                scope_.failUnknown(expression);
            if (found->kind == Kind::column)
                return columnText(*scope_.findColumn(*found));
            // An expression may hold its own alias, deeper down.
            if (depth_ == select_.items.size())
                scope_.failUnknown(expression);
            ++depth_;
            std::string written = text(*found);
            --depth_;
            return written;
        }
        case Kind::literal:
            return literal(expression, LiteralUse::plain);
        case Kind::boolean:
            return expression.negated ? "0" : "1";
        case Kind::null:
            return "NULL";
        case Kind::negate:
            return "(-" + number(operands[0]) + ")";
        case Kind::logicalNot:
            return "(NOT " + text(operands[0]) + ")";
        case Kind::comparison: {
            const std::string left = subject(operands[0], operands[1]);
            return "(" + left + " " + expression.name + " " + operand(operands[1], operands[0]) + ")";
        }
        case Kind::chain:
            return chain(expression);
        case Kind::like: {
            const std::string left = text(operands[0]);
            return "(" + left + inverted + " LIKE " + text(operands[1]) + ")";
        }
        case Kind::in: {
            std::string list;
            const std::string left = subject(operands[0], operands[0]);
            for (std::size_t i = 1; i < operands.size(); ++i)
                list += (i == 1 ? "" : ", ") + operand(operands[i], operands[0]);
            return "(" + left + inverted + " IN (" + list + "))";
        }
        case Kind::between: {
            const std::string left = subject(operands[0], operands[0]);
            const std::string low = operand(operands[1], operands[0]);
            return "(" + left + inverted + " BETWEEN " + low + " AND " + operand(operands[2], operands[0]) + ")";
        }
        case Kind::isNull:
            return "(" + text(operands[0]) + " IS" + inverted + " NULL)";
        case Kind::call:
            return call(expression);
        }
        scope_.failUnknown(expression);
    }

    std::string chain(const Expression& expression)
    {
        // Division of whole numbers gives a fraction; an empty field adds nothing to a text.
        const bool isText = expression.name == "&";
        std::string written;
        for (const Expression& operand : expression.operands) {
            if (!written.empty())
                written += isText ? " || " : " " + expression.name + " ";
            if (isText)
                written += "IFNULL(" + text(operand) + ", '')";
            else if (SelectScope::isLogical(expression))
                written += text(operand);
            else if (expression.name == "/" && written.empty())
                written += "CAST(" + number(operand) + " AS REAL)";
            else
                written += number(operand);
        }
        return "(" + written + ")";
    }

    std::string call(const Expression& expression)
    {
        if (expression.operands.empty())
            return "COUNT(*)";
        const Expression& operand = expression.operands[0];
        const bool counts = expression.name == "SUM" || expression.name == "AVG";
        return expression.name + "(" + (expression.distinct ? "DISTINCT " : "")
               + (counts ? number(operand) : text(operand)) + ")";
    }

    static bool holdsCall(const Expression& expression)
    {
        return expression.kind == Kind::call || std::ranges::any_of(expression.operands, holdsCall);
    }

    bool hasAggregate() const
    {
        return std::ranges::any_of(select_.items, [](const auto& item) { return holdsCall(item.expression); })
               || std::ranges::any_of(select_.orderBy, [](const auto& term) { return holdsCall(term.expression); })
               || (select_.where && holdsCall(*select_.where));
    }

    void columns()
    {
        for (const dialect::SelectItem& item : select_.items) {
            if (!item.star) {
                column(item);
                continue;
            }
            const std::size_t only =
                item.qualifier.empty() ? parts_.tables.size() : scope_.tableNamed(item.qualifier, item.offset);
            for (std::size_t table = 0; table < parts_.tables.size(); ++table)
                if (item.qualifier.empty() || table == only)
                    for (std::size_t place = 0; place < parts_.tables[table]->schema().columns.size(); ++place)
                        addColumn({table, static_cast<std::uint16_t>(place)}, {});
        }
    }

    void column(const dialect::SelectItem& item)
    {
        if (item.expression.kind == Kind::column)
            if (const auto found = scope_.findColumn(item.expression)) {
                addColumn(*found, item.alias);
                return;
            }
        PlanColumn computed;
        computed.sql = parts_.distinct ? sortable(item.expression) : text(item.expression);
        computed.type = scope_.typeOf(item.expression);
        parts_.columnNames.add(item.alias.empty() ? "Expr" + std::to_string(1000 + parts_.columns.size()) : item.alias);
        parts_.qualifiedNames.add({});
        parts_.columns.push_back(std::move(computed));
    }

    void addColumn(const SelectScope::Found& found, const std::string& alias)
    {
        const schema::Column& column = scope_.column(found);
        parts_.columnNames.add(alias.empty() ? column.name : alias);
        parts_.qualifiedNames.add(scope_.tableName(found.table) + "." + std::string(column.name));
        parts_.columns.push_back({found.table, found.column, column.type, columnText(found)});
    }

    void grouping()
    {
        for (const Expression& term : select_.groupBy)
            parts_.tail += (parts_.tail.empty() ? "GROUP BY " : ", ") + sortable(term);
        if (select_.having)
            parts_.tail += (parts_.tail.empty() ? "HAVING " : " HAVING ") + text(*select_.having);
    }

    void ordering()
    {
        for (const dialect::OrderTerm& term : select_.orderBy) {
            const PlanColumn* const place = term.place ? &parts_.columns[*term.place - 1] : nullptr;
            std::string written = place ? place->sql : sortable(term.expression);
            if (place && place->table == PlanColumn::computed)
                written += " COLLATE NOCASE";
            // True is the smaller of the two in the dialect, where it counts as -1.
            if ((place ? place->type : scope_.typeOf(term.expression)) == ColumnType::boolean)
                written = "-" + written;
            parts_.order += (parts_.order.empty() ? "" : ", ") + written + (term.descending ? " DESC" : "");
        }
    }

    /// True when the condition holds for one key at most.
    bool givesKey(const Expression& condition) const
    {
        if (condition.kind == Kind::chain && condition.name == "AND")
            return std::ranges::any_of(condition.operands, [this](const Expression& part) { return givesKey(part); });
        if (condition.kind != Kind::comparison || condition.name != "=")
            return false;
        const Expression& left = condition.operands[0];
        if (left.kind != Kind::column || condition.operands[1].kind != Kind::literal)
            return false;
        const auto found = scope_.findColumn(left);
        return found && found->column == 0;
    }

    const Select& select_;
    std::string_view sql_;
    SelectScope scope_;
    SelectPlan::Parts parts_;
    std::size_t tablesWritten_ = 0;
    std::size_t depth_ = 0; ///< of aliases that stand for aliases
};

} // namespace

SelectPlan::Parts planSelect(const Select& select, std::string_view sql, const Catalogue& catalogue)
{
    return Planner(select, sql, catalogue).plan();
}

} // namespace qncal::host
