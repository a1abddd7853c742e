#include "headless/Typing.h"

#include "controls/Form.h"
#include "controls/RichTextBox.h"
#include "controls/TextBox.h"
#include "controls/listControls.h"
#include "utilities/codePoints.h"
#include "utilities/utf8.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace qncal::host {

namespace {

constexpr char32_t backspace = 8;
constexpr char32_t enter = 13;
constexpr char32_t firstPrintable = 32;

/// A text with its caret, after a key.
struct Edit {
    std::string text;
    std::int32_t caret = 0;
};

std::string middle(const std::string& text, std::int32_t from, std::int32_t to)
{
    const std::size_t begin = truncatedToCodePoints(text, static_cast<std::size_t>(from)).size();
    return text.substr(begin, truncatedToCodePoints(text, static_cast<std::size_t>(to)).size() - begin);
}

Edit edited(const std::string& text, std::int32_t start, std::int32_t length, char32_t character)
{
    const auto all = static_cast<std::int32_t>(countCodePoints(text));
    start = std::clamp(start, 0, all);
    const std::int32_t end = std::clamp(start + length, start, all);
    const bool takesOneAway = character == backspace;
    if (takesOneAway && start == end)
        start = std::max(start - 1, 0);
    Edit edit{middle(text, 0, start), start};
    if (!takesOneAway) {
        appendUtf8(edit.text, character == enter ? U'\n' : character);
        ++edit.caret;
    }
    edit.text += middle(text, end, all);
    return edit;
}

void putInto(TextBox& box, char32_t character)
{
    Edit edit = edited(box.text(), box.selStart(), box.selLength(), character);
    const auto length = static_cast<std::int32_t>(countCodePoints(edit.text));
    if (box.maxLength() > 0 && length > box.maxLength()
        && length > static_cast<std::int32_t>(countCodePoints(box.text())))
        return;
    box.selStart(edit.caret);
    box.selLength(0);
    box.text(std::move(edit.text));
}

void putInto(ComboBox& box, char32_t character)
{
    const Edit edit = edited(box.text(), box.selStart(), box.selLength(), character);
    box.text(edit.text);
    // A handler may have put another text there, with the caret at its end.
    if (box.text() == edit.text)
        box.select(edit.caret, 0);
}

void putInto(RichTextBox& box, char32_t character)
{
    std::string typed;
    appendUtf8(typed, character == enter ? U'\n' : character);
    box.insertText(box.selStart(), typed);
}

} // namespace

void Typing::refuse(std::string_view why) const
{
    throw std::runtime_error(control_.form().name() + ": " + control_.path() + " " + std::string(why));
}

void Typing::clear() const
{
    if (auto* box = dynamic_cast<TextBox*>(&control_)) {
        if (box->isReadOnly())
            refuse("is read-only");
        box->selStart(0);
        box->selLength(0);
        box->text({});
    } else if (auto* combo = dynamic_cast<ComboBox*>(&control_)) {
        if (!combo->isEditable())
            refuse("takes only rows of its list");
        combo->text({});
    } else if (auto* rich = dynamic_cast<RichTextBox*>(&control_)) {
        if (rich->isReadOnly())
            refuse("is read-only");
        rich->selStart(0);
        rich->selLength(0);
        rich->textRTF({});
    } else {
        refuse(std::string("is a ") + control_.kind());
    }
}

void Typing::put(char32_t character) const
{
    auto* box = dynamic_cast<TextBox*>(&control_);
    auto* rich = dynamic_cast<RichTextBox*>(&control_);
    const bool hasLines = rich || (box && box->isMultiLine());
    if (character < firstPrintable && character != backspace && !(character == enter && hasLines))
        return;
    if (box && !box->isReadOnly())
        putInto(*box, character);
    else if (auto* combo = dynamic_cast<ComboBox*>(&control_); combo && combo->isEditable())
        putInto(*combo, character);
    else if (rich && !rich->isReadOnly()) {
        if (character == backspace || rich->selLength() > 0)
            refuse("holds rich text, of which this hand takes nothing away");
        putInto(*rich, character);
    }
}

std::int32_t keyCodeOf(char32_t character)
{
    if (character >= 'a' && character <= 'z')
        return static_cast<std::int32_t>(character) - 'a' + 'A';
    const bool isItsOwn =
        character <= firstPrintable || (character >= '0' && character <= '9') || (character >= 'A' && character <= 'Z');
    return isItsOwn ? static_cast<std::int32_t>(character) : 0;
}

} // namespace qncal::host
