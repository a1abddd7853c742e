#pragma once

#include <array>
#include <string_view>

namespace qncal {

/// A date format that a template may name.
struct DateFormatKeyword {
    std::string_view keyword;
    /// Pattern for a date field.
    std::string_view fieldFormat;
    /// Pattern for today's date.
    std::string_view todayFormat;
};

/// In the order of their indices 1 to 14. The two patterns of "dd/mm/yy" differ on purpose: a field's date gets
/// the short month name, today's date the month's number.
inline constexpr std::array<DateFormatKeyword, 14> dateFormatKeywords{{
    {"dddd, mmmm d yyyy", "dddd, mmmm d yyyy", "dddd, mmmm d yyyy"},
    {"dddd mmmm d yyyy", "dddd mmmm d yyyy", "dddd mmmm d yyyy"},
    {"mmmm d, yyyy", "mmmm d, yyyy", "mmmm d, yyyy"},
    {"mmmm d yyyy", "mmmm d yyyy", "mmmm d yyyy"},
    {"mmm d yyyy", "mmm d yyyy", "mmm d yyyy"},
    {"dd/mm/yy", "dd/mmm/yy", "dd/mm/yy"},
    {"mm/dd/yy", "mm/dd/yy", "mm/dd/yy"},
    {"d", "d", "d"},
    {"dddd", "dddd", "dddd"},
    {"mmmm", "mmmm", "mmmm"},
    {"mmm", "mmm", "mmm"},
    {"yyyy", "yyyy", "yyyy"},
    {"mmmm yyyy", "mmmm yyyy", "mmmm yyyy"},
    {"mmmm d", "mmmm d", "mmmm d"},
}};

} // namespace qncal
