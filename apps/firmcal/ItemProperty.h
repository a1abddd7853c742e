#pragma once

#include "items/clsCalendarItem.h"

#include <nlohmann/json_fwd.hpp>

#include <functional>
#include <span>
#include <string>
#include <string_view>

namespace qncal::firmcal {

/// A property of a calendar item, as it is shown, and as it is set from text.
struct ItemProperty {
    std::string_view name;
    /// What the property takes: "text", "number", "yes/no", "date", "time", "hours", "colour".
    std::string_view type;
    /// Empty for a property that can only be written.
    std::function<nlohmann::ordered_json(clsCalendarItem&)> get;
    /// Empty for a property that can only be read. Throws `Failure` for a text that is no such value.
    std::function<void(clsCalendarItem&, std::string_view)> set;
    /// Of interest only to who asks for every field.
    bool isDetail = false;
};

/// In the order in which an item is shown.
std::span<const ItemProperty> itemProperties();
/// By name, without regard to case. Throws `Failure`, with the nearest name, when there is none.
const ItemProperty& itemProperty(std::string_view name);
/// Applies "Name=Value". Throws `Failure` for an unknown or read-only name and for a wrong value.
void applyAssignment(clsCalendarItem& item, std::string_view assignment);

} // namespace qncal::firmcal
