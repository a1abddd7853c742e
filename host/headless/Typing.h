#pragma once

#include "controls/Control.h"

#include <string_view>

namespace qncal::host {

/// What keys do in a control that takes text. For any other kind nothing happens, except where said.
class Typing {
public:
    explicit Typing(Control& control) : control_(control) {}

    /// Marks all of the text and deletes it. Throws `std::runtime_error` for what takes no typed text.
    void clear() const;
    /// A character at the caret, in place of what is marked; a backspace takes one away.
    void put(char32_t character) const;

private:
    [[noreturn]] void refuse(std::string_view why) const;

    Control& control_;
};

/// The number of the key that types a character, as `Control::KeyUp` has it.
std::int32_t keyCodeOf(char32_t character);

} // namespace qncal::host
