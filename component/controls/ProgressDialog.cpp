#include "controls/ProgressDialog.h"

#include "controls/DialogHost.h"

#include <algorithm>

namespace qncal {

void ProgressDialog::text(std::string text)
{
    if (text_ == text)
        return;
    text_ = std::move(text);
    updated.raise();
}

void ProgressDialog::maximum(std::int32_t maximum)
{
    if (maximum_ == maximum)
        return;
    maximum_ = std::max(maximum, 0);
    value_ = std::min(value_, maximum_);
    updated.raise();
}

void ProgressDialog::value(std::int32_t value)
{
    value = std::clamp(value, 0, maximum_);
    if (value_ == value)
        return;
    value_ = value;
    updated.raise();
}

void ProgressDialog::close()
{
    if (closed_)
        return;
    closed_ = true;
    updated.raise();
}

void ProgressDialog::show()
{
    closed_ = cancelled_ = false;
    value_ = 0;
    if (const auto host = dialogHost())
        host->runProgress(*this);
    else
        run();
}

void ProgressDialog::run()
{
    if (StartProgress)
        StartProgress();
    close();
}

} // namespace qncal
