#pragma once

#include "items/clsCalendarItem.h"

#include <CLI/App.hpp>

#include <string>
#include <vector>

namespace qncal::firmcal {

class CommandContext;

/// What `add` and `set` can change in words; everything else goes by `--set`.
struct ItemChanges {
    std::string subject;
    std::string date;
    std::string start;
    std::string end;
    std::string hours;
    std::string company;
    std::string contact;
    std::string owner;
    std::vector<std::string> assignments;
    friend bool operator==(const ItemChanges&, const ItemChanges&) = default;
};

void addChangeOptions(CLI::App& command, ItemChanges& changes);
/// Changes the item in memory. Throws `Failure` for a value that cannot be; the item is then not to be saved.
void apply(CommandContext& context, clsCalendarItem& item, const ItemChanges& changes);

} // namespace qncal::firmcal
