#pragma once

#include <cstdint>
#include <string_view>
#include <utility>

namespace qncal {

/// How nearly every routine of the component runs, and how its failures end.
///
///     bool clsCalendarItem::deleteCalendarItem()
///     {
///         return routine("Vestrel.exe-clsCalendarItem-deleteCalendarItem", false, [&] { ...; return deleted; });
///     }
///
/// `routine` pushes the label on the host's routine stack, runs the body and pops the label. No error leaves it:
/// a failure is reported to the host's error control and the caller sees the default result. `statement` is one
/// statement that calls a service: when it fails, the innermost routine asks the host at once, while all that
/// went before stays done, and on the answer "retry" the statement alone runs again. `skipOnError` passes over
/// a failing statement in silence.

namespace detail {

/// Thrown by a failed statement to reach the exit of its routine; never leaves `routine`.
struct LeaveRoutine {};

enum class Decision { retry, leave };

/// Reports the exception in flight to the error control and returns the decision.
/// In a skip-on-error section, and outside of any routine, it throws the exception on instead.
Decision decideOnFailure();

/// The error handling of one routine or skip-on-error section, innermost last. Code of the host, which a service
/// call or an event reaches, stands in a frame of its own: no routine answers for its failures.
class Frame {
public:
    enum class Kind : std::uint8_t { routine, skipOnError, host };
    explicit Frame(Kind kind);
    ~Frame();
    Frame(const Frame&) = delete;
    Frame& operator=(const Frame&) = delete;

    Kind kind() const { return kind_; }
    static const Frame* innermost();

private:
    const Frame* outer_;
    Kind kind_;
};

/// A frame with its label on the host's routine stack. A label that could not be pushed is not popped.
class RoutineFrame {
public:
    RoutineFrame() : frame_(Frame::Kind::routine) {}
    ~RoutineFrame();
    RoutineFrame(const RoutineFrame&) = delete;
    RoutineFrame& operator=(const RoutineFrame&) = delete;
    void enter(std::string_view label);

private:
    Frame frame_;
    bool entered_ = false;
};

/// For an error that no statement caught: nothing can be retried, the routine is left whatever the answer.
void reportEscapedError();

} // namespace detail

/// Runs one statement; see above. The statement must be safe to run again after it threw.
template <class Body>
decltype(auto) statement(Body&& body)
{
    for (;;) {
        try {
            const detail::Frame frame(detail::Frame::Kind::host);
            return body();
        } catch (const detail::LeaveRoutine&) {
            throw;
        } catch (...) {
            if (detail::decideOnFailure() == detail::Decision::leave)
                throw detail::LeaveRoutine{};
        }
    }
}

/// Runs one statement; a failure in it is passed over.
template <class Body>
void skipOnError(Body&& body)
{
    const detail::Frame frame(detail::Frame::Kind::skipOnError);
    try {
        body();
    } catch (...) { // passed over by contract
    }
}

/// Calls out to the host other than through a service: an event's handlers.
template <class Body>
void callHost(Body&& body)
{
    const detail::Frame frame(detail::Frame::Kind::host);
    body();
}

/// A property that reads through services. Read by a routine it is a part of that routine; read by the host there is
/// nobody to report to, and a failure is passed over.
template <class Body>
void accessor(Body&& body)
{
    const detail::Frame* reader = detail::Frame::innermost();
    if (reader && reader->kind() == detail::Frame::Kind::routine)
        body();
    else
        skipOnError(body);
}

/// A routine without a result, or one whose result is a variable of the caller that keeps what it reached.
template <class Body>
void routine(std::string_view label, Body&& body)
{
    detail::RoutineFrame frame;
    try {
        frame.enter(label);
        body();
    } catch (const detail::LeaveRoutine&) { // already reported
    } catch (...) {
        detail::reportEscapedError();
    }
}

/// A routine with a result; `defaultResult` is what the caller sees after a failure.
template <class Result, class Body>
Result routine(std::string_view label, Result defaultResult, Body&& body)
{
    routine(label, [&] { defaultResult = body(); });
    return defaultResult;
}

} // namespace qncal
