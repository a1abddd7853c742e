#pragma once

#include "core/schema.h"
#include "store/StoredValue.h"
#include "utilities/Variant.h"

#include <optional>
#include <string>
#include <string_view>

namespace qncal::host {

/// A text as it is stored in a column of the type; nothing when it does not convert. The result may lie in the
/// text or in `buffer`.
std::optional<StoredValue> storedFromText(schema::ColumnType type, std::string_view text, std::string& buffer);

/// As above, but a text that does not convert throws `RunTimeError` that names table, column and text.
StoredValue storedForColumn(const schema::Table& table, const schema::Column& column, std::string_view text,
                            std::string& buffer);

/// A stored value of a column of the type as the contract gives it.
Variant fieldValue(schema::ColumnType type, const StoredValue& value);
/// A stored value that belongs to no column, such as a sum.
Variant computedValue(const StoredValue& value);

} // namespace qncal::host
