#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace qncal {

/// A display text with the text that stands before it and the text that stands after it, each on lines of its own.
std::string joinedDisplayText(const std::string& before, const std::string& text, const std::string& after);

/// For an item with a company alone, the first contact's name in its template becomes the company's, unless that
/// stands there as well; for an item with a contact alone the other way round. An id below 0 is none.
void exchangeClientName(std::string& itemTemplate, std::int32_t companyID, std::int32_t contactID);

/// True when a text holds any delimiter, in either case of its letters.
bool holdsDelimiter(std::string_view text);
/// True while a text still holds an opening delimiter, plain or as rich text in exactly these letters.
bool holdsExpression(std::string_view text);

} // namespace qncal
