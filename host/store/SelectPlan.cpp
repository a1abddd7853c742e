#include "store/SelectPlan.h"

#include "store/dateStorage.h"

#include <algorithm>
#include <set>
#include <utility>

namespace qncal::host {

SelectPlan::SelectPlan(Parts parts, SqliteConnection& connection)
    : parts_(std::move(parts)), connection_(connection), findFirst_(parts_.columns.size()),
      findAll_(parts_.columns.size()), boundTexts_(parts_.bindings.size())
{
    for (std::size_t column = 0; column < parts_.columns.size(); ++column)
        unique_.push_back(parts_.columnNames.find(parts_.columnNames.name(column)) == column);
    std::set<std::pair<std::size_t, std::uint16_t>> seen;
    for (const PlanColumn& column : parts_.columns)
        if (column.table != PlanColumn::computed && !seen.emplace(column.table, column.column).second)
            hasTwins_ = true;
    hasDependentColumns_ = std::ranges::any_of(
        parts_.columns, [](const PlanColumn& column) { return column.table == PlanColumn::computed; });
    const std::set<StoreTable*> different(parts_.tables.begin(), parts_.tables.end());
    hasDependentColumns_ = hasDependentColumns_ || different.size() < parts_.tables.size();
    // Whatever the engine has to say against the statement is said when it is opened.
    if (!parts_.byKey)
        allRecords_ = connection_.prepareToKeep(allRecordsText());
    else if (isInKeyOrder())
        firstRecord_ = connection_.prepareToKeep(firstRecordText());
    else
        allKeys_ = connection_.prepareToKeep(allKeysText());
}

std::vector<std::string> SelectPlan::fieldNames() const
{
    std::vector<std::string> names;
    for (std::size_t column = 0; column < unique_.size(); ++column) {
        const std::string& qualified = parts_.qualifiedNames.name(column);
        names.push_back(unique_[column] || qualified.empty() ? parts_.columnNames.name(column) : qualified);
    }
    return names;
}

std::optional<std::size_t> SelectPlan::findColumn(std::string_view name) const
{
    if (const auto place = parts_.columnNames.find(name))
        return place;
    return name.find('.') == std::string_view::npos ? std::nullopt : parts_.qualifiedNames.find(name);
}

std::string SelectPlan::keyOf(std::size_t table) const
{
    return "t" + std::to_string(table) + "." + parts_.tables[table]->keyName();
}

std::string SelectPlan::keys() const
{
    std::string text;
    for (std::size_t table = 0; table < parts_.tables.size(); ++table)
        text += (table == 0 ? "" : ", ") + keyOf(table);
    return text;
}

std::string SelectPlan::columns() const
{
    std::string text;
    for (const PlanColumn& column : parts_.columns)
        text += (text.empty() ? "" : ", ") + column.sql;
    return text;
}

/// Texts compare without regard to case, also where no column of a table brings that along.
std::string SelectPlan::equality(std::size_t column) const
{
    const PlanColumn& sought = parts_.columns[column];
    return sought.sql + (sought.table == PlanColumn::computed ? " COLLATE NOCASE = " : " = ") + own(0);
}

std::string SelectPlan::whereClause(const std::string& condition) const
{
    if (parts_.where.empty() && condition.empty())
        return {};
    if (parts_.where.empty() || condition.empty())
        return " WHERE " + parts_.where + condition;
    return " WHERE (" + parts_.where + ") AND " + condition;
}

/// Equal records stand in the order of their keys, so that every run gives the same order.
std::string SelectPlan::orderClause() const
{
    std::string text;
    if (parts_.byKey)
        text = " ORDER BY " + (parts_.order.empty() ? "" : parts_.order + ", ") + keys();
    else if (!parts_.order.empty())
        text = " ORDER BY " + parts_.order;
    if (parts_.top)
        text += " LIMIT " + std::to_string(*parts_.top);
    return text;
}

std::string SelectPlan::firstRecordText() const
{
    return "SELECT " + columns() + ", " + keys() + " FROM " + parts_.from + whereClause({}) + orderClause()
           + " LIMIT 1";
}

std::string SelectPlan::moreKeysText() const
{
    return "SELECT " + keys() + " FROM " + parts_.from + whereClause(keyOf(0) + " > " + own(0)) + orderClause()
           + " LIMIT " + std::to_string(blockSize);
}

std::string SelectPlan::allKeysText() const
{
    return "SELECT " + keys() + " FROM " + parts_.from + whereClause({}) + orderClause();
}

std::string SelectPlan::recordText() const
{
    std::string from;
    for (std::size_t table = 0; table < parts_.tables.size(); ++table) {
        from += (table == 0 ? "" : " LEFT JOIN ") + quotedName(parts_.tables[table]->schema().name) + " AS t"
                + std::to_string(table);
        if (table > 0)
            from += " ON " + keyOf(table) + " = " + own(static_cast<int>(table));
    }
    return "SELECT " + columns() + ", " + keys() + " FROM " + from + " WHERE " + keyOf(0) + " = " + own(0);
}

std::string SelectPlan::allRecordsText() const
{
    return std::string("SELECT ") + (parts_.distinct ? "DISTINCT " : "") + columns() + " FROM " + parts_.from
           + whereClause({}) + (parts_.tail.empty() ? "" : " " + parts_.tail) + orderClause();
}

std::string SelectPlan::countText() const
{
    if (!parts_.top)
        return "SELECT COUNT(*) FROM " + parts_.from + whereClause({});
    return "SELECT COUNT(*) FROM (SELECT 1 FROM " + parts_.from + whereClause({}) + " LIMIT "
           + std::to_string(*parts_.top) + ")";
}

void SelectPlan::bindLiterals(SqliteStatement& statement, const dialect::Literals& literals)
{
    using dialect::Literal;
    const int last = statement.parameterCount();
    for (std::size_t i = 0; i < parts_.bindings.size() && static_cast<int>(i) < last; ++i) {
        const LiteralBinding& binding = parts_.bindings[i];
        const Literal& literal = literals[binding.literal];
        const int index = static_cast<int>(i) + 1;
        const double real = (literal.kind == Literal::Kind::real ? literal.real : static_cast<double>(literal.integer))
                            * (binding.negative ? -1 : 1);
        std::string& buffer = boundTexts_[i];
        buffer.clear();
        if (literal.kind == Literal::Kind::text) {
            statement.bind(index, std::string_view(literal.text));
        } else if (literal.kind == Literal::Kind::date || binding.use == LiteralUse::date
                   || binding.use == LiteralUse::time) {
            const Date date = literal.kind == Literal::Kind::date ? literal.date : Date(real);
            if (binding.use == LiteralUse::time)
                appendTimeStorage(date, buffer);
            else
                appendDateStorage(date, buffer);
            statement.bind(index, std::string_view(buffer));
        } else if (binding.use == LiteralUse::boolean) {
            statement.bind(index, static_cast<std::int64_t>(real != 0));
        } else if (literal.kind == Literal::Kind::integer) {
            statement.bind(index, binding.negative ? -literal.integer : literal.integer);
        } else {
            statement.bind(index, real);
        }
    }
}

template <class Text>
SqliteStatement& SelectPlan::ready(SqliteStatement& statement, const dialect::Literals& literals, const Text& text)
{
    if (!statement)
        statement = connection_.prepareToKeep(text());
    bindLiterals(statement, literals);
    return statement;
}

SqliteStatement& SelectPlan::firstRecord(const dialect::Literals& literals)
{
    return ready(firstRecord_, literals, [this] { return firstRecordText(); });
}
SqliteStatement& SelectPlan::moreKeys(const dialect::Literals& literals)
{
    return ready(moreKeys_, literals, [this] { return moreKeysText(); });
}
SqliteStatement& SelectPlan::allKeys(const dialect::Literals& literals)
{
    return ready(allKeys_, literals, [this] { return allKeysText(); });
}
SqliteStatement& SelectPlan::record(const dialect::Literals& literals)
{
    return ready(record_, literals, [this] { return recordText(); });
}
SqliteStatement& SelectPlan::allRecords(const dialect::Literals& literals)
{
    return ready(allRecords_, literals, [this] { return allRecordsText(); });
}
SqliteStatement& SelectPlan::count(const dialect::Literals& literals)
{
    return ready(count_, literals, [this] { return countText(); });
}

SqliteStatement& SelectPlan::findFirst(const dialect::Literals& literals, std::size_t column)
{
    return ready(findFirst_[column], literals, [this, column] {
        return "SELECT " + keys() + " FROM " + parts_.from + whereClause(equality(column)) + orderClause() + " LIMIT 1";
    });
}

SqliteStatement& SelectPlan::findAll(const dialect::Literals& literals, std::size_t column)
{
    return ready(findAll_[column], literals,
                 [this, column] { return "SELECT " + keys() + " FROM " + parts_.from + " WHERE " + equality(column); });
}

} // namespace qncal::host
