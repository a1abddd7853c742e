#include "qt/bindings/anyWidget.h"

#include "controls/Form.h"
#include "controls/ListView.h"
#include "controls/RichTextBox.h"
#include "controls/TabStrip.h"
#include "controls/TextBox.h"
#include "controls/captionedControls.h"
#include "controls/listControls.h"
#include "controls/rangeControls.h"
#include "qt/bindings/ControlBinding.h"
#include "qt/bindings/bindings.h"
#include "qt/convert.h"
#include "qt/widgets/ColourButton.h"
#include "qt/widgets/DateTimeEdit.h"
#include "qt/widgets/RichTextEdit.h"
#include "qt/widgets/RichTextToolBar.h"
#include "qt/widgets/UpDownButtons.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTabBar>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <string_view>
#include <vector>

namespace qncal::host {

namespace {

template <class WidgetType, class ControlType>
QWidget* bound(ControlType& control, WidgetType* widget)
{
    bind(control, *widget);
    return widget;
}

/// None when the control is of another kind.
template <class ControlType, class WidgetType>
QWidget* newWidgetIf(Control& control, QWidget& parent)
{
    auto* known = dynamic_cast<ControlType*>(&control);
    return known ? bound(*known, new WidgetType(&parent)) : nullptr;
}

QWidget* newTextWidget(Control& control, QWidget& parent)
{
    auto* box = dynamic_cast<TextBox*>(&control);
    if (!box)
        return nullptr;
    return box->isMultiLine() ? bound(*box, new QPlainTextEdit(&parent)) : bound(*box, new QLineEdit(&parent));
}

QWidget* newRichTextWidget(Control& control, QWidget& parent)
{
    auto* box = dynamic_cast<RichTextBox*>(&control);
    if (!box)
        return nullptr;
    auto* pane = new QWidget(&parent);
    auto* layout = new QVBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* edit = new RichTextEdit(pane);
    layout->addWidget(new RichTextToolBar(*edit, pane));
    layout->addWidget(bound(*box, edit));
    return pane;
}

QWidget* newScrollBar(Control& control, QWidget& parent)
{
    auto* bar = dynamic_cast<ScrollBar*>(&control);
    return bar ? bound(*bar, new QScrollBar(Qt::Horizontal, &parent)) : nullptr;
}

std::vector<MenuItem*> entriesBelow(const Form& form, std::string_view parent)
{
    std::vector<MenuItem*> entries;
    for (Control* control : form.controls())
        if (auto* item = dynamic_cast<MenuItem*>(control); item && item->parent() == parent)
            entries.push_back(item);
    return entries;
}

/// Adds the entries below a menu, empty for the menu bar, with what stands below each.
void addEntries(QWidget& place, const Form& form, std::string_view parent)
{
    for (MenuItem* item : entriesBelow(form, parent)) {
        QAction* action = nullptr;
        if (entriesBelow(form, item->name()).empty()) {
            action = new QAction(&place);
        } else {
            auto* menu = new QMenu(&place);
            addEntries(*menu, form, item->name());
            action = menu->menuAction();
        }
        place.addAction(action);
        bind(*item, *action);
    }
}

} // namespace

QWidget* newWidgetFor(Control& control, QWidget& parent)
{
    using Maker = QWidget* (*)(Control&, QWidget&);
    constexpr Maker makers[] = {
        newTextWidget,
        newRichTextWidget,
        newScrollBar,
        newWidgetIf<Label, QLabel>,
        newWidgetIf<Panel, QGroupBox>,
        newWidgetIf<Image, QLabel>,
        newWidgetIf<CommandButton, QPushButton>,
        newWidgetIf<CheckBox, QCheckBox>,
        newWidgetIf<OptionButton, QRadioButton>,
        newWidgetIf<ComboBox, QComboBox>,
        newWidgetIf<ListBox, QListWidget>,
        newWidgetIf<ListView, QTreeWidget>,
        newWidgetIf<DateTimePicker, DateTimeEdit>,
        newWidgetIf<UpDown, UpDownButtons>,
        newWidgetIf<TabStrip, QTabBar>,
        newWidgetIf<ColourPicker, ColourButton>,
    };
    for (const Maker make : makers)
        if (QWidget* widget = make(control, parent))
            return widget;
    return new QLabel(toQt(control.path() + ": " + control.valueText()), &parent);
}

QMenuBar* newMenuBarFor(const Form& form, QWidget& parent)
{
    if (entriesBelow(form, {}).empty())
        return nullptr;
    auto* bar = new QMenuBar(&parent);
    addEntries(*bar, form, {});
    return bar;
}

QMenu* newMenuFor(const MenuItem& menu, QWidget* parent)
{
    auto* shown = new QMenu(parent);
    addEntries(*shown, menu.form(), menu.name());
    return shown;
}

} // namespace qncal::host
