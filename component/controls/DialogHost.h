#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace qncal {

class Form;
class MenuItem;
class ProgressDialog;
class RichTextBox;

/// The shape of the mouse pointer, by the numbers the toolkit contract uses.
enum class MousePointer : std::int16_t { standard = 0, hourglass = 11 };

/// Keys that stay down while others are pressed.
enum class ModifierKey : std::uint8_t { shift, control, alt };

/// A font as a user picks it.
struct FontChoice {
    std::string name;
    double points = 0;
    bool bold = false;
    bool italic = false;
    friend bool operator==(const FontChoice&, const FontChoice&) = default;
};

/// The one door from the component's forms to a user-interface toolkit.
/// Called on the component's thread. A form stays its owner's; a host forgets it when it is hidden.
class DialogHost {
public:
    virtual ~DialogHost() = default;

    /// Shows the form and returns when it is hidden. Runs a nested event loop.
    virtual void showModal(Form& form) = 0;
    /// Shows the form and returns at once.
    virtual void show(Form& form) = 0;
    virtual void hide(Form& form) = 0;
    virtual void bringToFront(Form& form) = 0;

    /// The pointer of the whole application.
    virtual MousePointer mousePointer() const = 0;
    virtual void mousePointer(MousePointer pointer) = 0;
    virtual bool isKeyDown(ModifierKey key) const = 0;
    /// Lets other events of the application run.
    virtual void doEvents() = 0;

    /// Shows the dialog, lets it do its work (`ProgressDialog::run`) and takes it away when the work is done.
    /// May cancel the work meanwhile.
    virtual void runProgress(ProgressDialog& dialog) = 0;
    /// Prints the box's rich text. False when the user cancelled.
    virtual bool print(const RichTextBox& box) = 0;
    /// Lets the user pick a colour (red in the low byte); none when cancelled.
    virtual std::optional<std::int32_t> pickColour(std::int32_t current) = 0;
    /// Lets the user pick a font; none when cancelled.
    virtual std::optional<FontChoice> pickFont(const FontChoice& current) = 0;
    /// Shows the entries of a menu at the pointer and chooses the one that the user takes, if any.
    virtual void popUpMenu(MenuItem& menu) = 0;
};

/// The dialog host of this thread. While none is set, a dialog that is shown returns at once as if closed.
std::shared_ptr<DialogHost> dialogHost();
void setDialogHost(std::shared_ptr<DialogHost> host);

} // namespace qncal
