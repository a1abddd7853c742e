#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace qncal {

/// What a failed statement leaves behind: the number and text of its run-time error.
struct ErrorState {
    std::int32_t number = 0;
    std::string text;
};

/// The user's decision on a reported error. Any other value also resumes at the routine's exit.
enum class ErrorAction : std::int16_t { retry = 1, leave = 2, leaveThroughExitHook = 3 };

/// Host contract: the routine stack and the error dialog.
///
/// Called on the component's thread. `enterRoutine` and `leaveRoutine` come in pairs, also for a routine that
/// fails. For a failure the component calls `setError`, `reportError` and `getErrorAction`, in this order; an
/// exception thrown by one of the three is taken as "leave". The component keeps a strong reference.
class ErrorControlService {
public:
    virtual ~ErrorControlService() = default;
    /// Pushes a routine's label.
    virtual void enterRoutine(std::string_view label) = 0;
    /// Pops the label pushed last.
    virtual void leaveRoutine() = 0;
    /// Takes over the error to report.
    virtual void setError(const ErrorState& error) = 0;
    /// Shows and logs the error with the routine stack; returns when the user has decided.
    virtual void reportError() = 0;
    /// The decision, see `ErrorAction`.
    virtual std::int16_t getErrorAction() = 0;
};

} // namespace qncal
