#pragma once

#include <iosfwd>
#include <string>
#include <variant>
#include <vector>

namespace qncal::desktop {

struct Options {
    std::string database;
    /// A name or an id; empty for all users.
    std::string user;
};

/// What the arguments behind the program's name ask for, or the exit status with which the program ends at once: 0
/// when help or version were asked for, 2 for a wrong command line.
std::variant<Options, int> readCommandLine(const std::vector<std::string>& arguments, std::ostream& out,
                                           std::ostream& err);

} // namespace qncal::desktop
