#pragma once

#include "popups/ReminderDisplay.h"

#include <QTreeWidget>

#include <functional>
#include <string>

namespace qncal::host {

/// Reminders as rows: when each is due, what it is about and, where names are known, for whom. The missed ones stand
/// together under a heading, which stands for all of them when it is selected.
class ReminderList : public QTreeWidget {
public:
    explicit ReminderList(QWidget* parent = nullptr);

    void nameOfUser(std::function<std::string(std::int32_t userID)> name) { nameOfUser_ = std::move(name); }

    /// A reminder that is there already, or stands for another moment now, keeps its row.
    void add(const Reminder& reminder);
    /// A reminder that is there already moves under the heading.
    void addMissed(const std::vector<Reminder>& reminders);
    void take(std::int32_t reminderID);

    QList<std::int32_t> all() const;
    QList<std::int32_t> chosen() const;
    bool contains(std::int32_t reminderID) const { return rowOf(reminderID) != nullptr; }
    /// The first line of a reminder's text: what it is about. The lines below say when.
    QString subject(std::int32_t reminderID) const;
    /// Where nothing is selected, selects the row under the cursor, or the first one.
    void chooseOne();

private:
    QTreeWidgetItem* missed() const;
    QTreeWidgetItem& addHeading();
    void fill(const Reminder& reminder, QTreeWidgetItem& row);
    template <class Wanted>
    QList<std::int32_t> numbersWhere(Wanted wanted) const;
    QTreeWidgetItem* rowOf(std::int32_t reminderID) const;
    void showMissedCount();

    std::function<std::string(std::int32_t userID)> nameOfUser_;
};

} // namespace qncal::host
