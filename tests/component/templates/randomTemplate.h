#pragma once

#include "component/templates/plainSubstitution.h"

#include <random>
#include <string>
#include <vector>

namespace qncal::test {

/// Makes field lists, values and templates at random, of the pieces that a merge can stumble over: both pairs of
/// delimiters, halves of them, expressions in mixed case, expressions within values, text of several bytes.
class RandomTemplate {
public:
    explicit RandomTemplate(unsigned seed) : random_(seed) {}

    std::vector<PlainField> fields();
    /// A text that may hold expressions of those fields.
    std::string text(const std::vector<PlainField>& fields, int mostPieces);
    /// A text of little else than delimiters, the more to nest and to join.
    std::string denseText(int mostPieces);
    bool oneIn(int chances) { return below(chances) == 0; }
    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }

private:
    std::string piece(const std::vector<PlainField>& fields);
    std::string expression(const std::vector<PlainField>& fields);
    std::string inAnyCase(std::string text);

    std::mt19937 random_;
};

} // namespace qncal::test
