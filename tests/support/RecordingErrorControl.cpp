#include "support/RecordingErrorControl.h"

#include "utilities/RunTimeError.h"

#include <gtest/gtest.h>

namespace qncal::test {

RecordingErrorControl::~RecordingErrorControl()
{
    for (const ErrorState& error : errors_)
        ADD_FAILURE() << "unexpected error " << error.number << ": " << error.text;
    if (!stack_.empty())
        ADD_FAILURE() << "routine stack not empty, top: " << stack_.back();
}

void RecordingErrorControl::enterRoutine(std::string_view label)
{
    if (std::exchange(failNextEnter_, false))
        throw RunTimeError(errorNumber::invalidProcedureCall, "enterRoutine failed");
    stack_.emplace_back(label);
    labels_.emplace_back(label);
}

void RecordingErrorControl::leaveRoutine()
{
    if (stack_.empty())
        ADD_FAILURE() << "leaveRoutine on an empty routine stack";
    else
        stack_.pop_back();
}

void RecordingErrorControl::setError(const ErrorState& error) { current_ = error; }

void RecordingErrorControl::reportError() { errors_.push_back(current_); }

std::int16_t RecordingErrorControl::getErrorAction() { return static_cast<std::int16_t>(action_); }

} // namespace qncal::test
