#include "qt/widgets/ReminderList.h"

#include "qt/convert.h"

#include <QHeaderView>
#include <QLocale>

#include <utility>

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

void ReminderList::addMissed(const std::vector<Reminder>& reminders)
{
    if (!missed_) {
        missed_ = new QTreeWidgetItem;
        QFont bold = font();
        bold.setBold(true);
        missed_->setFont(dueColumn, bold);
        insertTopLevelItem(0, missed_);
        missed_->setFirstColumnSpanned(true);
        missed_->setExpanded(true);
    }
    for (const Reminder& reminder : reminders)
        add(reminder, missed_);
    showMissedCount();
}

void ReminderList::add(const Reminder& reminder, QTreeWidgetItem* group)
{
    QTreeWidgetItem* row = rowOf(reminder.id);
    if (!row) {
        row = group ? new QTreeWidgetItem(group) : new QTreeWidgetItem(this);
        row->setData(dueColumn, numberRole, reminder.id);
    }
    setColumnHidden(userColumn, !nameOfUser_);
    row->setText(dueColumn, QLocale().toString(toQt(reminder.due), "ddd, MMM d, h:mm AP"));
    row->setText(textColumn, toQt(reminder.text).remove('\r'));
    row->setToolTip(textColumn, row->text(textColumn));
    row->setText(userColumn, nameOfUser_ ? toQt(nameOfUser_(reminder.userID)) : QString());
    for (const int column : {dueColumn, userColumn})
        row->setTextAlignment(column, Qt::AlignLeft | Qt::AlignTop);
}

void ReminderList::take(std::int32_t reminderID)
{
    delete rowOf(reminderID);
    if (missed_ && missed_->childCount() == 0)
        delete std::exchange(missed_, nullptr);
    showMissedCount();
}

QList<std::int32_t> ReminderList::all() const
{
    QList<std::int32_t> found;
    for (QTreeWidgetItemIterator row(const_cast<ReminderList*>(this)); *row; ++row)
        if (const QVariant number = numberOf(**row); number.isValid())
            found += number.toInt();
    return found;
}

QList<std::int32_t> ReminderList::chosen() const
{
    QList<std::int32_t> found;
    for (const std::int32_t number : all()) {
        const QTreeWidgetItem* row = rowOf(number);
        if (row->isSelected() || (row->parent() && row->parent()->isSelected()))
            found += number;
    }
    return found;
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
        setCurrentItem(missed_ ? missed_->child(0) : topLevelItem(0));
    currentItem()->setSelected(true);
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
    if (missed_)
        missed_->setText(dueColumn, tr("Missed while nobody looked: %1").arg(missed_->childCount()));
}

} // namespace qncal::host
