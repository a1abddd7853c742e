#include "qt/widgets/ReminderList.h"

#include "qt/convert.h"

#include <QHeaderView>
#include <QLocale>

namespace qncal::host {

namespace {

constexpr int numberRole = Qt::UserRole;

enum Column { dueColumn, textColumn, userColumn };

/// None for the heading of the missed ones.
QVariant numberOf(const QTreeWidgetItem& row) { return row.data(dueColumn, numberRole); }

} // namespace

ReminderList::ReminderList(QWidget* parent) : QTreeWidget(parent)
{
    setAccessibleName(tr("Reminders"));
    setHeaderLabels({tr("Due"), tr("Reminder"), tr("For")});
    setSelectionMode(ExtendedSelection);
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(dueColumn, QHeaderView::ResizeToContents);
    header()->setSectionResizeMode(textColumn, QHeaderView::Stretch);
    header()->setSectionResizeMode(userColumn, QHeaderView::ResizeToContents);
}

void ReminderList::add(const Reminder& reminder)
{
    QTreeWidgetItem* row = rowOf(reminder.id);
    fill(reminder, row ? *row : *new QTreeWidgetItem(this));
}

void ReminderList::addMissed(const std::vector<Reminder>& reminders)
{
    if (reminders.empty())
        return;
    QTreeWidgetItem& group = missed() ? *missed() : addHeading();
    for (const Reminder& reminder : reminders) {
        QTreeWidgetItem* row = rowOf(reminder.id);
        if (!row)
            row = new QTreeWidgetItem(&group);
        else if (!row->parent())
            group.addChild(takeTopLevelItem(indexOfTopLevelItem(row)));
        fill(reminder, *row);
    }
    showMissedCount();
}

/// The heading of the missed ones, which stands first; none without them.
QTreeWidgetItem* ReminderList::missed() const
{
    QTreeWidgetItem* first = topLevelItem(0);
    return first && !numberOf(*first).isValid() ? first : nullptr;
}

QTreeWidgetItem& ReminderList::addHeading()
{
    auto* heading = new QTreeWidgetItem;
    QFont bold = font();
    bold.setBold(true);
    heading->setFont(dueColumn, bold);
    insertTopLevelItem(0, heading);
    heading->setFirstColumnSpanned(true);
    heading->setExpanded(true);
    return *heading;
}

void ReminderList::fill(const Reminder& reminder, QTreeWidgetItem& row)
{
    setColumnHidden(userColumn, !nameOfUser_);
    row.setData(dueColumn, numberRole, reminder.id);
    row.setText(dueColumn, QLocale().toString(toQt(reminder.due), "ddd, MMM d, h:mm AP"));
    row.setText(textColumn, toQt(reminder.text).remove('\r'));
    row.setToolTip(textColumn, row.text(textColumn));
    row.setText(userColumn, nameOfUser_ ? toQt(nameOfUser_(reminder.userID)) : QString());
    for (const int column : {dueColumn, userColumn})
        row.setTextAlignment(column, Qt::AlignLeft | Qt::AlignTop);
}

void ReminderList::take(std::int32_t reminderID)
{
    delete rowOf(reminderID);
    if (const QTreeWidgetItem* heading = missed(); heading && heading->childCount() == 0)
        delete heading;
    showMissedCount();
}

template <class Wanted>
QList<std::int32_t> ReminderList::numbersWhere(Wanted wanted) const
{
    QList<std::int32_t> found;
    for (QTreeWidgetItemIterator row(const_cast<ReminderList*>(this)); *row; ++row)
        if (const QVariant number = numberOf(**row); number.isValid() && wanted(**row))
            found += number.toInt();
    return found;
}

QList<std::int32_t> ReminderList::all() const
{
    return numbersWhere([](const QTreeWidgetItem&) { return true; });
}

QList<std::int32_t> ReminderList::chosen() const
{
    return numbersWhere(
        [](const QTreeWidgetItem& row) { return row.isSelected() || (row.parent() && row.parent()->isSelected()); });
}

QString ReminderList::subject(std::int32_t reminderID) const
{
    const QTreeWidgetItem* row = rowOf(reminderID);
    return row ? row->text(textColumn).section('\n', 0, 0) : QString();
}

void ReminderList::chooseOne()
{
    if (!selectedItems().isEmpty() || topLevelItemCount() == 0)
        return;
    if (!currentItem())
        setCurrentItem(missed() ? missed()->child(0) : topLevelItem(0));
    if (QTreeWidgetItem* current = currentItem())
        current->setSelected(true);
}

QTreeWidgetItem* ReminderList::rowOf(std::int32_t reminderID) const
{
    for (QTreeWidgetItemIterator row(const_cast<ReminderList*>(this)); *row; ++row)
        if (const QVariant number = numberOf(**row); number.isValid() && number.toInt() == reminderID)
            return *row;
    return nullptr;
}

void ReminderList::showMissedCount()
{
    if (QTreeWidgetItem* heading = missed())
        heading->setText(dueColumn, tr("Missed while nobody looked: %1").arg(heading->childCount()));
}

} // namespace qncal::host
