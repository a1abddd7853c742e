#pragma once

#include "controls/Control.h"
#include "controls/Form.h"
#include "utilities/Date.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace qncal::host {

/// Acts on a form as a user's hand would: only on what is shown and enabled, with the focus going where the
/// hand goes. Controls are named by their path, "txtName" or "cmdOpts(1)". What a hand could not do throws
/// `std::runtime_error` that says why.
class Hand {
public:
    explicit Hand(Form& form) : form_(&form) {}
    Form& form() const { return *form_; }

    /// Clicks a button, check box, option button, label, menu entry, or gives any other control the focus.
    void click(std::string_view path);
    void rightClick(std::string_view path);
    /// Clicks a list, list view or text box twice.
    void doubleClick(std::string_view path);
    /// Replaces the text of a text box, rich text box or editable combo box, key by key.
    void type(std::string_view path, std::string_view text);
    /// One key into a control, given as a character, with the events of a key; each may swallow it. It goes to the
    /// caret, in place of what is marked; 8 is the backspace key and 13 the enter key.
    void pressKey(std::string_view path, char32_t character);
    /// A key that types nothing, by its number (`Control::KeyUp`): down and up.
    void pressKeyCode(std::string_view path, std::int32_t keyCode);
    /// Checks or clears a check box.
    void check(std::string_view path, bool checked);
    /// Picks the row of a list, combo box, list view or tab strip by its text, or by its index.
    void pick(std::string_view path, std::string_view rowText);
    void pickIndex(std::string_view path, std::int32_t index);
    /// Checks or clears the row of a list view that has check boxes.
    void checkRow(std::string_view path, std::string_view rowText, bool checked);
    void clickColumn(std::string_view path, std::int32_t column);
    /// Clears the box of a date picker that has one.
    void clearDate(std::string_view path);
    /// Picks a date or time, a colour, or the value of an up-down or scroll bar.
    void pickDate(std::string_view path, Date value);
    void pickColour(std::string_view path, std::int32_t colour);
    void move(std::string_view path, std::int32_t value);
    /// Moves the focus to the next control that can take it.
    void tabAway();
    /// Presses Enter or Escape: the default or the cancel button.
    void pressEnter();
    void pressEscape();
    /// Closes the window by the box in its corner.
    void closeByBox() { form_->closeByUser(); }

    /// The named control, as a model to look at.
    template <class ControlType>
    ControlType& as(std::string_view path) const
    {
        auto* control = dynamic_cast<ControlType*>(&named(path));
        if (!control)
            wrongKind(path);
        return *control;
    }

private:
    Control& named(std::string_view path) const;
    [[noreturn]] void wrongKind(std::string_view path) const;
    /// The control, after the focus went to it; throws when it is hidden or disabled. None when the control that has
    /// the focus refuses to be left: then nothing comes of what the hand does.
    Control* reach(std::string_view path) const;
    /// The same, of a kind that is expected.
    template <class ControlType>
    ControlType* reachAs(std::string_view path) const
    {
        auto& control = as<ControlType>(path);
        return reach(path) ? &control : nullptr;
    }
    std::int32_t rowNamed(std::string_view path, std::string_view rowText) const;
    void pressButton(bool isDefault);

    Form* form_;
};

/// A form's controls and values, one a line: "txtName  TextBox  "Ann"  (disabled)".
std::string listControls(const Form& form);

} // namespace qncal::host
