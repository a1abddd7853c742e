#pragma once

#include "qt/FormWindow.h"

#include <functional>
#include <map>
#include <string>

namespace qncal::host {

/// Knows the window class of each form by the form's name.
class WindowClasses {
public:
    using Factory = std::function<FormWindow*(Form& form, QWidget* parent)>;

    void add(std::string formName, Factory factory) { factories_[std::move(formName)] = std::move(factory); }
    template <class WindowType>
    void add(std::string formName)
    {
        add(std::move(formName), [](Form& form, QWidget* parent) { return new WindowType(form, parent); });
    }

    /// A new window, owned by its parent, or by the caller when that is none. A form without a window class, or
    /// without the controls that its class expects, gets a plain window of all its controls.
    FormWindow* make(Form& form, QWidget* parent) const;

private:
    std::map<std::string, Factory> factories_;
};

/// The windows of the component's forms.
WindowClasses standardWindows();

} // namespace qncal::host
