#pragma once

#include "popups/ReminderDisplay.h"

#include <QDialog>

#include <functional>
#include <string>

class QComboBox;
class QLabel;
class QPushButton;

namespace qncal::host {

class ReminderList;

/// Lists the reminders that are due until each is dismissed or put off. It comes to the front with every new one, and
/// goes when the last is answered. Closing it leaves the reminders in it: they are there when it opens again.
///
/// A reminder whose item is deleted or moved meanwhile leaves the list, and a line below says so.
class ReminderWindow : public QDialog, public ReminderDisplay {
public:
    using Outcome = ReminderOutcome;
    /// What the user's answers are handed to: a `ReminderLoop`. What it throws is told below the list, and the
    /// reminder stays.
    struct Answers {
        std::function<Outcome(std::int32_t reminderID)> dismiss;
        std::function<Outcome(std::int32_t reminderID, int minutes)> snooze;
    };

    explicit ReminderWindow(QWidget* parent = nullptr);
    /// To be set ahead of the first reminder: the loop that answers needs the window to be made.
    void answers(Answers answers) { answers_ = std::move(answers); }
    /// Shows beside each reminder for whom it is; to be set ahead of the first.
    void nameOfUser(std::function<std::string(std::int32_t userID)> name);

    Stay show(const Reminder& reminder) override;
    Stay showMissed(const std::vector<Reminder>& reminders) override;
    void withdraw(std::int32_t reminderID) override;
    /// Opens the window, also an empty one, when the user asks for it.
    using QDialog::show;

    int reminderCount() const;

private:
    void addAnswers();
    void comeToFront();
    /// Hands each reminder to the answer and takes those away that it settles.
    void settle(const QList<std::int32_t>& reminders, const std::function<Outcome(std::int32_t)>& answer);
    void dismiss(const QList<std::int32_t>& reminders);
    void snooze(const QList<std::int32_t>& reminders);
    void note(const QString& text);
    void showState();

    Answers answers_;
    ReminderList* list_;
    QLabel* note_;
    QComboBox* periods_;
    QPushButton* snooze_;
    QPushButton* dismiss_;
    QPushButton* dismissAll_;
};

} // namespace qncal::host
