#include "firmcal-desktop/MainWindow.h"

#include "common/itemKind.h"
#include "firmcal-desktop/AgendaModel.h"
#include "firmcal-desktop/ReminderTimer.h"
#include "firmcal-desktop/commands.h"
#include "firmcal-desktop/menus.h"
#include "qt/convert.h"
#include "utilities/Clock.h"
#include "utilities/dateText.h"

#include <QActionGroup>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QStatusBar>
#include <QStyledItemDelegate>
#include <QToolBar>
#include <QTreeView>

namespace qncal::desktop {

namespace {

/// "Mar 30 - Apr 5, 2026"
QString weekText(const firmcal::Span& week)
{
    return host::toQt(formatDate(week.from, "mmm d") + " \u2013 " + formatDate(week.to, "mmm d, yyyy"));
}

/// Gives the rows air, those of the days more than their items, and leaves the pictures of a selected row as they are.
class AgendaRow : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const QSize size = QStyledItemDelegate::sizeHint(option, index);
        return {size.width(), size.height() + option.fontMetrics.height() * (index.parent().isValid() ? 1 : 2) / 3};
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        const auto picture = index.data(Qt::DecorationRole).value<QPixmap>();
        if (!picture.isNull())
            option->icon.addPixmap(picture, QIcon::Selected);
    }
};

/// How many items there are. A menu under the pointer takes away what the bar shows as a message.
QLabel* newState(QMainWindow& window)
{
    auto* label = new QLabel(&window);
    label->setObjectName("state");
    label->setTextFormat(Qt::PlainText);
    window.statusBar()->addWidget(label);
    return label;
}

/// Beside the count of the items.
QLabel& newReminderFailure(QMainWindow& window)
{
    auto* label = new QLabel(&window);
    label->setObjectName("reminderFailure");
    label->setTextFormat(Qt::PlainText);
    label->setMinimumWidth(1); // a long text must not widen the window
    label->hide();
    window.statusBar()->addPermanentWidget(label);
    return *label;
}

QTreeView* newView(AgendaModel& agenda, QWidget& parent)
{
    auto* view = new QTreeView(&parent);
    view->setObjectName("agenda");
    view->setAccessibleName(QObject::tr("Agenda"));
    view->setModel(&agenda);
    view->setItemDelegate(new AgendaRow(view));
    view->setAllColumnsShowFocus(true);
    view->setRootIsDecorated(false);
    view->setItemsExpandable(false);
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->header()->setSectionResizeMode(AgendaModel::subjectColumn, QHeaderView::Stretch);
    view->header()->setStretchLastSection(false);
    return view;
}

} // namespace

MainWindow::MainWindow(DesktopHost& host, QWidget* parent)
    : QMainWindow(parent), host_(host), agenda_(new AgendaModel(this)), view_(newView(*agenda_, *this)),
      weekLabel_(new QLabel(this)), state_(newState(*this)), users_(newUserList()), week_(firmcal::weekOf(today())),
      reminders_(std::make_unique<ReminderTimer>(host, *this, newReminderFailure(*this)))
{
    setObjectName("main");
    setWindowTitle(tr("FirmCal"));
    resize(fontMetrics().averageCharWidth() * 130, fontMetrics().height() * 42);
    setCentralWidget(view_);
    addMenus(*this);
    addToolBar();
    connect(view_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] { showState(); });
    connect(view_, &QTreeView::activated, this, [this] { findChild<QAction*>("itemText")->trigger(); });
    connect(users_, &QComboBox::currentIndexChanged, this, [this] { perform([] {}); });
    host_.dialogs().mainWindow(this);
    showKind();
    perform([] {});
}

MainWindow::~MainWindow() = default;

QComboBox* MainWindow::newUserList()
{
    auto* users = new QComboBox(this);
    users->setObjectName("users");
    users->setAccessibleName(tr("User"));
    users->addItem(tr("All users"));
    for (const UserEntry& user : host_.clients().getUsers())
        users->addItem(host::toQt(user.name), user.id);
    if (const auto user = host_.user())
        users->setCurrentIndex(users->findData(user->id));
    return users;
}

void MainWindow::addToolBar()
{
    auto* bar = QMainWindow::addToolBar(tr("Navigation"));
    bar->setObjectName("navigation");
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    findChild<QAction*>("previousWeek")->setIconText(tr("\u2039 Previous"));
    findChild<QAction*>("nextWeek")->setIconText(tr("Next \u203a"));
    for (const char* name : {"previousWeek", "today", "nextWeek"})
        bar->addAction(findChild<QAction*>(name));
    weekLabel_->setObjectName("week");
    QFont font = weekLabel_->font();
    font.setBold(true);
    weekLabel_->setFont(font);
    weekLabel_->setMargin(fontMetrics().averageCharWidth());
    bar->addWidget(weekLabel_);
    auto* space = new QWidget(bar);
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar->addWidget(space);
    auto* kinds = new QActionGroup(this);
    for (const char* name : kindCommands) {
        auto* action = findChild<QAction*>(name);
        action->setCheckable(true);
        kinds->addAction(action);
        bar->addAction(action);
    }
    bar->addSeparator();
    bar->addWidget(users_);
}

void MainWindow::kind(enumLocalCalendarItemType kind)
{
    kind_ = kind;
    showKind();
}

void MainWindow::showWeekOf(Date day) { week_ = firmcal::weekOf(day); }

std::optional<std::int32_t> MainWindow::currentItem() const { return agenda_->itemID(view_->currentIndex()); }

void MainWindow::currentItem(std::int32_t itemID) { view_->setCurrentIndex(agenda_->indexOf(itemID)); }

void MainWindow::reload()
{
    const auto item = currentItem();
    const auto below = agenda_->itemID(view_->indexBelow(view_->currentIndex()));
    const QVariant user = users_->currentData();
    agenda_->load(host_, week_, kind_, user.isValid() ? std::optional(user.toInt()) : std::nullopt);
    for (int day = 0; day < agenda_->rowCount(); ++day)
        view_->setFirstColumnSpanned(day, {}, true);
    view_->expandAll();
    for (const auto& candidate : {item, below}) {
        if (const QModelIndex row = candidate ? agenda_->indexOf(*candidate) : QModelIndex(); row.isValid()) {
            view_->setCurrentIndex(row);
            break;
        }
    }
    for (const int column :
         {AgendaModel::timeColumn, AgendaModel::statusColumn, AgendaModel::clientColumn, AgendaModel::userColumn})
        view_->resizeColumnToContents(column);
    showState();
}

void MainWindow::attempt(const std::function<void()>& action)
{
    try {
        action();
        host_.errors().throwIfReported();
    } catch (const std::exception& error) {
        // What the component reported on the way to this failure must not come up after the next command.
        host_.errors().markSeen();
        host_.tell(error.what());
    }
}

void MainWindow::perform(const std::function<void()>& action)
{
    attempt(action);
    try {
        reload();
    } catch (const std::exception& error) {
        state_->setText(tr("The agenda could not be read: %1").arg(host::toQt(error.what())));
    }
}

void MainWindow::showKind() { findChild<QAction*>(kindCommands[kind_])->setChecked(true); }

void MainWindow::showState()
{
    weekLabel_->setText(weekText(week_));
    const int count = agenda_->itemCount();
    const QString noun = host::toQt(count == 1 ? firmcal::kindNoun(kind_) : firmcal::kindNounPlural(kind_));
    state_->setText(QStringLiteral("%1 %2").arg(count).arg(noun));
    for (QAction* action : findChildren<QAction*>())
        if (action->property("needsItem").toBool())
            action->setEnabled(currentItem().has_value());
}

} // namespace qncal::desktop
