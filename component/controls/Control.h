#pragma once

#include "utilities/Event.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

namespace qncal {

class Form;

/// A colour with red in the low byte, as it is stored.
using Colour = std::int32_t;

enum class MouseButton : std::int16_t { left = 1, right = 2, middle = 4 };

/// What every control of a form has, without a toolkit.
///
/// A setter does nothing when the value is the one already held. Otherwise it stores the value, then raises
/// `updated` for the window that shows the control, then the control's own change event for the form, whoever
/// made the change. Events are plain slots that the form fills; an empty slot is no event.
class Control {
public:
    /// Registers itself with the form, which lists its controls in the order of their making: that is also
    /// the order in which the Tab key walks them. `index` is the place in a control array, none outside of one.
    Control(Form& form, std::string name, std::optional<int> index = {});
    virtual ~Control();
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    const std::string& name() const { return name_; }
    std::optional<int> index() const { return index_; }
    /// "cmdOpts" or "cmdOpts(1)".
    std::string path() const;
    /// What kind of control it is, as shown in listings: "TextBox".
    virtual const char* kind() const = 0;
    /// The value as text, for listings and tests.
    virtual std::string valueText() const { return {}; }

    bool isEnabled() const { return enabled_; }
    void enabled(bool enabled);
    bool isVisible() const { return visible_; }
    void visible(bool visible);

    /// What the control stands on: a panel, or a page of a tab strip; none for the form itself. The container must
    /// outlive the control's use.
    Control* container() const { return container_; }
    void container(Control& panel, std::int32_t page = 0);
    /// Visible, as is all that it stands on, on the page that is in front.
    bool isShown() const;
    /// Shown and enabled, as is all that it stands on: what a user can act on.
    bool isReachable() const;

    const std::string& toolTip() const { return toolTip_; }
    void toolTip(std::string text) { store(toolTip_, std::move(text)); }
    /// What a screen reader says; the caption where there is one.
    const std::string& accessibleName() const { return accessibleName_; }
    void accessibleName(std::string text) { store(accessibleName_, std::move(text)); }

    /// None leaves the colour to the toolkit.
    std::optional<Colour> backColour() const { return backColour_; }
    void backColour(std::optional<Colour> colour) { store(backColour_, colour); }
    std::optional<Colour> foreColour() const { return foreColour_; }
    void foreColour(std::optional<Colour> colour) { store(foreColour_, colour); }

    Form& form() const { return *form_; }
    bool hasFocus() const;
    /// Moves the focus here, with the events of the control that loses it and of this one. A control that is not
    /// reachable does not take it. False when the control that has it refuses to be left.
    bool setFocus();
    /// Whether the control that is left for this one is asked by `Validate`; a Cancel button does without.
    bool causesValidation() const { return causesValidation_; }
    void causesValidation(bool causes) { causesValidation_ = causes; }

    std::function<void()> GotFocus;
    /// Asked before the focus goes on; setting `cancel` keeps it here.
    std::function<void(bool& cancel)> Validate;
    std::function<void()> LostFocus;
    /// By the number of the key (`KeyUp`). The handler may set it to 0 to swallow the key.
    std::function<void(std::int32_t& keyCode)> KeyDown;
    /// The handler may change the character, or set it to 0 to swallow the key.
    std::function<void(std::int32_t& keyAscii)> KeyPress;
    /// Letters and digits by their capital character, other keys by their virtual-key number, 0 for one without.
    std::function<void(std::int32_t keyCode)> KeyUp;
    std::function<void(MouseButton button)> MouseUp;

    /// For the window: a key goes down or up here. The form hears of it first; False when either swallowed it.
    bool keyDown(std::int32_t keyCode);
    void keyUp(std::int32_t keyCode);

    /// For the window: something that it shows has changed.
    Event<> updated;
    /// For the window: the control goes away; nothing of it but its events may be used any more.
    Event<> destroyed;

protected:
    /// True when the value was another one; the window has been told then.
    template <class Value>
    bool store(Value& member, Value value)
    {
        if (member == value)
            return false;
        member = std::move(value);
        updated.raise();
        return true;
    }

    static void raise(const std::function<void()>& slot)
    {
        if (slot)
            slot();
    }
    /// Whether what stands on this page of the control can be seen, as far as this control alone decides.
    virtual bool isInFront(std::int32_t /*page*/) const { return true; }
    /// Tells the windows of all that stands on this control that it may be shown or reached otherwise now.
    void updateContained() const;

private:
    Form* form_;
    Control* container_ = nullptr;
    std::int32_t page_ = 0;
    std::string name_;
    std::optional<int> index_;
    std::string toolTip_;
    std::string accessibleName_;
    std::optional<Colour> backColour_;
    std::optional<Colour> foreColour_;
    bool enabled_ = true;
    bool visible_ = true;
    bool causesValidation_ = true;
};

} // namespace qncal
