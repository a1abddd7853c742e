#include "qt/ReminderWindow.h"

#include "qt/convert.h"
#include "qt/widgets/ReminderList.h"

#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <exception>

namespace qncal::host {

namespace {

struct Period {
    int minutes;
    const char* name;
};
constexpr Period periods[] = {{5, "5 minutes"},   {10, "10 minutes"}, {15, "15 minutes"},
                              {30, "30 minutes"}, {60, "1 hour"},     {24 * 60, "1 day"}};

} // namespace

ReminderWindow::ReminderWindow(QWidget* parent)
    : QDialog(parent), list_(new ReminderList(this)), note_(new QLabel(this)), periods_(new QComboBox(this)),
      snooze_(new QPushButton(tr("&Snooze"), this)), dismiss_(new QPushButton(tr("&Dismiss"), this)),
      dismissAll_(new QPushButton(tr("Dismiss &all"), this))
{
    setObjectName("reminders");
    setWindowTitle(tr("Reminders"));
    list_->setObjectName("reminderList");
    note_->setObjectName("reminderNote");
    note_->setWordWrap(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(list_, 1);
    layout->addWidget(note_);
    addAnswers();
    resize(fontMetrics().averageCharWidth() * 130, fontMetrics().height() * 18);
    connect(list_, &QTreeWidget::itemSelectionChanged, this, [this] { showState(); });
    note({});
    showState();
}

void ReminderWindow::addAnswers()
{
    snooze_->setObjectName("snooze");
    dismiss_->setObjectName("dismiss");
    dismissAll_->setObjectName("dismissAll");
    periods_->setObjectName("snoozePeriod");
    for (const Period& period : periods)
        periods_->addItem(tr(period.name), period.minutes);
    auto* again = new QLabel(tr("Remind me again &in:"), this);
    again->setBuddy(periods_);
    auto* close = new QPushButton(tr("&Close"), this);
    dismiss_->setDefault(true);

    auto* row = new QHBoxLayout;
    row->addWidget(again);
    row->addWidget(periods_);
    row->addWidget(snooze_);
    row->addStretch();
    row->addWidget(dismiss_);
    row->addWidget(dismissAll_);
    row->addWidget(close);
    static_cast<QVBoxLayout*>(layout())->addLayout(row);
    connect(dismiss_, &QPushButton::clicked, this, [this] { dismiss(list_->chosen()); });
    connect(dismissAll_, &QPushButton::clicked, this, [this] { dismiss(list_->all()); });
    connect(snooze_, &QPushButton::clicked, this, [this] { snooze(list_->chosen()); });
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
}

void ReminderWindow::nameOfUser(std::function<std::string(std::int32_t userID)> name)
{
    list_->nameOfUser(std::move(name));
}

ReminderDisplay::Stay ReminderWindow::show(const Reminder& reminder)
{
    list_->add(reminder);
    comeToFront();
    return Stay::onScreen;
}

ReminderDisplay::Stay ReminderWindow::showMissed(const std::vector<Reminder>& reminders)
{
    list_->addMissed(reminders);
    comeToFront();
    return Stay::onScreen;
}

void ReminderWindow::withdraw(std::int32_t reminderID)
{
    if (!list_->contains(reminderID))
        return;
    note(tr("%1: the item was deleted or moved. A moved one comes again.").arg(list_->subject(reminderID)));
    list_->take(reminderID);
    list_->chooseOne();
    showState();
}

int ReminderWindow::reminderCount() const { return static_cast<int>(list_->all().size()); }

/// Without taking the keyboard away from a dialog that the user is busy with.
void ReminderWindow::comeToFront()
{
    list_->chooseOne();
    note({});
    showState();
    setAttribute(Qt::WA_ShowWithoutActivating, QApplication::activeModalWidget() != nullptr);
    QDialog::show();
    raise();
    QApplication::alert(this);
}

void ReminderWindow::dismiss(const QList<std::int32_t>& reminders)
{
    settle(reminders, [this](std::int32_t id) { return answers_.dismiss(id); });
}

void ReminderWindow::snooze(const QList<std::int32_t>& reminders)
{
    const int minutes = periods_->currentData().toInt();
    settle(reminders, [this, minutes](std::int32_t id) { return answers_.snooze(id, minutes); });
}

void ReminderWindow::settle(const QList<std::int32_t>& reminders, const std::function<Outcome(std::int32_t)>& answer)
{
    note({});
    bool allDone = true;
    for (const std::int32_t reminder : reminders) {
        try {
            if (answer(reminder) == Outcome::deleted) {
                note(tr("%1: the item was deleted, and its reminder with it.").arg(list_->subject(reminder)));
                allDone = false;
            }
            list_->take(reminder);
        } catch (const std::exception& error) {
            note(tr("That could not be stored: %1").arg(toQt(error.what())));
            allDone = false;
            break;
        }
    }
    list_->chooseOne();
    showState();
    if (allDone && reminderCount() == 0)
        accept();
}

void ReminderWindow::note(const QString& text)
{
    note_->setText(text);
    note_->setVisible(!text.isEmpty());
}

void ReminderWindow::showState()
{
    const bool any = !list_->chosen().isEmpty();
    snooze_->setEnabled(any);
    dismiss_->setEnabled(any);
    dismissAll_->setEnabled(reminderCount() > 0);
}

} // namespace qncal::host
