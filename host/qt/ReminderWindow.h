#pragma once

#include "popups/ReminderDisplay.h"
#include "popups/ReminderLoop.h"

#include <QDialog>

#include <functional>
#include <optional>

class QComboBox;
class QLabel;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace qncal::host {

/// Lists the reminders that are due until each is dismissed or put off. It comes to the front with every new one, and
/// goes when the last is answered. Closing it leaves the reminders in it: they are there when it opens again.
///
/// A reminder whose item is deleted or moved meanwhile leaves the list, and a line below says so.
class ReminderWindow : public QDialog, public ReminderDisplay {
public:
    using Outcome = ReminderLoop::Outcome;
    /// What the user's answers are handed to: a `ReminderLoop`. A `RunTimeError` is told below the list, and the
    /// reminder stays.
    struct Answers {
        std::function<Outcome(std::int32_t reminderID)> dismiss;
        std::function<Outcome(std::int32_t reminderID, int minutes)> snooze;
    };

    explicit ReminderWindow(QWidget* parent = nullptr);
    void answers(Answers answers) { answers_ = std::move(answers); }
    /// What stands beside a reminder, such as the name of its user; nothing unless set.
    void nameOfUser(std::function<std::string(std::int32_t userID)> name) { nameOfUser_ = std::move(name); }

    Stay show(const Reminder& reminder) override;
    Stay showMissed(const std::vector<Reminder>& reminders) override;
    void withdraw(std::int32_t reminderID) override;
    /// Opens the window, also an empty one, when the user asks for it.
    using QDialog::show;

    int reminderCount() const;

private:
    QTreeWidgetItem* add(const Reminder& reminder, QTreeWidgetItem* group);
    QTreeWidgetItem* itemOf(std::int32_t reminderID) const;
    QList<QTreeWidgetItem*> reminders() const;
    void comeToFront(QTreeWidgetItem* current);
    void dismiss(const QList<QTreeWidgetItem*>& items);
    void snooze(const QList<QTreeWidgetItem*>& items);
    /// Hands each reminder to the answer and takes those away that it settles.
    void settle(const QList<QTreeWidgetItem*>& items, const std::function<Outcome(std::int32_t)>& answer);
    QList<QTreeWidgetItem*> chosen() const;
    void chooseNext();
    void take(QTreeWidgetItem* item);
    void note(const QString& text);
    void showState();

    Answers answers_;
    std::function<std::string(std::int32_t userID)> nameOfUser_;
    QTreeWidget* list_;
    QTreeWidgetItem* missed_ = nullptr;
    QLabel* note_;
    QComboBox* periods_;
    QPushButton* snooze_;
    QPushButton* dismiss_;
    QPushButton* dismissAll_;
};

} // namespace qncal::host
