#pragma once

#include <stdexcept>

namespace qncal::firmcal {

/// The command line itself is wrong: exit status 2.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace qncal::firmcal
