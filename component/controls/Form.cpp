#include "controls/Form.h"

#include "controls/Control.h"
#include "utilities/text.h"

#include <algorithm>
#include <utility>

namespace qncal {

Form::~Form()
{
    if (visible_)
        hide();
    destroyed.raise();
}

void Form::caption(std::string caption)
{
    if (caption_ == caption)
        return;
    caption_ = std::move(caption);
    updated.raise();
}

Control* Form::findControl(std::string_view path) const
{
    const auto found = std::find_if(controls_.begin(), controls_.end(),
                                    [=](const Control* control) { return equalsNoCase(control->path(), path); });
    return found == controls_.end() ? nullptr : *found;
}

bool Form::focus(Control* control)
{
    if (control == focused_ || (control && !control->isReachable()))
        return true;
    if (!mayLeaveFor(control)) {
        focusMoved.raise();
        return false;
    }
    Control* previous = std::exchange(focused_, control);
    if (previous && previous->LostFocus)
        previous->LostFocus();
    // The handler of the control left may have moved the focus on.
    if (focused_ == control && control && control->GotFocus)
        control->GotFocus();
    focusMoved.raise();
    return true;
}

bool Form::mayLeaveFor(const Control* next)
{
    // A handler that moves the focus itself is not asked again.
    if (validating_ || !focused_ || !focused_->Validate || !focused_->isReachable()
        || (next && !next->causesValidation()))
        return true;
    validating_ = true;
    bool cancel = false;
    focused_->Validate(cancel);
    validating_ = false;
    return !cancel;
}

void Form::showModal()
{
    const auto host = dialogHost();
    if (!host) {
        closeByUser();
        return;
    }
    visible_ = modal_ = true;
    host->showModal(*this);
    visible_ = modal_ = false;
}

void Form::show()
{
    const auto host = dialogHost();
    if (!host) {
        closeByUser();
        return;
    }
    visible_ = true;
    host->show(*this);
}

void Form::hide()
{
    if (!visible_)
        return;
    visible_ = false;
    if (const auto host = dialogHost())
        host->hide(*this);
}

void Form::bringToFront()
{
    if (const auto host = dialogHost(); host && visible_)
        host->bringToFront(*this);
}

void Form::mousePointer(MousePointer pointer)
{
    if (pointer_ == pointer)
        return;
    pointer_ = pointer;
    updated.raise();
}

void Form::remove(Control& control)
{
    std::erase(controls_, &control);
    if (focused_ == &control)
        focused_ = nullptr;
}

bool Form::unload(bool byUser)
{
    bool cancel = false;
    Form_QueryUnload(cancel, byUser);
    if (cancel)
        return false;
    Form_Unload();
    hide();
    return true;
}

} // namespace qncal
