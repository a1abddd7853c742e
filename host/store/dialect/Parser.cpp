#include "store/dialect/Parser.h"

#include "store/dialect/Lexer.h"
#include "utilities/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

namespace qncal::host::dialect {

namespace {

constexpr std::array reservedWords{"SELECT", "DISTINCT", "TOP",  "FROM", "WHERE", "GROUP", "BY",   "HAVING", "ORDER",
                                   "INNER",  "LEFT",     "JOIN", "ON",   "AS",    "AND",   "OR",   "NOT",    "LIKE",
                                   "IN",     "BETWEEN",  "IS",   "NULL", "ASC",   "DESC",  "TRUE", "FALSE",  "OUTER"};
constexpr std::array aggregates{"COUNT", "SUM", "MIN", "MAX", "AVG"};
constexpr std::array comparisons{"=", "<>", "<=", ">=", "<", ">"};
/// Deep enough for any real statement, shallow enough for the stack.
constexpr int deepestNesting = 200;
/// What the engine takes in: conditions joined by one operator, and levels of parentheses.
constexpr std::size_t longestChain = 800;
constexpr std::size_t mostLevels = 24;

std::string upper(std::string_view word)
{
    std::string result(word);
    std::ranges::transform(result, result.begin(),
                           [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; });
    return result;
}

class Parser {
public:
    explicit Parser(std::string_view sql) : sql_(sql), lexer_(sql) { advance(); }

    Select statement()
    {
        if (!isWord("SELECT"))
            fail("only SELECT statements are allowed");
        advance();
        Select select;
        prefix(select);
        do
            select.items.push_back(item());
        while (acceptSymbol(","));
        expectWord("FROM");
        do
            select.from.push_back(fromNode());
        while (acceptSymbol(","));
        clauses(select);
        while (acceptSymbol(";")) {
        }
        if (token_.kind != TokenKind::end)
            fail("the statement should end here");
        if (starQualifier_)
            failAt(sql_, starOffset_, "all columns cannot stand here");
        return select;
    }

private:
    /// Guards the recursion of expressions and joins.
    class Nesting {
    public:
        explicit Nesting(Parser& parser) : parser_(parser)
        {
            if (++parser_.nesting_ > deepestNesting)
                parser_.fail("nested too deeply");
        }
        ~Nesting() { --parser_.nesting_; }
        Nesting(const Nesting&) = delete;
        Nesting& operator=(const Nesting&) = delete;

    private:
        Parser& parser_;
    };

    [[noreturn]] void fail(const std::string& what) const { failAt(sql_, token_.offset, what); }

    void advance()
    {
        if (token_.isLiteral())
            ++literals_;
        token_ = lexer_.next();
    }
    bool isWord(std::string_view word) const
    {
        return token_.kind == TokenKind::name && equalsNoCase(token_.body, word);
    }
    bool isSymbol(std::string_view symbol) const { return token_.kind == TokenKind::symbol && token_.body == symbol; }
    bool acceptWord(std::string_view word)
    {
        const bool found = isWord(word);
        if (found)
            advance();
        return found;
    }
    bool acceptSymbol(std::string_view symbol)
    {
        const bool found = isSymbol(symbol);
        if (found)
            advance();
        return found;
    }
    void expectWord(const std::string& word)
    {
        if (!acceptWord(word))
            fail(word + " expected");
    }
    void expectSymbol(const std::string& symbol)
    {
        if (!acceptSymbol(symbol))
            fail(symbol + " expected");
    }
    bool isReserved() const
    {
        return token_.kind == TokenKind::name && std::ranges::any_of(reservedWords, [this](const char* word) {
                   return equalsNoCase(token_.body, word);
               });
    }
    bool isName() const
    {
        return token_.kind == TokenKind::quotedName || (token_.kind == TokenKind::name && !isReserved());
    }
    std::string expectName(const char* what)
    {
        if (!isName())
            fail(std::string(what) + " expected");
        std::string name(token_.body);
        advance();
        return name;
    }
    std::int64_t expectWholeNumber()
    {
        std::int64_t number = 0;
        const auto [end, error] = std::from_chars(token_.body.data(), token_.body.data() + token_.body.size(), number);
        if (token_.kind != TokenKind::number || error != std::errc{} || end != token_.body.data() + token_.body.size())
            fail("a whole number expected");
        advance();
        return number;
    }
    std::string optionalAlias()
    {
        if (acceptWord("AS") || isName())
            return expectName("a name");
        return {};
    }

    void prefix(Select& select)
    {
        for (;;) {
            if (acceptWord("DISTINCT")) {
                select.distinct = true;
            } else if (acceptWord("TOP")) {
                select.top = expectWholeNumber();
                select.bindsLiterals = true;
            } else if (!acceptWord("ALL")) {
                return;
            }
        }
    }

    SelectItem item()
    {
        SelectItem result;
        result.offset = token_.offset;
        if (acceptSymbol("*")) {
            result.star = true;
            return result;
        }
        result.expression = expression();
        if (starQualifier_ && result.expression.kind == Expression::Kind::column && result.expression.name.empty()) {
            result.star = true;
            result.qualifier = std::move(*starQualifier_);
            starQualifier_.reset();
            return result;
        }
        result.alias = optionalAlias();
        return result;
    }

    FromNode fromNode()
    {
        const Nesting nesting(*this);
        FromNode node = fromPrimary();
        for (;;) {
            const bool outer = isWord("LEFT");
            if (acceptWord("INNER") || acceptWord("LEFT")) {
                if (outer)
                    acceptWord("OUTER");
                expectWord("JOIN");
            } else if (!acceptWord("JOIN")) {
                return node;
            }
            FromNode join;
            join.outer = outer;
            join.offset = token_.offset;
            join.left = std::make_unique<FromNode>(std::move(node));
            join.right = std::make_unique<FromNode>(fromPrimary());
            expectWord("ON");
            join.on = expression();
            node = std::move(join);
        }
    }

    FromNode fromPrimary()
    {
        if (acceptSymbol("(")) {
            FromNode inner = fromNode();
            expectSymbol(")");
            return inner;
        }
        FromNode table;
        table.offset = token_.offset;
        table.table = expectName("a table name");
        table.alias = optionalAlias();
        return table;
    }

    void clauses(Select& select)
    {
        if (acceptWord("WHERE"))
            select.where = expression();
        if (acceptWord("GROUP")) {
            expectWord("BY");
            do
                select.groupBy.push_back(expression());
            while (acceptSymbol(","));
        }
        if (acceptWord("HAVING"))
            select.having = expression();
        if (acceptWord("ORDER")) {
            expectWord("BY");
            do
                select.orderBy.push_back(orderTerm(select));
            while (acceptSymbol(","));
        }
    }

    OrderTerm orderTerm(Select& select)
    {
        OrderTerm term;
        const Token start = token_;
        term.expression = expression();
        if (term.expression.kind == Expression::Kind::literal && start.kind == TokenKind::number) {
            std::size_t place = 0;
            std::from_chars(start.body.data(), start.body.data() + start.body.size(), place);
            if (place < 1 || place > select.items.size())
                failAt(sql_, start.offset, "no such place in the column list");
            term.place = place;
            select.bindsLiterals = true;
        }
        term.descending = acceptWord("DESC");
        if (!term.descending)
            acceptWord("ASC");
        return term;
    }

    Expression make(Expression::Kind kind, std::size_t offset) const
    {
        Expression result;
        result.kind = kind;
        result.offset = offset;
        return result;
    }
    void add(Expression& parent, Expression operand) const
    {
        parent.levels = std::max(parent.levels, operand.levels + 1);
        if (parent.levels > mostLevels)
            failAt(sql_, operand.offset, "nested too deeply");
        if (parent.operands.size() == longestChain && parent.kind == Expression::Kind::chain)
            failAt(sql_, operand.offset, "more than " + std::to_string(longestChain) + " in a row");
        parent.operands.push_back(std::move(operand));
    }
    /// Puts another operand behind those that the same operator joins already.
    void join(Expression& left, const char* symbol, Expression right) const
    {
        if (left.kind != Expression::Kind::chain || left.name != symbol || left.isClosed) {
            Expression chain = make(Expression::Kind::chain, left.offset);
            chain.name = symbol;
            add(chain, std::move(left));
            left = std::move(chain);
        }
        add(left, std::move(right));
    }

    Expression expression()
    {
        const Nesting nesting(*this);
        Expression left = conjunction();
        while (acceptWord("OR"))
            join(left, "OR", conjunction());
        return left;
    }

    Expression conjunction()
    {
        Expression left = negation();
        while (acceptWord("AND"))
            join(left, "AND", negation());
        return left;
    }

    Expression negation()
    {
        const Nesting nesting(*this);
        const std::size_t offset = token_.offset;
        if (!acceptWord("NOT"))
            return predicate();
        Expression result = make(Expression::Kind::logicalNot, offset);
        add(result, negation());
        return result;
    }

    Expression predicate()
    {
        Expression left = concatenation();
        for (;;) {
            const auto comparison =
                std::ranges::find_if(comparisons, [this](const char* symbol) { return isSymbol(symbol); });
            if (comparison != comparisons.end()) {
                advance();
                const std::size_t offset = left.offset;
                Expression compared = test(Expression::Kind::comparison, offset, false, std::move(left));
                compared.name = *comparison;
                add(compared, concatenation());
                left = std::move(compared);
                continue;
            }
            const std::size_t offset = left.offset;
            if (acceptWord("IS")) {
                Expression test = make(Expression::Kind::isNull, offset);
                test.negated = acceptWord("NOT");
                expectWord("NULL");
                add(test, std::move(left));
                left = std::move(test);
                continue;
            }
            const bool negated = acceptWord("NOT");
            if (acceptWord("LIKE")) {
                left = test(Expression::Kind::like, offset, negated, std::move(left));
                add(left, concatenation());
            } else if (acceptWord("IN")) {
                left = test(Expression::Kind::in, offset, negated, std::move(left));
                expectSymbol("(");
                do
                    add(left, concatenation());
                while (acceptSymbol(","));
                expectSymbol(")");
            } else if (acceptWord("BETWEEN")) {
                left = test(Expression::Kind::between, offset, negated, std::move(left));
                add(left, concatenation());
                expectWord("AND");
                add(left, concatenation());
            } else if (negated) {
                fail("LIKE, IN or BETWEEN expected");
            } else {
                return left;
            }
        }
    }

    Expression test(Expression::Kind kind, std::size_t offset, bool negated, Expression operand) const
    {
        Expression result = make(kind, offset);
        result.negated = negated;
        add(result, std::move(operand));
        return result;
    }

    Expression concatenation()
    {
        Expression left = sum();
        while (acceptSymbol("&"))
            join(left, "&", sum());
        return left;
    }

    Expression sum()
    {
        Expression left = product();
        for (;;) {
            if (acceptSymbol("+"))
                join(left, "+", product());
            else if (acceptSymbol("-"))
                join(left, "-", product());
            else
                return left;
        }
    }

    Expression product()
    {
        Expression left = factor();
        for (;;) {
            if (acceptSymbol("*"))
                join(left, "*", factor());
            else if (acceptSymbol("/"))
                join(left, "/", factor());
            else
                return left;
        }
    }

    Expression factor()
    {
        const Nesting nesting(*this);
        const std::size_t offset = token_.offset;
        if (acceptSymbol("+"))
            return factor();
        if (!acceptSymbol("-"))
            return primary();
        Expression operand = factor();
        if (operand.kind == Expression::Kind::literal) {
            operand.negative = !operand.negative;
            return operand;
        }
        Expression result = make(Expression::Kind::negate, offset);
        add(result, std::move(operand));
        return result;
    }

    Expression primary()
    {
        const std::size_t offset = token_.offset;
        if (token_.isLiteral()) {
            Expression result = make(Expression::Kind::literal, offset);
            result.literal = literals_;
            result.literalKind = token_.kind == TokenKind::number ? LiteralKind::number
                                 : token_.kind == TokenKind::text ? LiteralKind::text
                                                                  : LiteralKind::date;
            advance();
            return result;
        }
        if (acceptSymbol("(")) {
            Expression inner = expression();
            expectSymbol(")");
            inner.isClosed = true;
            return inner;
        }
        if (acceptWord("TRUE"))
            return make(Expression::Kind::boolean, offset);
        if (acceptWord("FALSE")) {
            Expression result = make(Expression::Kind::boolean, offset);
            result.negated = true;
            return result;
        }
        if (acceptWord("NULL"))
            return make(Expression::Kind::null, offset);
        if (!isName())
            fail("a value or a name expected");
        const bool bare = token_.kind == TokenKind::name;
        std::string name = expectName("a name");
        if (bare && isSymbol("("))
            return call(offset, name);
        return column(offset, std::move(name));
    }

    Expression column(std::size_t offset, std::string name)
    {
        Expression result = make(Expression::Kind::column, offset);
        if (acceptSymbol(".")) {
            result.qualifier = std::move(name);
            if (acceptSymbol("*")) {
                starQualifier_ = result.qualifier;
                starOffset_ = offset;
                return result;
            }
            name = expectColumnName();
        }
        result.name = std::move(name);
        return result;
    }

    /// After a point even a reserved word is a name.
    std::string expectColumnName()
    {
        if (token_.kind != TokenKind::name)
            return expectName("a column name");
        std::string name(token_.body);
        advance();
        return name;
    }

    Expression call(std::size_t offset, const std::string& name)
    {
        Expression result = make(Expression::Kind::call, offset);
        result.name = upper(name);
        if (std::ranges::find(aggregates, result.name) == aggregates.end())
            failAt(sql_, offset, "unknown function");
        expectSymbol("(");
        if (result.name == "COUNT" && acceptSymbol("*")) {
            expectSymbol(")");
            return result;
        }
        result.distinct = acceptWord("DISTINCT");
        add(result, expression());
        expectSymbol(")");
        return result;
    }

    std::string_view sql_;
    Lexer lexer_;
    Token token_;
    std::size_t literals_ = 0;
    int nesting_ = 0;
    /// Set when `column` met `table.*`, which only a column list may hold.
    std::optional<std::string> starQualifier_;
    std::size_t starOffset_ = 0;
};

} // namespace

Select parseSelect(std::string_view sql) { return Parser(sql).statement(); }

} // namespace qncal::host::dialect
