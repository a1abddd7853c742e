#pragma once

#include "controls/DialogHost.h"
#include "utilities/Event.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace qncal {

class Control;

/// Where a dialog comes up: where its host likes to, mostly before the window that it was opened from, or over the
/// host's main window.
enum class StartUpPosition : std::uint8_t { byHost, byMainWindow };

/// A dialog without a toolkit: its controls, its state and its event routines. A `DialogHost` shows it.
///
/// A form is shown modally or modelessly, hidden (it keeps its state and may be shown again) and unloaded (asked
/// first by `Form_QueryUnload`, told by `Form_Unload`). The box in the window's corner unloads.
class Form {
public:
    explicit Form(std::string name = {}) : name_(std::move(name)) {}
    virtual ~Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const std::string& name() const { return name_; }
    const std::string& caption() const { return caption_; }
    void caption(std::string caption);

    /// In the order of the Tab key.
    const std::vector<Control*>& controls() const { return controls_; }
    /// By name, or by name and index as in "cmdOpts(1)"; none when there is no such control.
    Control* findControl(std::string_view path) const;

    Control* focusedControl() const { return focused_; }
    /// None takes the focus away. A control that is not reachable leaves the focus where it is, and so does the control
    /// that has it when its `Validate` refuses: only then it is False.
    bool focus(Control* control);

    /// Prepares the form ahead of its first showing; a registry of windows calls it once.
    virtual void Form_Load() {}

    bool isVisible() const { return visible_; }
    bool isModal() const { return modal_; }
    /// Shows the form through the dialog host and returns when it is hidden or unloaded. Without a host this and
    /// `show` return at once, as if the user had closed the form by its box.
    void showModal();
    void show();
    void hide();
    void bringToFront();
    /// Hides the form for good unless `Form_QueryUnload` refuses; True when it went.
    bool unload() { return unload(false); }
    /// What the box in the window's corner does.
    bool closeByUser() { return unload(true); }

    StartUpPosition startUpPosition() const { return position_; }
    void startUpPosition(StartUpPosition position) { position_ = position; }

    MousePointer mousePointer() const { return pointer_; }
    void mousePointer(MousePointer pointer);

    /// For the window: caption or pointer have changed.
    Event<> updated;
    /// The keys of all controls, before the control itself gets them. Setting 0 swallows the key.
    std::function<void(std::int32_t& keyCode)> KeyDown;
    std::function<void(std::int32_t keyCode)> KeyUp;

    /// For the window: the focus has moved, or is to go back to the control that refused to be left.
    Event<> focusMoved;
    /// For the window: the form goes away.
    Event<> destroyed;

protected:
    virtual void Form_QueryUnload(bool& /*cancel*/, bool /*byUser*/) {}
    virtual void Form_Unload() {}

private:
    friend class Control;
    void add(Control& control) { controls_.push_back(&control); }
    void remove(Control& control);
    /// False when the control that has the focus refuses to be left for that one.
    bool mayLeaveFor(const Control* next);
    bool unload(bool byUser);

    std::string name_;
    std::string caption_;
    std::vector<Control*> controls_;
    Control* focused_ = nullptr;
    MousePointer pointer_ = MousePointer::standard;
    StartUpPosition position_ = StartUpPosition::byHost;
    bool validating_ = false;
    bool visible_ = false;
    bool modal_ = false;
};

} // namespace qncal
