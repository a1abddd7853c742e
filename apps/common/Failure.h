#pragma once

#include <stdexcept>

namespace qncal::firmcal {

/// Ends a command with one line for the user and exit status 1.
class Failure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The command line itself is wrong: exit status 2.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace qncal::firmcal
