#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace qncal::host {

/// A statement with the values of one field that it must find in `smallFirm`.
struct Statement {
    std::string name;
    std::string sql;
    std::string field;
    std::vector<std::string> values;
    std::string reason;

    friend void PrintTo(const Statement& row, std::ostream* out) { *out << row.reason; }
};

/// What the dialect can say beyond what the component asks for.
std::vector<Statement> dialectStatements();

// Every statement that the component composes, with values put in; the one of a whole business client has a test of
// its own.

/// Items of each kind, their reminders and settings, search.
std::vector<Statement> itemStatements();
/// Clients, their links and summaries, and the labels of custom fields.
std::vector<Statement> clientStatements();

} // namespace qncal::host
