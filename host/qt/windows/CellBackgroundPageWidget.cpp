#include "qt/windows/CellBackgroundPageWidget.h"

#include "controls/captionedControls.h"
#include "controls/rangeControls.h"
#include "qt/formControls.h"
#include "qt/widgets/ColourButton.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLocale>

namespace qncal::host {

namespace {

constexpr int daysOfWeek = 7;

} // namespace

CellBackgroundPageWidget::CellBackgroundPageWidget(Form& form, QWidget* parent) : QWidget(parent)
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(fontMetrics().averageCharWidth() * 3);
    // The pickers are counted from Sunday.
    for (int day = 0; day < daysOfWeek; ++day)
        grid->addWidget(new QLabel(QLocale().standaloneDayName(day == 0 ? Qt::Sunday : day), this), day + 1, 0);
    addView(*grid, form, 1, tr("Day view"), "cpDayViewBackColour");
    addView(*grid, form, 2, tr("Week view"), "cpWeekViewBackColour");
    addView(*grid, form, 3, tr("Month view"), "cpMonthViewBackColour");
    const QString views[] = {tr("Week view"), tr("Month view")};
    for (int view = 0; view < 2; ++view) {
        auto* same = newWidget<QCheckBox, CheckBox>(form, "chkUseSameColours(" + std::to_string(view) + ")", *this);
        // Both boxes have one caption.
        same->setAccessibleDescription(views[view]);
        grid->addWidget(new QLabel(views[view] + ':', this), daysOfWeek + 1 + view, 0);
        grid->addWidget(same, daysOfWeek + 1 + view, 1, 1, 4);
    }
    grid->setColumnStretch(4, 1);
    grid->setRowStretch(daysOfWeek + 3, 1);
}

void CellBackgroundPageWidget::addView(QGridLayout& grid, Form& form, int column, const QString& title,
                                       const std::string& pickers)
{
    auto* heading = new QLabel(title, this);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    grid.addWidget(heading, 0, column);
    for (int day = 0; day < daysOfWeek; ++day)
        grid.addWidget(newWidget<ColourButton, ColourPicker>(form, pickers + "(" + std::to_string(day) + ")", *this),
                       day + 1, column, Qt::AlignLeft);
}

} // namespace qncal::host
