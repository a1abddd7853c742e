#include "headless/HeadlessDialogHost.h"

#include "controls/ProgressDialog.h"
#include "controls/RichTextBox.h"
#include "controls/captionedControls.h"

#include <algorithm>

namespace qncal::host {

std::size_t HeadlessDialogHost::waitingScripts() const
{
    std::size_t count = 0;
    for (const auto& [name, waiting] : scripts_)
        count += waiting.size();
    return count;
}

void HeadlessDialogHost::holdKey(ModifierKey key, bool down)
{
    std::erase(keysDown_, key);
    if (down)
        keysDown_.push_back(key);
}

void HeadlessDialogHost::showModal(Form& form)
{
    open_.push_back(&form);
    act(form);
    // Nobody is left who could end the dialog: the box in its corner does, and a form that refuses is taken away.
    if (form.isVisible() && !form.closeByUser())
        form.hide();
    std::erase(open_, &form);
}

void HeadlessDialogHost::show(Form& form)
{
    bringToFront(form);
    act(form);
}

void HeadlessDialogHost::hide(Form& form) { std::erase(open_, &form); }

void HeadlessDialogHost::bringToFront(Form& form)
{
    std::erase(open_, &form);
    open_.push_back(&form);
}

bool HeadlessDialogHost::isKeyDown(ModifierKey key) const
{
    return std::find(keysDown_.begin(), keysDown_.end(), key) != keysDown_.end();
}

void HeadlessDialogHost::runProgress(ProgressDialog& dialog)
{
    if (cancelProgress_)
        dialog.cancel();
    turn();
    dialog.run();
}

bool HeadlessDialogHost::print(const RichTextBox& box)
{
    printed_.push_back(box.textRTF());
    return true;
}

std::optional<std::int32_t> HeadlessDialogHost::pickColour(std::int32_t) { return colour_; }

std::optional<FontChoice> HeadlessDialogHost::pickFont(const FontChoice&) { return font_; }

void HeadlessDialogHost::popUpMenu(MenuItem& menu)
{
    turn();
    shownMenus_.push_back(menu.name());
    auto* entry = dynamic_cast<MenuItem*>(menu.form().findControl(entry_));
    if (!entry || entry->parent() != menu.name())
        return;
    entry_.clear();
    entry->choose();
}

void HeadlessDialogHost::turn()
{
    if (onTurn_)
        onTurn_();
}

void HeadlessDialogHost::act(Form& form)
{
    turn();
    shown_.push_back(form.name());
    Script script = fallback_;
    if (const auto waiting = scripts_.find(form.name()); waiting != scripts_.end() && !waiting->second.empty()) {
        script = std::move(waiting->second.front());
        waiting->second.pop_front();
    }
    if (!script) {
        unexpected_.push_back(form.name());
        return;
    }
    Hand hand(form);
    script(hand);
}

} // namespace qncal::host
