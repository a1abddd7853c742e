#pragma once

#include "controls/DialogHost.h"
#include "utilities/Event.h"

#include <string>
#include <string_view>
#include <vector>

namespace qncal {

class Control;

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
    /// None takes the focus away. A disabled or hidden control leaves the focus where it is.
    void focus(Control* control);

    /// Prepares the form ahead of its first showing; a registry of windows calls it once.
    virtual void Form_Load() {}

    bool isVisible() const { return visible_; }
    bool isModal() const { return modal_; }
    /// Shows the form through the dialog host and returns when it is hidden or unloaded; without a host it
    /// returns at once as if closed.
    void showModal();
    void show();
    void hide();
    void bringToFront();
    /// Hides the form for good unless `Form_QueryUnload` refuses; True when it went.
    bool unload() { return unload(false); }
    /// What the box in the window's corner does.
    bool closeByUser() { return unload(true); }

    MousePointer mousePointer() const { return pointer_; }
    void mousePointer(MousePointer pointer);

    /// For the window: caption or pointer have changed.
    Event<> updated;
    /// For the window: the focus has moved.
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
    bool unload(bool byUser);

    std::string name_;
    std::string caption_;
    std::vector<Control*> controls_;
    Control* focused_ = nullptr;
    MousePointer pointer_ = MousePointer::standard;
    bool visible_ = false;
    bool modal_ = false;
};

} // namespace qncal
