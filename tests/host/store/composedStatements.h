#pragma once

#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace qncal::host {

/// A statement as the component composes it, with the values of one field that it must find in the data below.
struct Statement {
    std::string name;
    std::string sql;
    std::string field;
    std::vector<std::string> values;
    std::string reason;

    friend void PrintTo(const Statement& row, std::ostream* out) { *out << row.reason; }
};

/// Every statement that the component composes, with values put in.
std::vector<Statement> composedStatements();

} // namespace qncal::host
