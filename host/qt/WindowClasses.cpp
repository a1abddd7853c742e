#include "qt/WindowClasses.h"

#include "qt/windows/PlainWindow.h"

namespace qncal::host {

FormWindow* WindowClasses::make(Form& form, QWidget* parent) const
{
    if (const auto found = factories_.find(form.name()); found != factories_.end()) {
        try {
            return found->second(form, parent);
        } catch (const std::logic_error& error) {
            qWarning("%s; a plain window is shown instead", error.what());
        }
    }
    return new PlainWindow(form, parent);
}

} // namespace qncal::host
