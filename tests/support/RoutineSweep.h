#pragma once

#include "support/TestWorld.h"

#include <functional>
#include <ostream>
#include <string>

namespace qncal::test {

/// One routine for the sweep over all its faults.
struct SweptRoutine {
    std::string name;
    /// What the routine gives after a failure of its own, as the text that `run` makes of it.
    std::string defaultResult;
    /// Puts the rows in place and makes the objects; gives the call of the routine with its result as text.
    std::function<std::function<std::string()>(TestWorld&)> prepare;
    /// False for a routine that does its work without a database.
    bool needsDatabase = true;

    friend void PrintTo(const SweptRoutine& routine, std::ostream* out) { *out << routine.name; }
};

/// Each runs the routine many times, every time in a new world.

/// Each service call fails once and the user leaves: no exception comes out, the routine stack is balanced, and a
/// failure of the routine's own gives its default.
void expectFaultsLeave(const SweptRoutine& routine);
/// The same for every call from that one on, as with a connection that is lost.
void expectLastingFaultsLeave(const SweptRoutine& routine);
/// Each service call fails once and the user retries: result, rows and routines run are those of a run without fault.
void expectFaultsRetry(const SweptRoutine& routine);
/// Each slot of the registry is empty in turn: the failure is error 91, and nothing else comes out.
void expectEmptySlotsLeave(const SweptRoutine& routine);

} // namespace qncal::test
