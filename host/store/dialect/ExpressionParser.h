#pragma once

#include "store/dialect/TokenReader.h"
#include "store/dialect/Tree.h"

#include <cstddef>
#include <optional>
#include <string>

namespace qncal::host::dialect {

/// Reads expressions: conditions, comparisons, arithmetic and the values in them, each level of binding a routine.
class ExpressionParser {
public:
    /// The reader must outlive the parser.
    explicit ExpressionParser(TokenReader& reader) : reader_(reader) {}

    Expression expression();

    /// The table of the `table.*` that was the last expression as a whole. Only a column list may hold one: it asks
    /// after each of its expressions.
    std::optional<std::string> takeStar(const Expression& last);
    /// Fails when a `table.*` stood anywhere else.
    void refuseStar() const;

private:
    Expression conjunction();
    Expression negation();
    Expression predicate();
    Expression comparison(const char* symbol, Expression left);
    Expression nullTest(Expression left);
    Expression concatenation();
    Expression sum();
    Expression product();
    Expression factor();
    Expression primary();
    Expression literal();
    Expression column(std::size_t offset, std::string name);
    Expression call(std::size_t offset, const std::string& name);

    Expression test(Expression::Kind kind, bool negated, Expression operand) const;
    void add(Expression& parent, Expression operand) const;
    void join(Expression& left, const char* symbol, Expression right) const;

    TokenReader& reader_;
    /// Set when `column` met `table.*`.
    std::optional<std::string> starQualifier_;
    std::size_t starOffset_ = 0;
};

} // namespace qncal::host::dialect
