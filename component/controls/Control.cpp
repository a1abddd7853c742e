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

void Control::enabled(bool enabled)
{
    if (store(enabled_, enabled))
        updateContained();
}

void Control::visible(bool visible)
{
    if (store(visible_, visible))
        updateContained();
}

void Control::container(Control& panel, std::int32_t page)
{
    container_ = &panel;
    page_ = page;
    updated.raise();
}

bool Control::isShown() const
{
    return visible_ && (!container_ || (container_->isInFront(page_) && container_->isShown()));
}

bool Control::isReachable() const
{
    const auto isEnabledAll = [](const Control* control) {
        while (control && control->enabled_)
            control = control->container_;
        return control == nullptr;
    };
    return isShown() && isEnabledAll(this);
}

bool Control::keyDown(std::int32_t keyCode)
{
    // A key without a number cannot be swallowed.
    std::int32_t left = keyCode;
    const auto hear = [&](const std::function<void(std::int32_t&)>& slot) {
        if (slot && left == keyCode)
            slot(left);
    };
    hear(form_->KeyDown);
    hear(KeyDown);
    return left == keyCode;
}

void Control::keyUp(std::int32_t keyCode)
{
    for (const auto* slot : {&form_->KeyUp, &KeyUp})
        if (*slot)
            (*slot)(keyCode);
}

void Control::updateContained() const
{
    // By position: what a window does about it may make or end controls.
    const std::vector<Control*>& controls = form_->controls();
    for (std::size_t i = 0; i < controls.size(); ++i) {
        const Control* on = controls[i]->container_;
        while (on && on != this)
            on = on->container_;
        if (on)
            controls[i]->updated.raise();
    }
}

bool Control::hasFocus() const { return form_->focusedControl() == this; }

bool Control::setFocus() { return form_->focus(this); }

} // namespace qncal
