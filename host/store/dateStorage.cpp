#include "store/dateStorage.h"

#include "utilities/dateText.h"
#include "utilities/text.h"

#include <array>
#include <cmath>

namespace qncal::host {

namespace {

void appendNumber(int value, int width, std::string& text)
{
    std::array<char, 8> digits{};
    for (int i = width - 1; i >= 0; --i) {
        digits[i] = static_cast<char>('0' + value % 10);
        value /= 10;
    }
    text.append(digits.data(), static_cast<std::size_t>(width));
}

/// Reads the parts of a date text from left to right.
class Reader {
public:
    explicit Reader(std::string_view text) : text_(text) {}

    bool atEnd() const { return at_ == text_.size(); }
    bool accept(char c)
    {
        const bool found = at_ < text_.size() && text_[at_] == c;
        at_ += found ? 1 : 0;
        return found;
    }
    void skipBlanks()
    {
        while (accept(' ')) {
        }
    }
    bool number(int& value, std::size_t shortest, std::size_t longest)
    {
        const std::size_t start = at_;
        value = 0;
        while (at_ < text_.size() && at_ - start < longest && text_[at_] >= '0' && text_[at_] <= '9')
            value = value * 10 + (text_[at_++] - '0');
        return at_ - start >= shortest;
    }
    std::string_view rest() const { return text_.substr(at_); }

private:
    std::string_view text_;
    std::size_t at_ = 0;
};

bool isDay(const CivilDate& date)
{
    return date.year >= 100 && date.month >= 1 && date.month <= 12 && date.day >= 1
           && date.day <= daysInMonth(date.year, date.month);
}

bool readDay(Reader& reader, CivilDate& date)
{
    int first = 0;
    if (!reader.number(first, 1, 4))
        return false;
    if (reader.accept('-')) {
        date.year = first;
        return reader.number(date.month, 1, 2) && reader.accept('-') && reader.number(date.day, 1, 2) && isDay(date);
    }
    date.month = first;
    return reader.accept('/') && reader.number(date.day, 1, 2) && reader.accept('/') && reader.number(date.year, 4, 4)
           && isDay(date);
}

bool readTime(Reader& reader, CivilTime& time)
{
    if (!reader.number(time.hour, 1, 2) || !reader.accept(':') || !reader.number(time.minute, 2, 2))
        return false;
    time.second = 0;
    if (reader.accept(':') && !reader.number(time.second, 2, 2))
        return false;
    reader.skipBlanks();
    if (time.minute > 59 || time.second > 59)
        return false;
    const std::string_view half = reader.rest();
    if (half.empty())
        return time.hour < 24;
    if (time.hour < 1 || time.hour > 12)
        return false;
    time.hour %= 12;
    if (equalsNoCase(half, "PM"))
        time.hour += 12;
    return equalsNoCase(half, "PM") || equalsNoCase(half, "AM");
}

/// The forms that make up nearly all texts, without a detour.
std::optional<Date> readCommonForm(std::string_view text)
{
    CivilTime time;
    if (Reader reader(text); readTime(reader, time))
        return Date::timeOf(time.hour, time.minute, time.second);
    Reader reader(text);
    CivilDate day;
    if (!readDay(reader, day))
        return std::nullopt;
    if (reader.atEnd())
        return Date::of(day);
    if (!reader.accept(' ') && !reader.accept('T'))
        return std::nullopt;
    reader.skipBlanks();
    if (!readTime(reader, time))
        return std::nullopt;
    return Date::of(day, time);
}

} // namespace

void appendDateStorage(const Date& date, std::string& text)
{
    const CivilDate day = date.civilDate();
    appendNumber(day.year, 4, text);
    text += '-';
    appendNumber(day.month, 2, text);
    text += '-';
    appendNumber(day.day, 2, text);
    if (!date.hasTime())
        return;
    text += ' ';
    appendTimeStorage(date, text);
}

void appendTimeStorage(const Date& time, std::string& text)
{
    const CivilTime part = time.civilTime();
    appendNumber(part.hour, 2, text);
    text += ':';
    appendNumber(part.minute, 2, text);
    text += ':';
    appendNumber(part.second, 2, text);
}

std::optional<Date> readDateText(std::string_view text)
{
    text = trimmed(text);
    if (const auto date = readCommonForm(text))
        return date;
    return parseDate(text);
}

} // namespace qncal::host
