#include "qt/ReminderWindow.h"

#include "qt/convert.h"
#include "utilities/RunTimeError.h"

#include <QApplication>
#include <QComboBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>

namespace qncal::host {

namespace {

constexpr int numberRole = Qt::UserRole;
constexpr int noReminder = -1;

enum Column { dueColumn, textColumn, userColumn };

struct Period {
    int minutes;
    const char* name;
};
constexpr Period periods[] = {{5, "5 minutes"},   {10, "10 minutes"}, {15, "15 minutes"},
                              {30, "30 minutes"}, {60, "1 hour"},     {24 * 60, "1 day"}};

/// What it is about; the lines below say when.
QString firstLine(const QTreeWidgetItem& item) { return item.text(textColumn).section('\n', 0, 0); }

int numberOf(const QTreeWidgetItem& item) { return item.data(dueColumn, numberRole).toInt(); }

} // namespace

ReminderWindow::ReminderWindow(QWidget* parent)
    : QDialog(parent), list_(new QTreeWidget(this)), note_(new QLabel(this)), periods_(new QComboBox(this)),
      snooze_(new QPushButton(tr("&Snooze"), this)), dismiss_(new QPushButton(tr("&Dismiss"), this)),
      dismissAll_(new QPushButton(tr("Dismiss &all"), this))
{
    setObjectName("reminders");
    setWindowTitle(tr("Reminders"));
    list_->setObjectName("reminderList");
    list_->setAccessibleName(tr("Reminders"));
    list_->setHeaderLabels({tr("Due"), tr("Reminder"), tr("For")});
    list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list_->setAlternatingRowColors(true);
    list_->setAllColumnsShowFocus(true);
    list_->setWordWrap(true);
    list_->header()->setStretchLastSection(false);
    list_->header()->setSectionResizeMode(textColumn, QHeaderView::Stretch);
    note_->setObjectName("reminderNote");
    note_->setWordWrap(true);
    snooze_->setObjectName("snooze");
    dismiss_->setObjectName("dismiss");
    dismissAll_->setObjectName("dismissAll");
    periods_->setObjectName("snoozePeriod");
    for (const Period& period : periods)
        periods_->addItem(tr(period.name), period.minutes);
    auto* again = new QLabel(tr("Remind me again &in:"), this);
    again->setBuddy(periods_);
    auto* close = new QPushButton(tr("&Close"), this);

    auto* answer = new QHBoxLayout;
    answer->addWidget(again);
    answer->addWidget(periods_);
    answer->addWidget(snooze_);
    answer->addStretch();
    answer->addWidget(dismiss_);
    answer->addWidget(dismissAll_);
    answer->addWidget(close);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(list_, 1);
    layout->addWidget(note_);
    layout->addLayout(answer);
    resize(fontMetrics().averageCharWidth() * 110, fontMetrics().height() * 18);

    dismiss_->setDefault(true);
    connect(dismiss_, &QPushButton::clicked, this, [this] { dismiss(chosen()); });
    connect(dismissAll_, &QPushButton::clicked, this, [this] { dismiss(reminders()); });
    connect(snooze_, &QPushButton::clicked, this, [this] { snooze(chosen()); });
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    // Rows are as high as their text, wrapped at the present width, needs.
    connect(list_->header(), &QHeaderView::sectionResized, list_, &QTreeWidget::doItemsLayout, Qt::QueuedConnection);
    connect(list_, &QTreeWidget::itemSelectionChanged, this, [this] { showState(); });
    note({});
    showState();
}

ReminderDisplay::Stay ReminderWindow::show(const Reminder& reminder)
{
    comeToFront(add(reminder, nullptr));
    return Stay::onScreen;
}

ReminderDisplay::Stay ReminderWindow::showMissed(const std::vector<Reminder>& reminders)
{
    if (!missed_) {
        missed_ = new QTreeWidgetItem({tr("Missed")});
        missed_->setData(dueColumn, numberRole, noReminder);
        QFont bold = list_->font();
        bold.setBold(true);
        missed_->setFont(dueColumn, bold);
        list_->insertTopLevelItem(0, missed_);
        missed_->setFirstColumnSpanned(true);
        missed_->setExpanded(true);
    }
    for (const Reminder& reminder : reminders)
        add(reminder, missed_);
    comeToFront(missed_->child(0));
    return Stay::onScreen;
}

void ReminderWindow::withdraw(std::int32_t reminderID)
{
    QTreeWidgetItem* item = itemOf(reminderID);
    if (!item)
        return;
    note(tr("%1: the item was deleted or moved. A moved one comes again.").arg(firstLine(*item)));
    take(item);
    showState();
}

/// A reminder that comes again, or at another moment, takes its old place.
QTreeWidgetItem* ReminderWindow::add(const Reminder& reminder, QTreeWidgetItem* group)
{
    QTreeWidgetItem* item = itemOf(reminder.id);
    if (!item) {
        item = new QTreeWidgetItem;
        item->setData(dueColumn, numberRole, reminder.id);
        if (group)
            group->addChild(item);
        else
            list_->addTopLevelItem(item);
    }
    list_->setColumnHidden(userColumn, !nameOfUser_);
    item->setText(dueColumn, QLocale().toString(toQt(reminder.due), "ddd, MMM d, h:mm AP"));
    item->setText(textColumn, toQt(reminder.text).remove('\r'));
    item->setText(userColumn, nameOfUser_ ? toQt(nameOfUser_(reminder.userID)) : QString());
    for (const int column : {dueColumn, userColumn})
        item->setTextAlignment(column, Qt::AlignLeft | Qt::AlignTop);
    return item;
}

QList<QTreeWidgetItem*> ReminderWindow::reminders() const
{
    QList<QTreeWidgetItem*> found;
    for (QTreeWidgetItemIterator item(list_); *item; ++item)
        if (numberOf(**item) != noReminder)
            found += *item;
    return found;
}

int ReminderWindow::reminderCount() const { return static_cast<int>(reminders().size()); }

QTreeWidgetItem* ReminderWindow::itemOf(std::int32_t reminderID) const
{
    for (QTreeWidgetItem* item : reminders())
        if (numberOf(*item) == reminderID)
            return item;
    return nullptr;
}

/// Without taking the keyboard away from a dialog that the user is busy with.
void ReminderWindow::comeToFront(QTreeWidgetItem* current)
{
    for (const int column : {dueColumn, userColumn})
        list_->resizeColumnToContents(column);
    if (list_->selectedItems().isEmpty())
        list_->setCurrentItem(current);
    note({});
    showState();
    setAttribute(Qt::WA_ShowWithoutActivating, QApplication::activeModalWidget() != nullptr);
    QDialog::show();
    raise();
    QApplication::alert(this);
}

/// The rows that are selected; the heading of the missed ones stands for all of them.
QList<QTreeWidgetItem*> ReminderWindow::chosen() const
{
    QList<QTreeWidgetItem*> found;
    for (QTreeWidgetItem* item : reminders())
        if (item->isSelected() || (item->parent() && item->parent()->isSelected()))
            found += item;
    return found;
}

void ReminderWindow::dismiss(const QList<QTreeWidgetItem*>& items)
{
    settle(items, [this](std::int32_t id) { return answers_.dismiss(id); });
}

void ReminderWindow::snooze(const QList<QTreeWidgetItem*>& items)
{
    const int minutes = periods_->currentData().toInt();
    settle(items, [this, minutes](std::int32_t id) { return answers_.snooze(id, minutes); });
}

void ReminderWindow::settle(const QList<QTreeWidgetItem*>& items, const std::function<Outcome(std::int32_t)>& answer)
{
    note({});
    bool allDone = true;
    for (QTreeWidgetItem* item : items) {
        try {
            if (answer(numberOf(*item)) == Outcome::deleted) {
                note(tr("%1: the item was deleted, and its reminder with it.").arg(firstLine(*item)));
                allDone = false;
            }
            take(item);
        } catch (const RunTimeError& error) {
            note(tr("That could not be stored: %1").arg(toQt(error.what())));
            allDone = false;
            break;
        }
    }
    chooseNext();
    showState();
    if (allDone && reminderCount() == 0)
        accept();
}

/// Where the answered ones have gone, the one under the cursor is at hand.
void ReminderWindow::chooseNext()
{
    if (!list_->selectedItems().isEmpty() || list_->topLevelItemCount() == 0)
        return;
    if (!list_->currentItem())
        list_->setCurrentItem(list_->topLevelItem(0));
    list_->currentItem()->setSelected(true);
}

void ReminderWindow::take(QTreeWidgetItem* item)
{
    delete item;
    if (missed_ && missed_->childCount() == 0)
        delete std::exchange(missed_, nullptr);
}

void ReminderWindow::note(const QString& text)
{
    note_->setText(text);
    note_->setVisible(!text.isEmpty());
}

void ReminderWindow::showState()
{
    if (missed_)
        missed_->setText(dueColumn, tr("Missed while nobody looked: %1").arg(missed_->childCount()));
    const bool any = !chosen().isEmpty();
    snooze_->setEnabled(any);
    dismiss_->setEnabled(any);
    dismissAll_->setEnabled(reminderCount() > 0);
}

} // namespace qncal::host
