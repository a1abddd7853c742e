#pragma once

#include <compare>
#include <cstdint>
#include <string>

namespace qncal {

/// A calendar day, proleptic Gregorian.
struct CivilDate {
    int year = 1899;
    int month = 12; ///< 1 to 12
    int day = 30;   ///< 1 to 31
    friend bool operator==(const CivilDate&, const CivilDate&) = default;
};

/// A time of day, whole seconds.
struct CivilTime {
    int hour = 0;   ///< 0 to 23
    int minute = 0; ///< 0 to 59
    int second = 0; ///< 0 to 59
    friend bool operator==(const CivilTime&, const CivilTime&) = default;
};

/// A moment as days since 1899-12-30 00:00, the time of day being the fraction (0.5 is noon).
///
/// Before 1899-12-30 the whole part is negative while the fraction still counts forward from midnight:
/// -1.25 is 1899-12-29 06:00. That is how OLE automation and the databases fed by it store dates.
class Date {
public:
    constexpr Date() = default;
    constexpr explicit Date(double serial) : serial_(serial) {}

    /// Out-of-range parts carry over as in the calendar arithmetic of `addMonths` and `addDays`:
    /// month 13 is January of the next year, day 0 the last day of the month before.
    static Date of(int year, int month, int day, int hour = 0, int minute = 0, int second = 0);
    static Date of(CivilDate date, CivilTime time = {});
    static Date timeOf(int hour, int minute = 0, int second = 0);

    constexpr double serial() const { return serial_; }

    Date dateOnly() const;
    Date timeOnly() const;
    CivilDate civilDate() const;
    /// Rounded to the nearest second; a fraction that rounds up to 24:00 reads as 23:59:59.
    CivilTime civilTime() const;
    bool hasTime() const;
    /// 1 Sunday to 7 Saturday.
    int weekday() const;

    /// Moves along the time line; the time of day is kept by whole days.
    Date addDays(double days) const;
    Date addSeconds(std::int64_t seconds) const;
    /// The day is cut to the length of the resulting month.
    Date addMonths(int months) const;

    /// Days on a continuous line, fit for differences on both sides of day 0.
    double linear() const;
    static Date fromLinear(double days);

    friend std::partial_ordering operator<=>(const Date& a, const Date& b) { return a.linear() <=> b.linear(); }
    friend bool operator==(const Date& a, const Date& b) { return a.linear() == b.linear(); }

private:
    double serial_ = 0.0;
};

/// 1899-01-01, which stands for "no date" where a date is expected.
inline constexpr Date noDate{-363.0};

int daysInMonth(int year, int month);

/// The text in which the component hands a date to the database service: "2026-03-31",
/// "09:30:00" for a bare time (day 0), "2026-03-31 09:30:00" for both.
std::string defaultDateText(Date value);

} // namespace qncal
