#pragma once

#include "common/days.h"
#include "common/itemRows.h"
#include "common/statusFields.h"

#include <QStandardItemModel>

#include <optional>
#include <vector>

namespace qncal::desktop {

class DesktopHost;

/// The items of one kind in a span of days, as a tree: a row for each day, its items below it in their own colours.
class AgendaModel : public QStandardItemModel {
public:
    enum Column { timeColumn, statusColumn, subjectColumn, clientColumn, userColumn, columnCount };

    explicit AgendaModel(QObject* parent = nullptr);

    /// Reads the items anew. Without a user those of all users.
    void load(DesktopHost& host, firmcal::Span days, enumLocalCalendarItemType kind,
              std::optional<std::int32_t> userID);

    /// The item of a row; none for the row of a day.
    std::optional<std::int32_t> itemID(const QModelIndex& index) const;
    /// The row of an item; invalid when it is not shown.
    QModelIndex indexOf(std::int32_t itemID) const;
    int itemCount() const { return itemCount_; }

private:
    QStandardItem* addDay(DesktopHost& host, Date day);
    QList<QStandardItem*> cellsOf(DesktopHost& host, const firmcal::ItemRow& row,
                                  const firmcal::StatusFields& statuses) const;

    int itemCount_ = 0;
};

} // namespace qncal::desktop
