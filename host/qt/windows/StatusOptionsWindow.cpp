#include "qt/windows/StatusOptionsWindow.h"

#include "controls/TextBox.h"
#include "controls/captionedControls.h"
#include "controls/rangeControls.h"
#include "qt/icons.h"
#include "qt/widgets/ColourButton.h"
#include "qt/widgets/IconTile.h"
#include "qt/widgets/PanelScrollArea.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>

#include <algorithm>

namespace qncal::host {

namespace {

constexpr int iconColumns = 6;
/// Some rows show that there are more below.
constexpr int visibleHeight = IconTile::edge * 9 / 2;

} // namespace

StatusOptionsWindow::StatusOptionsWindow(Form& form, QWidget* parent) : FormWindow(form, parent)
{
    auto* frame = add<QGroupBox, Panel>("Frame1");
    auto* name = add<QLineEdit, TextBox>("txtField");
    auto* useColour = add<QCheckBox, CheckBox>("chkField(0)");
    auto* useIcon = add<QCheckBox, CheckBox>("chkField(1)");
    auto* colour = add<ColourButton, ColourPicker>("cpBackgroundColour");

    area_ = new PanelScrollArea(this);
    area_->setPanel(newIconPanel());
    area_->setMinimumHeight(IconTile::edge * 3 / 2);
    bind(control<Panel>("picScrollBarContainer"), *area_->viewport());
    bind(control<ScrollBar>("vScrollBar"), *area_->verticalScrollBar());

    auto* fields = new QGridLayout(frame);
    fields->setColumnStretch(2, 1);
    fields->addWidget(addLabelFor(name, "lblField"), 0, 0);
    fields->addWidget(name, 0, 1, 1, 2);
    fields->addWidget(useColour, 1, 0);
    fields->addWidget(colour, 1, 1);
    fields->addWidget(useIcon, 2, 0, 1, 3);
    fields->addWidget(area_, 3, 0, 1, 3);
    fields->setRowStretch(3, 1);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(frame, 1);
    layout->addLayout(addButtons({"cmdOK", "cmdCancel"}));
    finish();
    resize(sizeHint().width(), sizeHint().height() - area_->sizeHint().height() + visibleHeight);
}

QWidget* StatusOptionsWindow::newIconPanel()
{
    auto* panel = add<QWidget, Panel>("picIconsOptions");
    auto* grid = new QGridLayout(panel);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    grid->setColumnStretch(iconColumns, 1);
    for (int number = 1; number <= statusIconCount; ++number) {
        auto* tile = add<IconTile, CheckBox>("chkSample(" + std::to_string(number) + ")");
        tile->setIcon(statusIcon(number));
        tile->setToolTip(statusIconName(number));
        tile->setAccessibleName(statusIconName(number));
        tile->installEventFilter(this);
        tiles_.push_back(tile);
        grid->addWidget(tile, (number - 1) / iconColumns, (number - 1) % iconColumns);
    }
    return panel;
}

QWidget* StatusOptionsWindow::tileBeside(const QWidget& tile, int key) const
{
    const auto place = std::find(tiles_.begin(), tiles_.end(), &tile) - tiles_.begin();
    const auto target = place
                        + (key == Qt::Key_Left    ? -1
                           : key == Qt::Key_Right ? 1
                           : key == Qt::Key_Up    ? -iconColumns
                           : key == Qt::Key_Down  ? iconColumns
                                                  : 0);
    const bool exists = target >= 0 && target < static_cast<std::ptrdiff_t>(tiles_.size());
    return exists && target != place ? tiles_[static_cast<std::size_t>(target)] : nullptr;
}

bool StatusOptionsWindow::eventFilter(QObject* watched, QEvent* event)
{
    auto& tile = static_cast<QWidget&>(*watched);
    if (event->type() == QEvent::FocusIn)
        area_->ensureVisible(tile);
    if (event->type() == QEvent::KeyPress)
        if (QWidget* beside = tileBeside(tile, static_cast<QKeyEvent&>(*event).key())) {
            beside->setFocus(Qt::TabFocusReason);
            return true;
        }
    return FormWindow::eventFilter(watched, event);
}

} // namespace qncal::host
