#pragma once

#include "utilities/Date.h"

#include <cstdint>
#include <memory>
#include <string>

namespace qncal {

class ErrorControlService;

/// Calendar arithmetic that the component creates for itself. All virtual so that a test can make one fail.
/// A result outside the years 100 to 9999 throws `RunTimeError` 6. Weekdays count from 1 Sunday to 7 Saturday.
class DateTimeService {
public:
    virtual ~DateTimeService() = default;

    void setErrorControl(std::shared_ptr<ErrorControlService> errorControl) { errorControl_ = std::move(errorControl); }
    const std::shared_ptr<ErrorControlService>& errorControl() const { return errorControl_; }

    /// True on Saturday and Sunday.
    virtual bool isWeekend(Date date);
    virtual Date getTimeOnly(Date value);
    virtual Date getDateOnly(Date value);
    /// The time of day that many hours on, to the nearest second. It runs on past midnight within the same
    /// day: 23:00 and 2 hours give 01:00. A date in `time` is dropped. Negative hours go back.
    virtual Date addHoursToTime(Date time, float hours);
    /// The hours between two moments, whichever is first; never negative.
    virtual double hoursBetween(Date from, Date to);
    /// A date on a weekend moves back to its Friday, every other stays. Knows no holidays. The time of day is kept.
    virtual Date adjustReminderDate(Date date);

    virtual int getWeekdayNumber(Date date);
    /// "Sunday" to "Saturday". A number outside 1 to 7 throws `RunTimeError` 5.
    virtual std::string getWeekdayName(int weekday);
    /// Which occurrence of its weekday in its month the date is, 1 to 5.
    virtual int getWeekOfMonth(Date date);
    /// "first" to "fifth"; beyond them figures, such as "6th".
    virtual std::string getOrdinalWord(int weekNumber);

    /// Months outside 1 to 12 carry over into the years.
    virtual int getDaysInMonth(int month, int year);
    /// Months and days out of range carry over, as in `Date::of`.
    virtual Date makeDate(int year, int month, int day);
    /// That occurrence of the weekday in the month; where the month has fewer, its last one. A week number below 1
    /// or a weekday outside 1 to 7 throws `RunTimeError` 5.
    virtual Date getNthWeekdayOfMonth(int month, int year, int weekNumber, int weekday);
    /// The last day of the date's month, without a time.
    virtual Date getLastDayOfMonth(Date date);

    /// Minutes as a duration: "45 min", "1 hr", "1 hr 30 min"; "0 min" for none, "-1 hr 30 min" below.
    virtual std::string getDurationText(std::int32_t minutes);

private:
    std::shared_ptr<ErrorControlService> errorControl_;
};

} // namespace qncal
