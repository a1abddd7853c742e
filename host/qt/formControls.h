#pragma once

#include "controls/Control.h"
#include "controls/Form.h"
#include "qt/bindings/bindings.h"

#include <stdexcept>
#include <string>
#include <string_view>

class QLabel;

namespace qncal::host {

/// The form's control of that path. Throws `std::logic_error` when there is none, or one of another kind.
template <class ControlType>
ControlType& controlOf(const Form& form, std::string_view path)
{
    auto* found = dynamic_cast<ControlType*>(form.findControl(path));
    if (!found)
        throw std::logic_error(form.name() + " has no control " + std::string(path) + " of the kind expected");
    return *found;
}

/// A new widget that shows the control of that path.
template <class WidgetType, class ControlType>
WidgetType* newWidget(const Form& form, std::string_view path, QWidget& parent)
{
    auto& control = controlOf<ControlType>(form, path);
    auto* widget = new WidgetType(&parent);
    bind(control, *widget);
    return widget;
}

/// A new label whose access key gives the focus to the widget beside it.
QLabel* newLabelFor(QWidget& buddy, const Form& form, std::string_view path, QWidget& parent);

} // namespace qncal::host
