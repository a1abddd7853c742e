#include "firmcal-desktop/ReminderTimer.h"

#include "firmcal-desktop/DesktopHost.h"
#include "qt/convert.h"

#include <QLabel>

namespace qncal::desktop {

namespace {

std::optional<std::int32_t> userOf(const DesktopHost& host)
{
    const auto user = host.user();
    return user ? std::optional(user->id) : std::nullopt;
}

} // namespace

ReminderTimer::ReminderTimer(DesktopHost& host, QWidget& mainWindow, QLabel& failure)
    : window_(&mainWindow), loop_(host.sharedDatabase(), window_, userOf(host)), failure_(failure)
{
    constexpr int halfMinute = 30'000;
    timer_.setInterval(halfMinute);
    connect(&timer_, &QTimer::timeout, this, [this] { tick(); });
    window_.answers({[this](std::int32_t id) { return loop_.dismiss(id); },
                     [this](std::int32_t id, int minutes) { return loop_.snooze(id, minutes); }});
    if (!host.user())
        window_.nameOfUser([&host](std::int32_t id) { return host.clients().getUserName(id); });
}

void ReminderTimer::start()
{
    timer_.start();
    tick();
}

void ReminderTimer::tick()
{
    try {
        loop_.sweep();
        failure_.clear();
    } catch (const std::exception& error) { // no exception may pass through the toolkit
        failure_.setText(tr("The reminders could not be read: %1").arg(host::toQt(error.what())));
    }
    failure_.setToolTip(failure_.text());
    failure_.setVisible(!failure_.text().isEmpty());
}

void ReminderTimer::open()
{
    window_.show();
    window_.raise();
    window_.activateWindow();
}

} // namespace qncal::desktop
