#include "utilities/dateText.h"
#include "utilities/text.h"

#include <algorithm>
#include <array>

namespace qncal {

namespace {

constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }
constexpr bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

/// A whole number and how many digits it was written with, which is what makes 26 and 0026 two years.
struct Number {
    int value = 0;
    int digits = 0;
};

/// A cursor over the text. What does not match is left unread.
class Reader {
public:
    explicit Reader(std::string_view text) : rest_(text) {}

    bool atEnd() const { return rest_.empty(); }
    char peek() const { return rest_.empty() ? '\0' : rest_.front(); }

    bool accept(char c)
    {
        if (peek() != c || rest_.empty())
            return false;
        rest_.remove_prefix(1);
        return true;
    }

    /// True when there was something to skip.
    bool skipBlanks()
    {
        const std::size_t before = rest_.size();
        while (!rest_.empty() && (rest_.front() == ' ' || rest_.front() == '\t'))
            rest_.remove_prefix(1);
        return rest_.size() != before;
    }

    /// At most four digits, the longest part that a date has.
    std::optional<Number> number()
    {
        Number read;
        while (isDigit(peek())) {
            if (++read.digits > 4)
                return std::nullopt;
            read.value = read.value * 10 + (rest_.front() - '0');
            rest_.remove_prefix(1);
        }
        return read.digits == 0 ? std::nullopt : std::optional(read);
    }

    /// A number of one or two digits.
    std::optional<int> shortNumber()
    {
        const auto read = number();
        return read && read->digits <= 2 ? std::optional(read->value) : std::nullopt;
    }

    /// True when there was something to skip.
    bool skipDigits()
    {
        const std::size_t before = rest_.size();
        while (isDigit(peek()))
            rest_.remove_prefix(1);
        return rest_.size() != before;
    }

    std::string_view word()
    {
        const auto end = std::find_if_not(rest_.begin(), rest_.end(), isLetter);
        const auto letters = rest_.substr(0, static_cast<std::size_t>(end - rest_.begin()));
        rest_.remove_prefix(letters.size());
        return letters;
    }

private:
    std::string_view rest_;
};

/// The 1-based index of the name that the word is, or is the first three letters of; 0 when it is none.
template <class NameOf>
int indexOfName(std::string_view word, int count, NameOf nameOf)
{
    for (int index = 1; index <= count; ++index) {
        const std::string_view name = nameOf(index);
        if (equalsNoCase(word, name) || equalsNoCase(word, name.substr(0, 3)))
            return index;
    }
    return 0;
}

int monthOfName(std::string_view word) { return indexOfName(word, 12, monthName); }
int weekdayOfName(std::string_view word) { return indexOfName(word, 7, weekdayName); }

int fullYear(Number year)
{
    if (year.digits > 2)
        return year.value;
    return year.value + (year.value < 30 ? 2000 : 1900);
}

/// Month 0 stands for a name that is no month's.
std::optional<CivilDate> checkedDate(int year, int month, int day)
{
    if (year < 100 || year > 9999 || month < 1 || month > 12 || day < 1 || day > daysInMonth(year, month))
        return std::nullopt;
    return CivilDate{year, month, day};
}

/// Takes one text apart; each `read` gives false where the text is no date.
class DateParser {
public:
    explicit DateParser(std::string_view text) : in_(text) {}

    std::optional<Date> parse()
    {
        for (in_.skipBlanks(); !in_.atEnd(); in_.skipBlanks()) {
            const bool read = isLetter(in_.peek()) ? readNamed() : readNumeric();
            if (!read)
                return std::nullopt;
        }
        if (!date_)
            return time_ && weekday_ == 0 ? std::optional(Date::of(CivilDate{}, *time_)) : std::nullopt;
        const Date whole = Date::of(*date_, time_.value_or(CivilTime{}));
        return weekday_ == 0 || whole.weekday() == weekday_ ? std::optional(whole) : std::nullopt;
    }

private:
    /// A weekday in front of the date, or a date that begins with the name of its month.
    bool readNamed()
    {
        const auto word = in_.word();
        if (date_ || time_)
            return false;
        if (weekday_ == 0) {
            weekday_ = weekdayOfName(word);
            if (weekday_ != 0) {
                in_.accept(',');
                return true;
            }
        }
        const int month = monthOfName(word);
        in_.skipBlanks();
        const auto day = in_.shortNumber();
        return day && readYear(month, *day);
    }

    /// A time, or a date that begins with a number.
    bool readNumeric()
    {
        const auto first = in_.number();
        if (!first)
            return false;
        if (in_.peek() == ':')
            return readTime(*first);
        if (in_.accept('/'))
            return readSeparated(*first, '/');
        if (in_.accept('-'))
            return readSeparated(*first, '-');
        in_.skipBlanks();
        if (!isLetter(in_.peek()))
            return false;
        const Reader beforeWord = in_;
        const int month = monthOfName(in_.word());
        if (month != 0)
            return first->digits <= 2 && readYear(month, first->value);
        in_ = beforeWord;
        return readTime(*first);
    }

    /// The year behind a day and a month: ", 2026", " 2026".
    bool readYear(int month, int day)
    {
        in_.accept(',');
        in_.skipBlanks();
        const auto year = in_.number();
        return year && setDate(*year, month, day);
    }

    /// Year first when it has four digits, then a named month for day first, else month first.
    bool readSeparated(Number first, char separator)
    {
        if (isLetter(in_.peek())) {
            const int month = monthOfName(in_.word());
            if (first.digits > 2 || !in_.accept(separator))
                return false;
            const auto year = in_.number();
            return year && setDate(*year, month, first.value);
        }
        const auto second = in_.shortNumber();
        if (!second || !in_.accept(separator))
            return false;
        const auto third = in_.number();
        if (!third)
            return false;
        if (first.digits == 4)
            return third->digits <= 2 && setDate(first, *second, third->value);
        return first.digits <= 2 && setDate(*third, first.value, *second);
    }

    bool setDate(Number year, int month, int day)
    {
        if (date_ || time_)
            return false;
        date_ = checkedDate(fullYear(year), month, day);
        if (!date_)
            return false;
        if (in_.accept('T'))
            return isDigit(in_.peek());
        return !in_.accept(',') || !in_.atEnd();
    }

    /// "h:mm", "h:mm:ss", "h:mm:ss.fff", each with or without a marker, or "h" with one.
    bool readTime(Number hour)
    {
        if (time_ || hour.digits > 2)
            return false;
        CivilTime time{hour.value, 0, 0};
        bool minutesGiven = false;
        if (in_.accept(':')) {
            const auto minute = in_.shortNumber();
            if (!minute)
                return false;
            time.minute = *minute;
            minutesGiven = true;
            if (in_.accept(':')) {
                const auto second = in_.shortNumber();
                if (!second)
                    return false;
                time.second = *second;
                if (in_.accept('.') && !in_.skipDigits())
                    return false;
            }
        }
        in_.skipBlanks();
        if (!applyMarker(time, minutesGiven) || time.hour > 23 || time.minute > 59 || time.second > 59)
            return false;
        time_ = time;
        return true;
    }

    bool applyMarker(CivilTime& time, bool mayLack)
    {
        if (!isLetter(in_.peek()))
            return mayLack;
        const auto marker = in_.word();
        const bool afternoon = equalsNoCase(marker, "pm");
        if ((!afternoon && !equalsNoCase(marker, "am")) || time.hour > 12)
            return false;
        time.hour = time.hour % 12 + (afternoon ? 12 : 0);
        return true;
    }

    Reader in_;
    int weekday_ = 0;
    std::optional<CivilDate> date_;
    std::optional<CivilTime> time_;
};

} // namespace

std::optional<Date> parseDate(std::string_view text) { return DateParser(trimmed(text)).parse(); }

} // namespace qncal
