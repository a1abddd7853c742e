#pragma once

#include "core/ErrorControlService.h"

#include <string>
#include <utility>
#include <vector>

namespace qncal::test {

/// An error control that records labels and errors and gives a settable answer.
/// At its end every error must have been taken and the routine stack must be empty, or the test fails.
class RecordingErrorControl : public ErrorControlService {
public:
    ~RecordingErrorControl() override;

    void enterRoutine(std::string_view label) override;
    void leaveRoutine() override;
    void setError(const ErrorState& error) override;
    void reportError() override;
    std::int16_t getErrorAction() override;

    /// What the user decides from now on; "leave" at first.
    void answer(ErrorAction action) { action_ = action; }
    /// The next push of a label fails with error 5, as a broken host would.
    void failNextEnter() { failNextEnter_ = true; }

    const std::vector<std::string>& stack() const { return stack_; }
    /// Every label that was pushed, in order.
    const std::vector<std::string>& labels() const { return labels_; }
    /// The errors reported since the last call; the test expects them.
    std::vector<ErrorState> takeErrors() { return std::exchange(errors_, {}); }

private:
    std::vector<std::string> stack_;
    std::vector<std::string> labels_;
    std::vector<ErrorState> errors_;
    ErrorState current_;
    ErrorAction action_ = ErrorAction::leave;
    bool failNextEnter_ = false;
};

} // namespace qncal::test
