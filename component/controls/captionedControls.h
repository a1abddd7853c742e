#pragma once

#include "controls/Control.h"

namespace qncal {

/// A control with a caption. An ampersand marks the access key: "&Save".
class CaptionedControl : public Control {
public:
    using Control::Control;
    const std::string& caption() const { return caption_; }
    void caption(std::string caption) { store(caption_, std::move(caption)); }

private:
    std::string caption_;
};

class Label : public CaptionedControl {
public:
    using CaptionedControl::CaptionedControl;
    const char* kind() const override { return "Label"; }
    std::string valueText() const override { return caption(); }
    /// Some labels are clicked.
    std::function<void()> Click;
};

/// A frame or picture area that groups controls; its caption is empty for a bare area.
class Panel : public CaptionedControl {
public:
    using CaptionedControl::CaptionedControl;
    const char* kind() const override { return "Panel"; }
    std::string valueText() const override { return caption(); }
    std::int32_t height() const { return height_; }
    void height(std::int32_t pixels)
    {
        if (store(height_, pixels))
            raise(Resize);
    }
    std::int32_t top() const { return top_; }
    void top(std::int32_t pixels) { store(top_, pixels); }
    std::function<void()> Resize;

private:
    std::int32_t height_ = 0;
    std::int32_t top_ = 0;
};

class CommandButton : public CaptionedControl {
public:
    using CaptionedControl::CaptionedControl;
    const char* kind() const override { return "CommandButton"; }
    std::string valueText() const override { return caption(); }

    /// The button that Enter presses, and the one that Escape presses.
    bool isDefault() const { return default_; }
    void isDefault(bool value) { store(default_, value); }
    bool isCancel() const { return cancel_; }
    void isCancel(bool value) { store(cancel_, value); }

    /// Presses the button; one that is not reachable stays as it is.
    void press();
    std::function<void()> Click;

private:
    bool default_ = false;
    bool cancel_ = false;
};

/// 0 clear, 1 checked, 2 greyed. Any change of the value raises Click.
class CheckBox : public CaptionedControl {
public:
    using CaptionedControl::CaptionedControl;
    const char* kind() const override { return "CheckBox"; }
    std::string valueText() const override { return std::to_string(value_); }
    std::int16_t value() const { return value_; }
    void value(std::int16_t value)
    {
        if (store(value_, value))
            raise(Click);
    }
    bool isChecked() const { return value_ == 1; }
    std::function<void()> Click;

private:
    std::int16_t value_ = 0;
};

/// One of a group of which at most one is on. Turning one on turns the others of the same control array, or of
/// the same group name, off, and raises Click on the one turned on.
class OptionButton : public CaptionedControl {
public:
    OptionButton(Form& form, std::string name, std::optional<int> index = {})
        : CaptionedControl(form, std::move(name), index), group_(this->name())
    {
    }
    const char* kind() const override { return "OptionButton"; }
    std::string valueText() const override { return value_ ? "True" : "False"; }
    bool value() const { return value_; }
    void value(bool value);
    /// The control array's name unless set.
    const std::string& group() const { return group_; }
    void group(std::string group) { group_ = std::move(group); }
    std::function<void()> Click;

private:
    std::string group_;
    bool value_ = false;
};

/// A picture by its number in the host's set; 0 is none.
class Image : public CaptionedControl {
public:
    using CaptionedControl::CaptionedControl;
    const char* kind() const override { return "Image"; }
    std::string valueText() const override { return std::to_string(picture_); }
    std::int16_t picture() const { return picture_; }
    void picture(std::int16_t number) { store(picture_, number); }

private:
    std::int16_t picture_ = 0;
};

/// An entry of a menu; `parent` is empty for the menu bar or a popup menu itself.
class MenuItem : public CaptionedControl {
public:
    using CaptionedControl::CaptionedControl;
    const char* kind() const override { return "MenuItem"; }
    std::string valueText() const override { return caption(); }
    const std::string& parent() const { return parent_; }
    void parent(std::string name) { store(parent_, std::move(name)); }
    bool isChecked() const { return checked_; }
    void checked(bool checked) { store(checked_, checked); }
    void choose();
    /// Shows the entries whose parent this is at the pointer, and returns when one was chosen or none.
    void popUp();
    std::function<void()> Click;

private:
    std::string parent_;
    bool checked_ = false;
};

} // namespace qncal
