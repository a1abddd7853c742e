#include "core/routineScope.h"

#include "core/ServiceRegistry.h"
#include "utilities/RunTimeError.h"

#include <new>

namespace qncal::detail {

namespace {

thread_local const Frame* innermostFrame = nullptr;

ErrorState currentError()
{
    try {
        throw;
    } catch (const RunTimeError& error) {
        return {error.number(), error.what()};
    } catch (const std::bad_alloc&) {
        return {errorNumber::outOfMemory, "Out of memory"};
    } catch (const std::exception& error) {
        return {errorNumber::invalidProcedureCall, error.what()};
    } catch (...) {
        return {errorNumber::internalError, "Internal error"};
    }
}

/// The place where the component would let go of what an aborted routine holds; it holds nothing.
void exitHook() {}

Decision report()
{
    const auto errorControl = serviceRegistry().errorControl;
    if (!errorControl)
        return Decision::leave;
    try {
        errorControl->setError(currentError());
        errorControl->reportError();
        const auto action = static_cast<ErrorAction>(errorControl->getErrorAction());
        if (action == ErrorAction::retry)
            return Decision::retry;
        if (action == ErrorAction::leaveThroughExitHook)
            exitHook();
    } catch (...) { // an error control that fails itself leaves nobody to tell
    }
    return Decision::leave;
}

} // namespace

Frame::Frame(Kind kind) : outer_(innermostFrame), kind_(kind) { innermostFrame = this; }

Frame::~Frame() { innermostFrame = outer_; }

const Frame* Frame::innermost() { return innermostFrame; }

Decision decideOnFailure()
{
    if (!innermostFrame || innermostFrame->kind() != Frame::Kind::routine)
        throw;
    return report();
}

void RoutineFrame::enter(std::string_view label)
{
    statement([&] { errorControlService().enterRoutine(label); });
    entered_ = true;
}

RoutineFrame::~RoutineFrame()
{
    if (entered_)
        skipOnError([] { errorControlService().leaveRoutine(); });
}

void reportEscapedError() { report(); }

} // namespace qncal::detail
