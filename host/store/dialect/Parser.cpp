#include "store/dialect/Parser.h"

#include "store/dialect/ExpressionParser.h"
#include "store/dialect/TokenReader.h"

#include <charconv>
#include <utility>

namespace qncal::host::dialect {

namespace {

/// Reads the clauses of a statement and the joins of its tables.
class Parser {
public:
    explicit Parser(std::string_view sql) : reader_(sql) {}

    Select statement();

private:
    void prefix(Select& select);
    SelectItem item();
    std::string optionalAlias();
    FromNode fromNode();
    FromNode fromPrimary();
    void clauses(Select& select);
    OrderTerm orderTerm(Select& select);

    TokenReader reader_;
    ExpressionParser expressions_{reader_};
};

Select Parser::statement()
{
    if (!reader_.isWord("SELECT"))
        reader_.fail("only SELECT statements are allowed");
    reader_.advance();
    Select select;
    prefix(select);
    do
        select.items.push_back(item());
    while (reader_.acceptSymbol(","));
    reader_.expectWord("FROM");
    do
        select.from.push_back(fromNode());
    while (reader_.acceptSymbol(","));
    clauses(select);
    while (reader_.acceptSymbol(";")) {
    }
    if (reader_.token().kind != TokenKind::end)
        reader_.fail("the statement should end here");
    expressions_.refuseStar();
    return select;
}

void Parser::prefix(Select& select)
{
    for (;;) {
        if (reader_.acceptWord("DISTINCT")) {
            select.distinct = true;
        } else if (reader_.acceptWord("TOP")) {
            select.top = reader_.expectWholeNumber();
            select.bindsLiterals = true;
        } else if (!reader_.acceptWord("ALL")) {
            return;
        }
    }
}

SelectItem Parser::item()
{
    SelectItem result;
    result.offset = reader_.token().offset;
    if (reader_.acceptSymbol("*")) {
        result.star = true;
        return result;
    }
    result.expression = expressions_.expression();
    if (auto table = expressions_.takeStar(result.expression)) {
        result.star = true;
        result.qualifier = std::move(*table);
        return result;
    }
    result.alias = optionalAlias();
    return result;
}

std::string Parser::optionalAlias()
{
    if (reader_.acceptWord("AS") || reader_.isName())
        return reader_.expectName("a name");
    return {};
}

FromNode Parser::fromNode()
{
    const TokenReader::Nesting nesting(reader_);
    FromNode node = fromPrimary();
    for (;;) {
        const bool outer = reader_.isWord("LEFT");
        if (reader_.acceptWord("INNER") || reader_.acceptWord("LEFT")) {
            if (outer)
                reader_.acceptWord("OUTER");
            reader_.expectWord("JOIN");
        } else if (!reader_.acceptWord("JOIN")) {
            return node;
        }
        FromNode join;
        join.outer = outer;
        join.offset = reader_.token().offset;
        join.left = std::make_unique<FromNode>(std::move(node));
        join.right = std::make_unique<FromNode>(fromPrimary());
        reader_.expectWord("ON");
        join.on = expressions_.expression();
        node = std::move(join);
    }
}

FromNode Parser::fromPrimary()
{
    if (reader_.acceptSymbol("(")) {
        FromNode inner = fromNode();
        reader_.expectSymbol(")");
        return inner;
    }
    FromNode table;
    table.offset = reader_.token().offset;
    table.table = reader_.expectName("a table name");
    table.alias = optionalAlias();
    return table;
}

void Parser::clauses(Select& select)
{
    if (reader_.acceptWord("WHERE"))
        select.where = expressions_.expression();
    if (reader_.acceptWord("GROUP")) {
        reader_.expectWord("BY");
        do
            select.groupBy.push_back(expressions_.expression());
        while (reader_.acceptSymbol(","));
    }
    if (reader_.acceptWord("HAVING"))
        select.having = expressions_.expression();
    if (reader_.acceptWord("ORDER")) {
        reader_.expectWord("BY");
        do
            select.orderBy.push_back(orderTerm(select));
        while (reader_.acceptSymbol(","));
    }
}

OrderTerm Parser::orderTerm(Select& select)
{
    OrderTerm term;
    const Token start = reader_.token();
    term.expression = expressions_.expression();
    if (term.expression.kind == Expression::Kind::literal && start.kind == TokenKind::number) {
        std::size_t place = 0;
        std::from_chars(start.body.data(), start.body.data() + start.body.size(), place);
        if (place < 1 || place > select.items.size())
            reader_.failAt(start.offset, "no such place in the column list");
        term.place = place;
        select.bindsLiterals = true;
    }
    term.descending = reader_.acceptWord("DESC");
    if (!term.descending)
        reader_.acceptWord("ASC");
    return term;
}

} // namespace

Select parseSelect(std::string_view sql) { return Parser(sql).statement(); }

} // namespace qncal::host::dialect
