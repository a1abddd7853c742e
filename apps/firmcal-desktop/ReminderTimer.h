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
    /// The host must outlive the timer. The reminders of its user, or of all users without one.
    ReminderTimer(DesktopHost& host, QWidget& mainWindow);

    /// Looks at once and from then on twice a minute.
    void start();
    /// Looks once. What fails is kept in `failure` and tried again at the next tick.
    void tick();
    /// Empty after a look that went well.
    const QString& failure() const { return failure_; }

    /// Opens the window, also an empty one.
    void open();
    host::ReminderWindow& window() { return window_; }

private:
    host::ReminderWindow window_;
    host::ReminderLoop loop_;
    QTimer timer_;
    QString failure_;
};

} // namespace qncal::desktop
