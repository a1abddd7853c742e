#pragma once

#include <QPointer>
#include <QScopeGuard>

namespace qncal::host {

/// Hands a new dialog or menu to `run`, which executes it, and deletes it afterwards. The window that owns it may go
/// while it is open and take it along; `exec` then returns as if the user had cancelled.
template <class Window, class Run>
auto runWindow(Window* window, Run run)
{
    const QPointer<Window> left(window);
    const auto end = qScopeGuard([&] { delete left.data(); });
    return run(*window);
}

} // namespace qncal::host
