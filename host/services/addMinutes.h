#pragma once

#include "utilities/Date.h"

#include <cstdint>

namespace qncal::host {

inline Date addMinutes(Date date, std::int64_t minutes)
{
    constexpr std::int64_t secondsPerMinute = 60;
    return date.addSeconds(minutes * secondsPerMinute);
}

} // namespace qncal::host
