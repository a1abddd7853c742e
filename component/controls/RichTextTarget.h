#pragma once

#include "utilities/Variant.h"

#include <cstdint>
#include <string_view>

namespace qncal {

/// A rich-text control that code inserts plain text into. A call may throw `RunTimeError`.
class RichTextTarget {
public:
    virtual ~RichTextTarget() = default;
    /// The position of the caret in characters; null while the control has none.
    virtual Variant SelStart() const = 0;
    virtual void insertText(std::string_view text, std::int32_t position) = 0;
};

} // namespace qncal
