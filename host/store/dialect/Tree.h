#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace qncal::host::dialect {

/// A SELECT statement as a tree. Literals are only numbered, in the order in which they stand in the text: their
/// values belong to one text, the tree to all texts of the same shape.

enum class LiteralKind : std::uint8_t { number, text, date };

struct Expression {
    enum class Kind : std::uint8_t {
        column,  ///< `qualifier` and `name`
        literal, ///< `literal`, `literalKind`, `negative`
        boolean, ///< `negated` for False
        null,
        negate,     ///< one operand
        logicalNot, ///< one operand
        comparison, ///< `name` is the operator; two operands
        chain,      ///< `name` is the operator, upper case, that stands between all operands
        like,       ///< two operands, `negated`
        in,         ///< the first operand in the others, `negated`
        between,    ///< three operands, `negated`
        isNull,     ///< one operand, `negated`
        call,       ///< the aggregate `name`, upper case; no operand for COUNT(*)
    };
    Kind kind = Kind::null;
    std::size_t offset = 0;
    std::string qualifier;
    std::string name;
    std::size_t literal = 0;
    LiteralKind literalKind = LiteralKind::number;
    bool negative = false;
    bool negated = false;
    bool distinct = false;
    bool isClosed = false;  ///< stands in parentheses
    std::size_t levels = 1; ///< of the tree that hangs here
    std::vector<Expression> operands;
};

struct FromNode {
    // a table ...
    std::string table;
    std::string alias;
    std::size_t offset = 0;
    // ... or a join of two nodes
    std::unique_ptr<FromNode> left;
    std::unique_ptr<FromNode> right;
    bool outer = false; ///< LEFT JOIN
    Expression on;

    bool isJoin() const { return left != nullptr; }
};

struct SelectItem {
    bool star = false;     ///< * or `qualifier`.*
    std::string qualifier; ///< of the star
    std::size_t offset = 0;
    Expression expression;
    std::string alias;
};

struct OrderTerm {
    Expression expression;
    std::optional<std::size_t> place; ///< the term is a place in the column list, from 1
    bool descending = false;
};

struct Select {
    bool distinct = false;
    std::optional<std::int64_t> top;
    std::vector<SelectItem> items;
    std::vector<FromNode> from;
    std::optional<Expression> where;
    std::vector<Expression> groupBy;
    std::optional<Expression> having;
    std::vector<OrderTerm> orderBy;
    /// A literal's value is part of the tree (TOP n, ORDER BY n), so that it serves this one text only.
    bool bindsLiterals = false;
};

} // namespace qncal::host::dialect
