#include "controls/Form.h"

#include "controls/DialogHost.h"

namespace qncal {

void Form::showModal()
{
    const auto host = dialogHost();
    if (!host)
        return;
    visible_ = true;
    host->showModal(*this);
    visible_ = false;
}

void Form::show()
{
    if (const auto host = dialogHost()) {
        visible_ = true;
        host->show(*this);
    }
}

void Form::hide()
{
    visible_ = false;
    if (const auto host = dialogHost())
        host->hide(*this);
}

void Form::bringToFront()
{
    if (const auto host = dialogHost())
        host->bringToFront(*this);
}

} // namespace qncal
