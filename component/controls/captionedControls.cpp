#include "controls/captionedControls.h"

#include "controls/Form.h"

namespace qncal {

void CommandButton::press()
{
    if (isReachable())
        raise(Click);
}

void OptionButton::value(bool value)
{
    if (!store(value_, value) || !value)
        return;
    for (Control* control : form().controls())
        if (auto* other = dynamic_cast<OptionButton*>(control); other && other != this && other->group_ == group_)
            other->value(false);
    raise(Click);
}

void MenuItem::popUp()
{
    if (const auto host = dialogHost())
        host->popUpMenu(*this);
}

void MenuItem::choose()
{
    if (isEnabled() && isVisible())
        raise(Click);
}

} // namespace qncal
