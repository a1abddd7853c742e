#pragma once

#include "utilities/Date.h"

#include <functional>

namespace qncal {

/// The present moment in local time. The one place that reads the wall clock.
Date now();
/// The date part of `now`.
Date today();

/// Replaces the source of `now` on this thread while it lives, for tests and for hosts that replay a day.
class ClockOverride {
public:
    explicit ClockOverride(std::function<Date()> source);
    explicit ClockOverride(Date fixed) : ClockOverride([fixed] { return fixed; }) {}
    ~ClockOverride();
    ClockOverride(const ClockOverride&) = delete;
    ClockOverride& operator=(const ClockOverride&) = delete;

private:
    std::function<Date()> previous_;
};

} // namespace qncal
