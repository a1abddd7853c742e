#pragma once

#include "utilities/Date.h"

#include <string>
#include <string_view>

namespace qncal::firmcal {

/// "2026-03-31"
std::string dayText(Date date);
/// "09:30"
std::string timeText(Date time);
/// "Tue, Mar 31, 2026"
std::string readableDay(Date date);
/// "(no subject)" for none.
std::string subjectText(std::string_view subject);

} // namespace qncal::firmcal
