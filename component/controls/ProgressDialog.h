#pragma once

#include "utilities/Event.h"

#include <cstdint>
#include <functional>
#include <string>

namespace qncal {

/// Long work with a window that tells how far it is. `show` opens the window and raises `StartProgress`, whose
/// handler does the work, moves `value` on and watches `isCancelled`. Without a dialog host the work runs
/// without a window.
class ProgressDialog {
public:
    std::function<void()> StartProgress;

    const std::string& text() const { return text_; }
    void text(std::string text);
    std::int32_t maximum() const { return maximum_; }
    void maximum(std::int32_t maximum);
    /// From 0 to `maximum`.
    std::int32_t value() const { return value_; }
    void value(std::int32_t value);

    /// The host's wish to stop; the work ends at its next step.
    void cancel() { cancelled_ = true; }
    bool isCancelled() const { return cancelled_; }
    /// The work is over; the window may go.
    void close();
    bool isClosed() const { return closed_; }

    /// Returns when the work is over.
    void show();
    /// For the dialog host: does the work. Closes the dialog at the end if the work did not.
    void run();

    /// For the window: text, value or maximum have changed, or the dialog was closed.
    Event<> updated;

private:
    std::string text_;
    std::int32_t maximum_ = 100;
    std::int32_t value_ = 0;
    bool cancelled_ = false;
    bool closed_ = false;
};

} // namespace qncal
