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
///
/// A moment is read to the nearest second, date and time alike: a fraction within half a second of midnight
/// belongs to the day after. Two dates are equal, or in order, by that second.
///
/// The calendar spans 0100-01-01 to 9999-12-31. A serial number outside reads as the nearest end of it, one
/// that is no number as day 0. Arithmetic that leaves the span throws `RunTimeError` 6.
class Date {
public:
    constexpr Date() = default;
    constexpr explicit Date(double serial) : serial_(serial) {}

    /// Out-of-range parts carry over: month 13 is January of the next year, day 0 the last day of the
    /// month before, hour 24 the next midnight.
    static Date of(int year, int month, int day, int hour = 0, int minute = 0, int second = 0);
    static Date of(CivilDate date, CivilTime time = {});
    /// On day 0.
    static Date timeOf(int hour, int minute = 0, int second = 0);

    /// The number as it was given.
    constexpr double serial() const { return serial_; }
    /// Whether the serial number lies inside the calendar.
    bool isInCalendar() const;

    Date dateOnly() const;
    Date timeOnly() const;
    CivilDate civilDate() const;
    CivilTime civilTime() const;
    bool hasTime() const;
    /// 1 Sunday to 7 Saturday.
    int weekday() const;

    /// Moves along the time line; the time of day is kept by whole days.
    Date addDays(double days) const;
    Date addSeconds(std::int64_t seconds) const;
    /// The day is cut to the length of the resulting month.
    Date addMonths(int months) const;

    /// Seconds since 1899-12-30 00:00 on a continuous line, fit for differences on both sides of day 0.
    std::int64_t linearSeconds() const;
    static Date fromLinearSeconds(std::int64_t seconds);

    friend std::strong_ordering operator<=>(const Date& a, const Date& b)
    {
        return a.linearSeconds() <=> b.linearSeconds();
    }
    friend bool operator==(const Date& a, const Date& b) { return a.linearSeconds() == b.linearSeconds(); }

private:
    double serial_ = 0.0;
};

/// 1899-01-01, which stands for "no date" where a date is expected.
inline constexpr Date noDate{-363.0};

/// Months outside 1 to 12 carry over into the years, as in `Date::of`.
int daysInMonth(int year, int month);

/// The text in which the component hands a date to the database service: "2026-03-31",
/// "09:30:00" for a bare time (day 0), "2026-03-31 09:30:00" for both.
std::string defaultDateText(Date value);

} // namespace qncal
