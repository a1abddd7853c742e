#include "controls/ListView.h"
#include "controls/listControls.h"
#include "qt/bindings/ControlBinding.h"
#include "qt/bindings/bindings.h"
#include "qt/convert.h"

#include <QHeaderView>
#include <QListWidget>
#include <QTreeWidget>

#include <algorithm>

namespace qncal::host {

namespace {

constexpr int itemDataRole = Qt::UserRole;

/// The model's row that a row of the widget shows, -1 when it has gone: the widget may be a turn of the event loop
/// behind, so that the rows need not have the same places.
template <class Row, class IsShown>
std::int32_t modelRow(const std::vector<Row>& rows, int place, IsShown isShown)
{
    if (place >= 0 && place < std::ssize(rows) && isShown(rows[static_cast<std::size_t>(place)]))
        return place;
    const auto found = std::find_if(rows.begin(), rows.end(), isShown);
    return found == rows.end() ? -1 : static_cast<std::int32_t>(found - rows.begin());
}

class ListBoxBinding : public BindingOf<ListBox, QListWidget> {
public:
    ListBoxBinding(ListBox& control, QListWidget& widget) : BindingOf(control, widget)
    {
        watch(*widget.viewport());
        connect(&widget, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* item) {
            fromUser([=, this] { model().listIndex(item ? rowOf(*item) : -1); });
        });
        start(When::nextTurn);
    }

protected:
    void show() override
    {
        QListWidget& list = view();
        const auto& rows = model().rows();
        const int count = static_cast<int>(rows.size());
        while (list.count() > count)
            delete list.takeItem(list.count() - 1);
        for (int index = 0; index < count; ++index) {
            if (index == list.count())
                list.addItem(QString());
            QListWidgetItem& item = *list.item(index);
            item.setText(toQt(rows[static_cast<std::size_t>(index)].text));
            item.setData(itemDataRole, rows[static_cast<std::size_t>(index)].itemData);
        }
        list.setCurrentRow(model().listIndex());
    }

    void doubleClicked() override
    {
        if (model().DblClick)
            model().DblClick();
    }

private:
    std::int32_t rowOf(const QListWidgetItem& item) const
    {
        return modelRow(model().rows(), view().row(&item), [&](const ListRow& row) {
            return row.itemData == item.data(itemDataRole).toInt() && toQt(row.text) == item.text();
        });
    }
};

class ListViewBinding : public BindingOf<ListView, QTreeWidget> {
public:
    ListViewBinding(ListView& control, QTreeWidget& widget) : BindingOf(control, widget)
    {
        widget.setRootIsDecorated(false);
        widget.setUniformRowHeights(true);
        widget.setAllColumnsShowFocus(true);
        QHeaderView& header = *widget.header();
        header.setSectionsClickable(true);
        header.setSortIndicatorShown(true);
        connect(&header, &QHeaderView::sectionClicked, this,
                [this](int column) { fromUser([=, this] { model().clickColumn(column); }); });
        connect(&widget, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
            fromUser([=, this] { model().selectedRow(item ? rowOf(*item) : -1); });
        });
        connect(&widget, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem* item, int column) {
            fromUser([=, this] {
                if (column == 0 && model().hasCheckBoxes())
                    model().checked(rowOf(*item), item->checkState(0) == Qt::Checked);
            });
        });
        // A double click on the heading sorts twice; only one on a row is a DblClick.
        connect(&widget, &QTreeWidget::itemDoubleClicked, this, [this] {
            fromUser([this] {
                if (model().DblClick)
                    model().DblClick();
            });
        });
        start(When::nextTurn);
    }

protected:
    void show() override
    {
        showColumns();
        QTreeWidget& tree = view();
        const auto& rows = model().rows();
        const int count = static_cast<int>(rows.size());
        while (tree.topLevelItemCount() > count)
            delete tree.takeTopLevelItem(tree.topLevelItemCount() - 1);
        for (int index = 0; index < count; ++index) {
            if (index == tree.topLevelItemCount())
                tree.addTopLevelItem(new QTreeWidgetItem);
            showRow(*tree.topLevelItem(index), rows[static_cast<std::size_t>(index)]);
        }
        tree.setCurrentItem(tree.topLevelItem(model().selectedRow()));
    }

private:
    std::int32_t rowOf(QTreeWidgetItem& item) const
    {
        return modelRow(model().rows(), view().indexOfTopLevelItem(&item), [&](const ListView::Row& row) {
            return row.itemData == item.data(0, itemDataRole).toInt()
                   && (row.cells.empty() ? QString() : toQt(row.cells.front())) == item.text(0);
        });
    }

    void showColumns()
    {
        QTreeWidget& tree = view();
        const auto& columns = model().columns();
        tree.header()->setSortIndicator(model().sortColumn(),
                                        model().isAscending() ? Qt::AscendingOrder : Qt::DescendingOrder);
        if (columns == shownColumns_)
            return;
        shownColumns_ = columns;
        QStringList titles;
        for (const ListView::Column& column : columns)
            titles += toQt(column.title);
        tree.setColumnCount(static_cast<int>(titles.size()));
        tree.setHeaderLabels(titles);
        for (int index = 0; index < titles.size(); ++index)
            tree.setColumnWidth(index,
                                static_cast<int>(columns[static_cast<std::size_t>(index)].width / twipsPerPixel));
    }

    void showRow(QTreeWidgetItem& item, const ListView::Row& row) const
    {
        for (std::size_t column = 0; column < shownColumns_.size(); ++column)
            item.setText(static_cast<int>(column), column < row.cells.size() ? toQt(row.cells[column]) : QString());
        item.setData(0, itemDataRole, row.itemData);
        if (model().hasCheckBoxes())
            item.setCheckState(0, row.checked ? Qt::Checked : Qt::Unchecked);
        else
            item.setData(0, Qt::CheckStateRole, QVariant());
    }

    std::vector<ListView::Column> shownColumns_;
};

} // namespace

void bind(ListBox& control, QListWidget& widget) { new ListBoxBinding(control, widget); }

void bind(ListView& control, QTreeWidget& widget) { new ListViewBinding(control, widget); }

} // namespace qncal::host
