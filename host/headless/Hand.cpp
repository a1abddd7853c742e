#include "headless/Hand.h"

#include "controls/ListView.h"
#include "controls/RichTextBox.h"
#include "controls/TabStrip.h"
#include "controls/TextBox.h"
#include "controls/captionedControls.h"
#include "controls/listControls.h"
#include "controls/rangeControls.h"
#include "utilities/codePoints.h"
#include "utilities/utf8.h"

#include <algorithm>
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

} // namespace

Control& Hand::named(std::string_view path) const
{
    Control* control = form_->findControl(path);
    if (!control)
        refuse(*form_, path, "does not exist");
    return *control;
}

void Hand::wrongKind(std::string_view path) const { refuse(*form_, path, std::string("is a ") + named(path).kind()); }

Control& Hand::reach(std::string_view path) const
{
    Control& control = named(path);
    if (!control.isVisible())
        refuse(*form_, path, "is hidden");
    if (!control.isEnabled())
        refuse(*form_, path, "is disabled");
    control.setFocus();
    return control;
}

void Hand::click(std::string_view path)
{
    Control& control = reach(path);
    if (auto* button = dynamic_cast<CommandButton*>(&control))
        button->press();
    else if (auto* box = dynamic_cast<CheckBox*>(&control))
        box->value(box->isChecked() ? 0 : 1);
    else if (auto* option = dynamic_cast<OptionButton*>(&control))
        option->value(true);
    else if (auto* entry = dynamic_cast<MenuItem*>(&control))
        entry->choose();
    else if (auto* label = dynamic_cast<Label*>(&control); label && label->Click)
        label->Click();
}

void Hand::type(std::string_view path, std::string_view text)
{
    Control& control = reach(path);
    if (auto* box = dynamic_cast<TextBox*>(&control)) {
        if (box->isReadOnly())
            refuse(*form_, path, "is read-only");
        box->text({});
    } else if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
        if (!combo->isEditable())
            refuse(*form_, path, "takes only rows of its list");
        combo->text({});
    } else {
        wrongKind(path);
    }
    while (!text.empty()) {
        const Utf8Character next = decodeUtf8(text);
        pressKey(path, next.codePoint);
        text.remove_prefix(next.length);
    }
}

void Hand::pressKey(std::string_view path, char32_t character)
{
    Control& control = reach(path);
    auto key = static_cast<std::int32_t>(character);
    if (control.KeyPress)
        control.KeyPress(key);
    if (key == 0)
        return;
    std::string typed;
    appendUtf8(typed, static_cast<char32_t>(key));
    if (auto* box = dynamic_cast<TextBox*>(&control)) {
        if (box->maxLength() == 0 || static_cast<std::int32_t>(countCodePoints(box->text())) < box->maxLength())
            box->text(box->text() + typed);
    } else if (auto* combo = dynamic_cast<ComboBox*>(&control); combo && combo->isEditable()) {
        combo->text(combo->text() + typed);
    }
    if (control.KeyUp)
        control.KeyUp(key);
}

void Hand::check(std::string_view path, bool checked)
{
    reach(path);
    as<CheckBox>(path).value(checked ? 1 : 0);
}

void Hand::pick(std::string_view path, std::string_view rowText)
{
    Control& control = named(path);
    std::int32_t index = -1;
    if (const auto* list = dynamic_cast<RowList*>(&control))
        index = indexOfText(list->rows(), rowText, [](const ListRow& row) { return std::string_view(row.text); });
    else if (const auto* view = dynamic_cast<ListView*>(&control))
        index = indexOfText(view->rows(), rowText, [](const ListView::Row& row) {
            return row.cells.empty() ? std::string_view() : std::string_view(row.cells.front());
        });
    else if (const auto* tabs = dynamic_cast<TabStrip*>(&control))
        index = indexOfText(tabs->tabs(), rowText, [](const std::string& tab) { return std::string_view(tab); });
    if (index < 0)
        refuse(*form_, path, "has no row \"" + std::string(rowText) + "\"");
    pickIndex(path, index);
}

void Hand::pickIndex(std::string_view path, std::int32_t index)
{
    Control& control = reach(path);
    if (auto* list = dynamic_cast<RowList*>(&control))
        list->listIndex(index);
    else if (auto* view = dynamic_cast<ListView*>(&control))
        view->selectedRow(index);
    else if (auto* tabs = dynamic_cast<TabStrip*>(&control))
        tabs->selectedTab(index);
    else
        wrongKind(path);
}

void Hand::pickDate(std::string_view path, Date value)
{
    reach(path);
    auto& picker = as<DateTimePicker>(path);
    picker.value(value);
    if (picker.CloseUp)
        picker.CloseUp();
}

void Hand::pickColour(std::string_view path, std::int32_t colour)
{
    reach(path);
    as<ColourPicker>(path).colour(colour);
}

void Hand::move(std::string_view path, std::int32_t value)
{
    reach(path);
    as<RangeControl>(path).value(value);
}

void Hand::tabAway()
{
    const auto& controls = form_->controls();
    const auto current = std::find(controls.begin(), controls.end(), form_->focusedControl());
    const auto start =
        current == controls.end() ? std::size_t{0} : static_cast<std::size_t>(current - controls.begin()) + 1;
    for (std::size_t step = 0; step < controls.size(); ++step) {
        Control* next = controls[(start + step) % controls.size()];
        if (next->isEnabled() && next->isVisible() && !dynamic_cast<Label*>(next) && !dynamic_cast<Panel*>(next)
            && !dynamic_cast<MenuItem*>(next)) {
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
        if (!control->isVisible())
            text += "  (hidden)";
        if (!control->isEnabled())
            text += "  (disabled)";
        if (control->hasFocus())
            text += "  (focus)";
        text += '\n';
    }
    return text;
}

} // namespace qncal::host
