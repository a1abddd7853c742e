#include "qt/formControls.h"

#include "controls/captionedControls.h"

#include <QLabel>

namespace qncal::host {

QLabel* newLabelFor(QWidget& buddy, const Form& form, std::string_view path, QWidget& parent)
{
    auto& control = controlOf<Label>(form, path);
    auto* label = new QLabel(&parent);
    label->setBuddy(&buddy);
    bind(control, *label);
    return label;
}

} // namespace qncal::host
