#include "store/dialect/ExpressionParser.h"

#include "utilities/text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace qncal::host::dialect {

namespace {

constexpr std::array aggregates{"COUNT", "SUM", "MIN", "MAX", "AVG"};
constexpr std::array comparisons{"=", "<>", "<=", ">=", "<", ">"};
/// What the engine takes in: conditions joined by one operator, and levels of parentheses.
constexpr std::size_t longestChain = 800;
constexpr std::size_t mostLevels = 24;

std::string upper(std::string_view word)
{
    std::string result(word);
    std::ranges::transform(result, result.begin(), [](char c) { return upperAscii(c); });
    return result;
}

Expression make(Expression::Kind kind, std::size_t offset)
{
    Expression result;
    result.kind = kind;
    result.offset = offset;
    return result;
}

} // namespace

std::optional<std::string> ExpressionParser::takeStar(const Expression& last)
{
    const bool isStar = starQualifier_ && last.kind == Expression::Kind::column && last.name.empty();
    return isStar ? std::exchange(starQualifier_, std::nullopt) : std::nullopt;
}

void ExpressionParser::refuseStar() const
{
    if (starQualifier_)
        reader_.failAt(starOffset_, "all columns cannot stand here");
}

void ExpressionParser::add(Expression& parent, Expression operand) const
{
    parent.levels = std::max(parent.levels, operand.levels + 1);
    if (parent.levels > mostLevels)
        reader_.failAt(operand.offset, "nested too deeply");
    if (parent.operands.size() == longestChain && parent.kind == Expression::Kind::chain)
        reader_.failAt(operand.offset, "more than " + std::to_string(longestChain) + " in a row");
    parent.operands.push_back(std::move(operand));
}

/// Puts another operand behind those that the same operator joins already.
void ExpressionParser::join(Expression& left, const char* symbol, Expression right) const
{
    if (left.kind != Expression::Kind::chain || left.name != symbol || left.isClosed) {
        Expression chain = make(Expression::Kind::chain, left.offset);
        chain.name = symbol;
        add(chain, std::move(left));
        left = std::move(chain);
    }
    add(left, std::move(right));
}

Expression ExpressionParser::expression()
{
    const TokenReader::Nesting nesting(reader_);
    Expression left = conjunction();
    while (reader_.acceptWord("OR"))
        join(left, "OR", conjunction());
    return left;
}

Expression ExpressionParser::conjunction()
{
    Expression left = negation();
    while (reader_.acceptWord("AND"))
        join(left, "AND", negation());
    return left;
}

Expression ExpressionParser::negation()
{
    const TokenReader::Nesting nesting(reader_);
    const std::size_t offset = reader_.token().offset;
    if (!reader_.acceptWord("NOT"))
        return predicate();
    Expression result = make(Expression::Kind::logicalNot, offset);
    add(result, negation());
    return result;
}

Expression ExpressionParser::predicate()
{
    Expression left = concatenation();
    for (;;) {
        const auto symbol =
            std::ranges::find_if(comparisons, [this](const char* text) { return reader_.isSymbol(text); });
        if (symbol != comparisons.end()) {
            left = comparison(*symbol, std::move(left));
            continue;
        }
        if (reader_.acceptWord("IS")) {
            left = nullTest(std::move(left));
            continue;
        }
        const bool negated = reader_.acceptWord("NOT");
        if (reader_.acceptWord("LIKE")) {
            left = test(Expression::Kind::like, negated, std::move(left));
            add(left, concatenation());
        } else if (reader_.acceptWord("IN")) {
            left = test(Expression::Kind::in, negated, std::move(left));
            reader_.expectSymbol("(");
            do
                add(left, concatenation());
            while (reader_.acceptSymbol(","));
            reader_.expectSymbol(")");
        } else if (reader_.acceptWord("BETWEEN")) {
            left = test(Expression::Kind::between, negated, std::move(left));
            add(left, concatenation());
            reader_.expectWord("AND");
            add(left, concatenation());
        } else if (negated) {
            reader_.fail("LIKE, IN or BETWEEN expected");
        } else {
            return left;
        }
    }
}

Expression ExpressionParser::comparison(const char* symbol, Expression left)
{
    reader_.advance();
    Expression result = test(Expression::Kind::comparison, false, std::move(left));
    result.name = symbol;
    add(result, concatenation());
    return result;
}

Expression ExpressionParser::nullTest(Expression left)
{
    const bool negated = reader_.acceptWord("NOT");
    reader_.expectWord("NULL");
    return test(Expression::Kind::isNull, negated, std::move(left));
}

Expression ExpressionParser::test(Expression::Kind kind, bool negated, Expression operand) const
{
    Expression result = make(kind, operand.offset);
    result.negated = negated;
    add(result, std::move(operand));
    return result;
}

Expression ExpressionParser::concatenation()
{
    Expression left = sum();
    while (reader_.acceptSymbol("&"))
        join(left, "&", sum());
    return left;
}

Expression ExpressionParser::sum()
{
    Expression left = product();
    for (;;) {
        if (reader_.acceptSymbol("+"))
            join(left, "+", product());
        else if (reader_.acceptSymbol("-"))
            join(left, "-", product());
        else
            return left;
    }
}

Expression ExpressionParser::product()
{
    Expression left = factor();
    for (;;) {
        if (reader_.acceptSymbol("*"))
            join(left, "*", factor());
        else if (reader_.acceptSymbol("/"))
            join(left, "/", factor());
        else
            return left;
    }
}

Expression ExpressionParser::factor()
{
    const TokenReader::Nesting nesting(reader_);
    const std::size_t offset = reader_.token().offset;
    if (reader_.acceptSymbol("+"))
        return factor();
    if (!reader_.acceptSymbol("-"))
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

Expression ExpressionParser::primary()
{
    if (reader_.token().isLiteral())
        return literal();
    const std::size_t offset = reader_.token().offset;
    if (reader_.acceptSymbol("(")) {
        Expression inner = expression();
        reader_.expectSymbol(")");
        inner.isClosed = true;
        return inner;
    }
    if (reader_.acceptWord("TRUE"))
        return make(Expression::Kind::boolean, offset);
    if (reader_.acceptWord("FALSE")) {
        Expression result = make(Expression::Kind::boolean, offset);
        result.negated = true;
        return result;
    }
    if (reader_.acceptWord("NULL"))
        return make(Expression::Kind::null, offset);
    if (!reader_.isName())
        reader_.fail("a value or a name expected");
    const bool bare = reader_.token().kind == TokenKind::name;
    std::string name = reader_.expectName("a name");
    if (bare && reader_.isSymbol("("))
        return call(offset, name);
    return column(offset, std::move(name));
}

Expression ExpressionParser::literal()
{
    const Token& token = reader_.token();
    Expression result = make(Expression::Kind::literal, token.offset);
    result.literal = reader_.literalsBefore();
    result.literalKind = token.kind == TokenKind::number ? LiteralKind::number
                         : token.kind == TokenKind::text ? LiteralKind::text
                                                         : LiteralKind::date;
    reader_.advance();
    return result;
}

Expression ExpressionParser::column(std::size_t offset, std::string name)
{
    Expression result = make(Expression::Kind::column, offset);
    if (reader_.acceptSymbol(".")) {
        result.qualifier = std::move(name);
        if (reader_.acceptSymbol("*")) {
            starQualifier_ = result.qualifier;
            starOffset_ = offset;
            return result;
        }
        name = reader_.expectColumnName();
    }
    result.name = std::move(name);
    return result;
}

Expression ExpressionParser::call(std::size_t offset, const std::string& name)
{
    Expression result = make(Expression::Kind::call, offset);
    result.name = upper(name);
    if (std::ranges::find(aggregates, result.name) == aggregates.end())
        reader_.failAt(offset, "unknown function");
    reader_.expectSymbol("(");
    if (result.name == "COUNT" && reader_.acceptSymbol("*")) {
        reader_.expectSymbol(")");
        return result;
    }
    result.distinct = reader_.acceptWord("DISTINCT");
    add(result, expression());
    reader_.expectSymbol(")");
    return result;
}

} // namespace qncal::host::dialect
