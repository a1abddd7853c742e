#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace qncal {
class DatabaseService;
}

namespace qncal::firmcal {

/// What one check of a database came to.
struct CheckResult {
    std::string check;
    int found = 0;
    int mended = 0;
    /// False for what a person has to decide.
    bool canMend = true;
    /// Where a person has to look, one text for each finding; empty when the check's name says enough.
    std::vector<std::string> places = {};
};

/// Looks for rows that point at nothing: reminders and notifications whose item is gone, links and items of clients
/// that are gone, items of users that are gone, and series of one item. With `repair` the first are deleted, the
/// items lose the client or the series number, and items without a user stay as they are.
/// Before that, for cells that hold what their column cannot, as only another program writes it: a colour that reads
/// "red". With `repair` they are emptied; a boolean becomes False.
std::vector<CheckResult> checkRows(DatabaseService& database, bool repair);

/// What the engine's own check of a database file says; empty when all is well.
std::string checkFile(const std::string& file);

} // namespace qncal::firmcal
