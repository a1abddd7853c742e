#pragma once

#include "core/ClientDropDownService.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace qncal {

/// What an item itself can say about a merge field.
enum class ItemTextField : std::uint8_t {
    subject,
    dateFrom,
    timeFrom,
    timeTo,
    timeDuration,
    appointmentText,
    custom1,
    custom2,
    custom3,
    custom4,
    custom5,
};

/// By the category and display name of the merge field; none for what the item does not know.
std::optional<ItemTextField> findItemTextField(std::string_view category, std::string_view displayName);

/// The field of a client's row in the host's lists by the display name of the merge field; empty for a name that
/// the lists do not serve.
std::string_view clientListField(ClientKind client, std::string_view displayName);

} // namespace qncal
