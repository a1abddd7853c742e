#include "headless/Hand.h"

#include "headless/Typing.h"

#include "controls/ListView.h"
#include "controls/RichTextBox.h"
#include "controls/TabStrip.h"
#include "controls/TextBox.h"
#include "controls/captionedControls.h"
#include "controls/listControls.h"
#include "controls/rangeControls.h"
#include "utilities/utf8.h"

#include <algorithm>
#include <functional>
#include <stdexcept>

namespace qncal::host {

namespace {

[[noreturn]] void refuse(const Form& form, std::string_view path, const std::string& why)
{
    throw std::runtime_error(form.name() + ": " + std::string(path) + " " + why);
}

template <class Rows, class TextOf>
std::int32_t indexOfText(const Rows& rows, std::string_view text, TextOf textOf)
{
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const auto& row) { return textOf(row) == text; });
    return found == rows.end() ? -1 : static_cast<std::int32_t>(found - rows.begin());
}

/// The others are clicked without the focus going there, and passed by the Tab key.
bool takesFocus(const Control& control)
{
    return !dynamic_cast<const Label*>(&control) && !dynamic_cast<const Panel*>(&control)
           && !dynamic_cast<const MenuItem*>(&control);
}

} // namespace

Control& Hand::named(std::string_view path) const
{
    Control* control = form_->findControl(path);
    if (!control)
        refuse(*form_, path, "does not exist");
    return *control;
}

void Hand::wrongKind(std::string_view path) const { refuse(*form_, path, std::string("is a ") + named(path).kind()); }

Control* Hand::reach(std::string_view path) const
{
    Control& control = named(path);
    if (!control.isShown())
        refuse(*form_, path, "is hidden");
    if (!control.isReachable())
        refuse(*form_, path, "is disabled");
    if (!takesFocus(control))
        return &control;
    return control.setFocus() ? &control : nullptr;
}

void Hand::click(std::string_view path)
{
    Control* control = reach(path);
    if (!control)
        return;
    if (control->MouseUp)
        control->MouseUp(MouseButton::left);
    if (auto* button = dynamic_cast<CommandButton*>(control))
        button->press();
    else if (auto* box = dynamic_cast<CheckBox*>(control))
        box->value(box->isChecked() ? 0 : 1);
    else if (auto* option = dynamic_cast<OptionButton*>(control))
        option->value(true);
    else if (auto* entry = dynamic_cast<MenuItem*>(control))
        entry->choose();
    else if (auto* label = dynamic_cast<Label*>(control); label && label->Click)
        label->Click();
}

void Hand::rightClick(std::string_view path)
{
    if (Control* control = reach(path); control && control->MouseUp)
        control->MouseUp(MouseButton::right);
}

void Hand::doubleClick(std::string_view path)
{
    const auto raise = [](const std::function<void()>& slot) {
        if (slot)
            slot();
    };
    Control* control = reach(path);
    if (auto* list = dynamic_cast<RowList*>(control))
        raise(list->DblClick);
    else if (auto* view = dynamic_cast<ListView*>(control))
        raise(view->DblClick);
    else if (auto* box = dynamic_cast<TextBox*>(control))
        raise(box->DblClick);
    else if (control)
        wrongKind(path);
}

void Hand::type(std::string_view path, std::string_view text)
{
    Control* control = reach(path);
    if (!control)
        return;
    Typing(*control).clear();
    while (!text.empty()) {
        const Utf8Character next = decodeUtf8(text);
        pressKey(path, next.codePoint);
        text.remove_prefix(next.length);
    }
}

void Hand::pressKey(std::string_view path, char32_t character)
{
    Control* control = reach(path);
    if (!control)
        return;
    auto key = static_cast<std::int32_t>(character);
    const std::int32_t code = keyCodeOf(character);
    if (control->keyDown(code)) {
        if (control->KeyPress)
            control->KeyPress(key);
        if (key != 0)
            Typing(*control).put(static_cast<char32_t>(key));
    }
    control->keyUp(code);
}

void Hand::pressKeyCode(std::string_view path, std::int32_t keyCode)
{
    if (Control* control = reach(path)) {
        control->keyDown(keyCode);
        control->keyUp(keyCode);
    }
}

void Hand::check(std::string_view path, bool checked)
{
    if (auto* box = reachAs<CheckBox>(path))
        box->value(checked ? 1 : 0);
}

std::int32_t Hand::rowNamed(std::string_view path, std::string_view rowText) const
{
    const Control& control = named(path);
    std::int32_t index = -1;
    if (const auto* list = dynamic_cast<const RowList*>(&control))
        index = indexOfText(list->rows(), rowText, [](const ListRow& row) { return std::string_view(row.text); });
    else if (const auto* view = dynamic_cast<const ListView*>(&control))
        index = indexOfText(view->rows(), rowText, [](const ListView::Row& row) {
            return row.cells.empty() ? std::string_view() : std::string_view(row.cells.front());
        });
    else if (const auto* tabs = dynamic_cast<const TabStrip*>(&control))
        index = indexOfText(tabs->tabs(), rowText, [](const std::string& tab) { return std::string_view(tab); });
    if (index < 0)
        refuse(*form_, path, "has no row \"" + std::string(rowText) + "\"");
    return index;
}

void Hand::pick(std::string_view path, std::string_view rowText) { pickIndex(path, rowNamed(path, rowText)); }

void Hand::pickIndex(std::string_view path, std::int32_t index)
{
    Control* control = reach(path);
    if (auto* combo = dynamic_cast<ComboBox*>(control))
        combo->pick(index);
    else if (auto* list = dynamic_cast<RowList*>(control))
        list->listIndex(index);
    else if (auto* view = dynamic_cast<ListView*>(control))
        view->selectedRow(index);
    else if (auto* tabs = dynamic_cast<TabStrip*>(control))
        tabs->selectedTab(index);
    else if (control)
        wrongKind(path);
}

void Hand::checkRow(std::string_view path, std::string_view rowText, bool checked)
{
    const std::int32_t row = rowNamed(path, rowText);
    auto* view = reachAs<ListView>(path);
    if (!view)
        return;
    if (!view->hasCheckBoxes())
        refuse(*form_, path, "has no check boxes");
    view->checked(row, checked);
}

void Hand::clickColumn(std::string_view path, std::int32_t column)
{
    if (auto* view = reachAs<ListView>(path))
        view->clickColumn(column);
}

void Hand::pickDate(std::string_view path, Date value)
{
    auto* picker = reachAs<DateTimePicker>(path);
    if (!picker)
        return;
    // Only a date has a calendar that drops down.
    const bool drops = picker->format() == DateTimePicker::Format::date;
    if (drops && picker->DropDown)
        picker->DropDown();
    picker->value(value);
    if (drops && picker->CloseUp)
        picker->CloseUp();
}

void Hand::clearDate(std::string_view path)
{
    auto* picker = reachAs<DateTimePicker>(path);
    if (!picker)
        return;
    if (!picker->hasCheckBox())
        refuse(*form_, path, "has no box to clear");
    picker->clearValue();
}

void Hand::pickColour(std::string_view path, std::int32_t colour)
{
    if (auto* picker = reachAs<ColourPicker>(path))
        picker->colour(colour);
}

void Hand::move(std::string_view path, std::int32_t value)
{
    if (auto* range = reachAs<RangeControl>(path))
        range->value(value);
}

void Hand::tabAway()
{
    const auto& controls = form_->controls();
    const auto current = std::find(controls.begin(), controls.end(), form_->focusedControl());
    const auto start =
        current == controls.end() ? std::size_t{0} : static_cast<std::size_t>(current - controls.begin()) + 1;
    for (std::size_t step = 0; step < controls.size(); ++step) {
        Control* next = controls[(start + step) % controls.size()];
        if (next->isReachable() && takesFocus(*next)) {
            form_->focus(next);
            return;
        }
    }
}

void Hand::pressEnter() { pressButton(true); }

void Hand::pressEscape() { pressButton(false); }

void Hand::pressButton(bool isDefault)
{
    for (Control* control : form_->controls())
        if (auto* button = dynamic_cast<CommandButton*>(control);
            button && (isDefault ? button->isDefault() : button->isCancel())) {
            button->press();
            return;
        }
}

std::string listControls(const Form& form)
{
    std::string text = form.name() + "  \"" + form.caption() + "\"\n";
    for (const Control* control : form.controls()) {
        text += "  " + control->path() + "  " + control->kind() + "  \"" + control->valueText() + "\"";
        if (!control->isShown())
            text += "  (hidden)";
        else if (!control->isReachable())
            text += "  (disabled)";
        if (control->hasFocus())
            text += "  (focus)";
        text += '\n';
    }
    return text;
}

} // namespace qncal::host
