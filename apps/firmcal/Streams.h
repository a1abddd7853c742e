#pragma once

#include <iosfwd>

namespace qncal::firmcal {

/// Where a run of the program reads and writes, and which of it is a terminal.
struct Streams {
    std::istream& in;
    std::ostream& out;
    std::ostream& err;
    bool inIsTerminal = false;
    bool outIsTerminal = false;
    bool errIsTerminal = false;
};

} // namespace qncal::firmcal
