#pragma once

#include "controls/Control.h"
#include "controls/Form.h"
#include "utilities/Date.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace qncal::host {

/// Acts on a form as a user's hand would: only on what is visible and enabled, with the focus going where the
/// hand goes. Controls are named by their path, "txtName" or "cmdOpts(1)". What a hand could not do throws
/// `std::runtime_error` that says why.
class Hand {
public:
    explicit Hand(Form& form) : form_(&form) {}
    Form& form() const { return *form_; }

    /// Clicks a button, check box, option button, label, menu entry, or gives any other control the focus.
    void click(std::string_view path);
    /// Replaces the text of a text box or editable combo box, key by key.
    void type(std::string_view path, std::string_view text);
    /// One key into a control, given as a character; the control's KeyPress may change or swallow it.
    void pressKey(std::string_view path, char32_t character);
    /// Checks or clears a check box.
    void check(std::string_view path, bool checked);
    /// Picks the row of a list, combo box, list view or tab strip by its text, or by its index.
    void pick(std::string_view path, std::string_view rowText);
    void pickIndex(std::string_view path, std::int32_t index);
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
    /// The control, after the focus went to it; throws when it is hidden or disabled.
    Control& reach(std::string_view path) const;
    void pressButton(bool isDefault);

    Form* form_;
};

/// A form's controls and values, one a line: "txtName  TextBox  "Ann"  (disabled)".
std::string listControls(const Form& form);

} // namespace qncal::host
