#pragma once

#include <string>

namespace qncal {
class clsCalendarItem;
}

namespace qncal::firmcal {

class CommandContext;

/// What the calendar shows for an item.
struct ItemTexts {
    /// Empty unless the firm has a template for title bars.
    std::string title;
    std::string display;
};

/// Renders the texts of an item from the firm's templates. Throws `Failure` when that fails.
ItemTexts renderTexts(CommandContext& context, clsCalendarItem& item);
/// The same as they read, without the formatting of rich text.
ItemTexts readableTexts(CommandContext& context, clsCalendarItem& item);

} // namespace qncal::firmcal
