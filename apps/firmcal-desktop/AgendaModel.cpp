#include "firmcal-desktop/AgendaModel.h"

#include "common/valueText.h"
#include "firmcal-desktop/DesktopHost.h"
#include "firmcal-desktop/itemPictures.h"
#include "qt/convert.h"
#include "utilities/Clock.h"
#include "utilities/dateText.h"

#include <QFont>
#include <QIcon>

namespace qncal::desktop {

namespace {

constexpr int itemRole = Qt::UserRole;

QBrush brushOf(const std::optional<std::int32_t>& colour)
{
    const QColor shown = colour ? host::toQtColour(*colour) : QColor();
    return shown.isValid() ? QBrush(shown) : QBrush();
}

} // namespace

AgendaModel::AgendaModel(QObject* parent) : QStandardItemModel(0, columnCount, parent)
{
    setHorizontalHeaderLabels({tr("Time"), tr("Status"), tr("Subject"), tr("Client"), tr("User")});
}

void AgendaModel::load(DesktopHost& host, firmcal::Span days, enumLocalCalendarItemType kind,
                       std::optional<std::int32_t> userID)
{
    firmcal::ItemFilter filter;
    filter.kinds = {kind};
    filter.from = days.from;
    filter.to = days.to;
    filter.userID = userID;
    const std::vector<firmcal::ItemRow> items = firmcal::readItems(host.database(), filter);
    const firmcal::StatusFields statuses = firmcal::statusFields(host.database(), kind);

    removeRows(0, rowCount());
    itemCount_ = static_cast<int>(items.size());
    auto item = items.begin();
    for (Date day = days.from; day <= days.to; day = day.addDays(1)) {
        QStandardItem* heading = addDay(host, day);
        for (; item != items.end() && item->date == day; ++item)
            heading->appendRow(cellsOf(host, *item, statuses));
    }
}

QStandardItem* AgendaModel::addDay(DesktopHost& host, Date day)
{
    QString text = host::toQt(formatDate(day, "dddd, mmmm d"));
    if (day == today())
        text += tr(" (today)");
    if (const std::string holidays = firmcal::holidaysOn(host.database(), day); !holidays.empty())
        text += QStringLiteral("  \u2013  ") + host::toQt(holidays);
    auto* heading = new QStandardItem(text);
    QFont font = heading->font();
    font.setBold(true);
    heading->setFont(font);
    heading->setFlags(Qt::ItemIsEnabled);
    appendRow(heading);
    return heading;
}

QList<QStandardItem*> AgendaModel::cellsOf(DesktopHost& host, const firmcal::ItemRow& row,
                                           const firmcal::StatusFields& statuses) const
{
    QList<QStandardItem*> cells;
    for (const std::string& text :
         {firmcal::timesText(row), std::string(), firmcal::subjectText(row.subject),
          firmcal::clientName(host.clients(), row.companyID, row.contactID), host.clients().getUserName(row.userID)}) {
        auto* cell = new QStandardItem(host::toQt(text));
        cell->setData(row.id, itemRole);
        cell->setBackground(brushOf(row.backColour));
        cell->setForeground(brushOf(row.foreColour));
        cells += cell;
    }
    cells[timeColumn]->setData(swatch(brushOf(row.titleBackColour).color()), Qt::DecorationRole);
    cells[statusColumn]->setData(statusPicture(row, statuses), Qt::DecorationRole);
    const QString names = statusNames(row, statuses);
    cells[statusColumn]->setToolTip(names);
    cells[statusColumn]->setData(names, Qt::AccessibleTextRole);
    return cells;
}

std::optional<std::int32_t> AgendaModel::itemID(const QModelIndex& index) const
{
    const QVariant id = index.data(itemRole);
    return id.isValid() ? std::optional(id.toInt()) : std::nullopt;
}

QModelIndex AgendaModel::indexOf(std::int32_t itemID) const
{
    const QModelIndexList found = match(index(0, 0), itemRole, itemID, 1, Qt::MatchExactly | Qt::MatchRecursive);
    return found.isEmpty() ? QModelIndex() : found.first();
}

} // namespace qncal::desktop
