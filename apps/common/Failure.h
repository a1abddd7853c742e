#pragma once

#include <stdexcept>

namespace qncal::firmcal {

/// Ends a command with one line for the user and exit status 1.
class Failure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace qncal::firmcal
