#pragma once

#include "common/days.h"
#include "core/enumerations.h"
#include "firmcal-desktop/DesktopHost.h"

#include <QMainWindow>

#include <functional>
#include <memory>
#include <optional>

class QComboBox;
class QLabel;
class QTreeView;

namespace qncal::desktop {

class AgendaModel;
class ReminderTimer;

/// The agenda of a week: the items of one kind, of one user or of all, with the menus that act on them.
class MainWindow : public QMainWindow {
public:
    /// The host must outlive the window.
    explicit MainWindow(DesktopHost& host, QWidget* parent = nullptr);
    ~MainWindow() override;

    DesktopHost& host() const { return host_; }
    /// What is set here is shown by the next `reload`, as `perform` does one.
    enumLocalCalendarItemType kind() const { return kind_; }
    void kind(enumLocalCalendarItemType kind);
    const firmcal::Span& week() const { return week_; }
    void showWeekOf(Date day);
    /// The number of the item that the cursor is on, if it is on one.
    std::optional<std::int32_t> currentItem() const;
    void currentItem(std::int32_t itemID);
    /// Reads the agenda anew; the cursor stays on its item, or on the one below when that is gone.
    void reload();

    /// Does something and tells the user what fails, also inside of the component.
    void attempt(const std::function<void()>& action);
    /// Does what a menu entry is for, as `attempt`; the agenda is read anew in any case.
    void perform(const std::function<void()>& action);

    ReminderTimer& reminders() { return *reminders_; }

private:
    void addToolBar();
    QComboBox* newUserList();
    void showKind();
    void showState();

    DesktopHost& host_;
    AgendaModel* agenda_;
    QTreeView* view_;
    QLabel* weekLabel_;
    QLabel* state_;
    QComboBox* users_;
    enumLocalCalendarItemType kind_ = enumLocalCalendarAppointmentItem;
    firmcal::Span week_;
    std::unique_ptr<ReminderTimer> reminders_;
};

} // namespace qncal::desktop
