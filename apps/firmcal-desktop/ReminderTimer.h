#pragma once

#include "popups/ReminderLoop.h"
#include "qt/ReminderWindow.h"

#include <QTimer>

class QLabel;

namespace qncal::desktop {

class DesktopHost;

/// Looks for reminders that have come due at each tick, and shows them in a window.
class ReminderTimer : public QObject {
public:
    /// All three must outlive the timer. The reminders of the host's user, or of all users without one. `failure` is
    /// where the user is told that the last look failed, and hidden after one that went well.
    ReminderTimer(DesktopHost& host, QWidget& mainWindow, QLabel& failure);

    /// Looks at once and from then on twice a minute.
    void start();
    /// Looks once. What fails is told and tried again at the next tick.
    void tick();

    /// Opens the window, also an empty one.
    void open();
    host::ReminderWindow& window() { return window_; }

private:
    host::ReminderWindow window_;
    host::ReminderLoop loop_;
    QTimer timer_;
    QLabel& failure_;
};

} // namespace qncal::desktop
