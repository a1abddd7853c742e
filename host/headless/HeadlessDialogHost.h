#pragma once

#include "controls/DialogHost.h"
#include "headless/Hand.h"

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace qncal::host {

/// A dialog host without a display, for tests and the command line: a script acts as the user's hand on each
/// form that is shown. A modal form that its script leaves open is closed by the box in its corner; so is one
/// that no script waits for, and its name is kept in `unexpectedForms`.
class HeadlessDialogHost : public DialogHost {
public:
    using Script = std::function<void(Hand& hand)>;

    /// The script for the next showing of the form of that name; several wait in line.
    void whenShown(const std::string& formName, Script script) { scripts_[formName].push_back(std::move(script)); }
    /// The script for every showing that no other script waits for.
    void whenAnyShown(Script script) { fallback_ = std::move(script); }

    /// The names of all forms shown so far, in order.
    const std::vector<std::string>& shownForms() const { return shown_; }
    const std::vector<std::string>& unexpectedForms() const { return unexpected_; }
    std::size_t waitingScripts() const;
    /// The forms on the screen, the front one last.
    const std::vector<Form*>& openForms() const { return open_; }

    /// Called before each form is shown and whenever events are let through, as at each turn of a real loop.
    void onTurn(std::function<void()> action) { onTurn_ = std::move(action); }
    void holdKey(ModifierKey key, bool down);
    /// What the next progress dialogs do: cancelled at once when set.
    void cancelProgress(bool cancel) { cancelProgress_ = cancel; }
    /// What is picked from now on; none cancels.
    void colourToPick(std::optional<std::int32_t> colour) { colour_ = colour; }
    void fontToPick(std::optional<FontChoice> font) { font_ = std::move(font); }
    /// The entry, by its name, that is chosen from the next popup menu that has it; the menu closes without one else.
    void entryToChoose(std::string name) { entry_ = std::move(name); }
    /// The names of all popup menus shown so far, in order.
    const std::vector<std::string>& shownMenus() const { return shownMenus_; }
    /// The rich texts printed so far.
    const std::vector<std::string>& printed() const { return printed_; }

    void showModal(Form& form) override;
    void show(Form& form) override;
    void hide(Form& form) override;
    void bringToFront(Form& form) override;
    MousePointer mousePointer() const override { return pointer_; }
    void mousePointer(MousePointer pointer) override { pointer_ = pointer; }
    bool isKeyDown(ModifierKey key) const override;
    void doEvents() override { turn(); }
    void runProgress(ProgressDialog& dialog) override;
    bool print(const RichTextBox& box) override;
    std::optional<std::int32_t> pickColour(std::int32_t current) override;
    std::optional<FontChoice> pickFont(const FontChoice& current) override;
    void popUpMenu(MenuItem& menu) override;

private:
    void act(Form& form);
    void turn();

    std::map<std::string, std::deque<Script>> scripts_;
    Script fallback_;
    std::function<void()> onTurn_;
    std::vector<std::string> shown_;
    std::vector<std::string> unexpected_;
    std::vector<Form*> open_;
    std::vector<std::string> printed_;
    std::vector<ModifierKey> keysDown_;
    std::vector<std::string> shownMenus_;
    std::optional<std::int32_t> colour_;
    std::optional<FontChoice> font_;
    std::string entry_;
    MousePointer pointer_ = MousePointer::standard;
    bool cancelProgress_ = false;
};

} // namespace qncal::host
