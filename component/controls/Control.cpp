#include "controls/Control.h"

#include "controls/Form.h"

namespace qncal {

Control::Control(Form& form, std::string name, std::optional<int> index)
    : form_(&form), name_(std::move(name)), index_(index)
{
    form.add(*this);
}

Control::~Control()
{
    form_->remove(*this);
    destroyed.raise();
}

std::string Control::path() const { return index_ ? name_ + "(" + std::to_string(*index_) + ")" : name_; }

bool Control::hasFocus() const { return form_->focusedControl() == this; }

void Control::setFocus() { form_->focus(this); }

} // namespace qncal
