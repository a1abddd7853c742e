#pragma once

#include <cstdint>
#include <memory>

namespace qncal {

class Form;

/// The shape of the mouse pointer, by the numbers the toolkit contract uses.
enum class MousePointer : std::int16_t { standard = 0, hourglass = 11 };

/// The one door from the component's forms to a user-interface toolkit.
/// Called on the component's thread. A form stays its owner's; a host forgets it when it is hidden.
class DialogHost {
public:
    virtual ~DialogHost() = default;
    /// Shows the form and returns when it is hidden or closed. Runs a nested event loop.
    virtual void showModal(Form& form) = 0;
    virtual void show(Form& form) = 0;
    virtual void hide(Form& form) = 0;
    virtual void bringToFront(Form& form) = 0;
    virtual MousePointer mousePointer() const = 0;
    virtual void mousePointer(MousePointer pointer) = 0;
    /// Lets other events of the application run.
    virtual void doEvents() = 0;
};

/// The dialog host of this thread. While none is set, a dialog that is shown returns at once as if closed.
std::shared_ptr<DialogHost> dialogHost();
void setDialogHost(std::shared_ptr<DialogHost> host);

} // namespace qncal
