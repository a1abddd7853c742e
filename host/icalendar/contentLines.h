#pragma once

#include <cstddef>
#include <iosfwd>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// The outer form of an iCalendar file: folded lines, and components in each other. What the lines mean is told
/// elsewhere; here each one stays as it was written, so that it can be kept and written back.
namespace qncal::host::icalendar {

/// A file, or a component of one, that cannot be read. The text is one line for the user.
class CalendarError : public std::runtime_error {
public:
    explicit CalendarError(const std::string& text, int line = 0) : std::runtime_error(text), line_(line) {}
    /// The line at fault inside of a component; 0 where the text tells all.
    int line() const { return line_; }

private:
    int line_;
};

/// One unfolded line: a name, parameters and a value.
struct ContentLine {
    std::string text;
    /// Where it begins in the file, from 1; 0 for a line that no file has.
    int number = 0;

    /// In the letters of the file. Empty for a line that is no property.
    std::string_view name() const;
    bool is(std::string_view name) const;
    bool hasParameters() const;
    /// Without the quotes around it; the first one of a list. Empty when there is none.
    std::string parameter(std::string_view name) const;
    /// As written, after the first colon outside of quotes.
    std::string_view value() const;
    /// The value, its escapes resolved.
    std::string textValue() const;
};

struct CalendarComponent {
    std::string name;
    int number = 0;
    std::vector<ContentLine> lines = {};
    std::vector<CalendarComponent> children = {};

    bool is(std::string_view wanted) const;
    /// The first line of a name; none when there is none.
    const ContentLine* find(std::string_view propertyName) const;
    /// Its value, empty when there is none.
    std::string textOf(std::string_view propertyName) const;
    /// The whole component, unfolded, from BEGIN to END.
    std::vector<std::string> text() const;
};

/// The VCALENDAR components of a stream. Bytes that are no UTF-8 are read as Latin-1; control
/// characters are dropped.
/// Throws `CalendarError` for what is no iCalendar, ends in the middle, or has its components crossed.
std::vector<CalendarComponent> readCalendars(std::istream& in);

/// A component of unfolded lines, as `CalendarComponent::text` gives them. Throws as `readCalendars`.
CalendarComponent componentOf(const std::vector<std::string>& lines);

/// The line as it stands in a file: in pieces of at most 75 bytes, no character cut, each ended by CR LF.
std::string foldedLine(std::string_view line);

/// A text as a value: line ends, semicolons, commas and backslashes escaped, other control characters left out.
std::string escapedText(std::string_view text);
std::string unescapedText(std::string_view value);
/// The same with carriage returns kept, as no other program knows them: for this program's own properties.
std::string exactText(std::string_view text);
std::string fromExactText(std::string_view value);
/// A parameter's value, in quotes where it needs them; quotes inside it become apostrophes.
std::string parameterText(std::string_view value);

} // namespace qncal::host::icalendar
