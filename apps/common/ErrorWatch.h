#pragma once

#include "services/ErrorControl.h"

#include <cstddef>

namespace qncal::firmcal {

/// The component swallows its errors; this is how a program learns of them.
class ErrorWatch {
public:
    /// The error control must outlive the watch.
    explicit ErrorWatch(const host::ErrorControl& errors) : errors_(errors), seen_(errors.reportCount()) {}

    /// Throws `Failure` with the text of the error that the component reported since the last call, if any.
    void throwIfReported();
    /// What was reported up to now is told by other means.
    void markSeen() { seen_ = errors_.reportCount(); }

private:
    const host::ErrorControl& errors_;
    std::size_t seen_;
};

} // namespace qncal::firmcal
