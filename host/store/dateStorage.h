#pragma once

#include "utilities/Date.h"

#include <optional>
#include <string>
#include <string_view>

namespace qncal::host {

/// How dates and times stand in the database file: ISO text, which any SQL tool reads and whose order as text is
/// the order in time. A date column holds "2026-03-31", or "2026-03-31 09:30:00" when there is a time; a time
/// column holds "09:30:00".

void appendDateStorage(const Date& date, std::string& text);
void appendTimeStorage(const Date& time, std::string& text);

/// A date, a time, or both, as they come from outside: storage text, "3/31/2026", "9:30:00 AM", and whatever
/// else `parseDate` reads. A bare time is on day 0. Nothing when the text is no date.
std::optional<Date> readDateText(std::string_view text);

} // namespace qncal::host
