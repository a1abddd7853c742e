#include "icalendar/contentLines.h"

#include "utilities/text.h"
#include "utilities/utf8.h"

#include <algorithm>
#include <istream>
#include <iterator>
#include <optional>
#include <utility>

namespace qncal::host::icalendar {

namespace {

constexpr std::size_t foldedLength = 75;
constexpr std::size_t deepestComponent = 16;
/// Far beyond any attachment that a calendar carries in itself.
constexpr std::size_t longestLine = 32U << 20U;
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// The first of some characters outside of quotes.
std::size_t findUnquoted(std::string_view text, std::string_view wanted, std::size_t from = 0)
{
    bool quoted = false;
    for (std::size_t i = from; i < text.size(); ++i) {
        if (text[i] == '"')
            quoted = !quoted;
        else if (!quoted && wanted.find(text[i]) != std::string_view::npos)
            return i;
    }
    return std::string_view::npos;
}

bool isName(std::string_view name)
{
    return !name.empty() && std::ranges::all_of(name, [](char c) {
        const char lower = lowerAscii(c);
        return (lower >= 'a' && lower <= 'z') || (c >= '0' && c <= '9') || c == '-' || c == '_';
    });
}

std::string inUtf8(std::string_view line)
{
    std::string text;
    text.reserve(line.size());
    while (!line.empty()) {
        const Utf8Character character = decodeUtf8(line);
        const bool isControl = character.valid && character.codePoint < ' ' && character.codePoint != '\t';
        if (character.valid && !isControl)
            text += line.substr(0, character.length);
        else if (!isControl)
            appendUtf8(text, static_cast<unsigned char>(line.front()));
        line.remove_prefix(character.length);
    }
    return text;
}

std::string lineName(int number) { return "line " + std::to_string(number); }

/// Takes the backslashes away; `meaningOf` tells what the character behind one means.
template <class Meaning>
std::string unescaped(std::string_view value, Meaning meaningOf)
{
    std::string text;
    for (std::size_t i = 0; i < value.size(); ++i) {
        const bool isEscape = value[i] == '\\' && i + 1 < value.size();
        text += isEscape ? meaningOf(value[++i]) : value[i];
    }
    return text;
}

/// Reads unfolded lines; the last line's number is that of its first piece.
class LineReader {
public:
    explicit LineReader(std::istream& in) : in_(in) {}

    std::optional<ContentLine> next()
    {
        std::string piece;
        ContentLine line{.text = {}, .number = 0};
        if (pending_)
            line = *std::exchange(pending_, std::nullopt);
        else if (readPiece(piece))
            line = {std::move(piece), number_};
        else
            return std::nullopt;
        while (readPiece(piece)) {
            if (piece.empty() || (piece.front() != ' ' && piece.front() != '\t')) {
                pending_ = ContentLine{std::move(piece), number_};
                break;
            }
            line.text.append(piece, 1);
            if (line.text.size() > longestLine)
                throw CalendarError(lineName(line.number) + " is too long");
        }
        line.text = inUtf8(line.text);
        return line;
    }

private:
    bool readPiece(std::string& piece)
    {
        if (!std::getline(in_, piece))
            return false;
        ++number_;
        if (piece.ends_with('\r'))
            piece.pop_back();
        if (piece.size() > longestLine)
            throw CalendarError(lineName(number_) + " is too long");
        if (number_ == 1 && piece.starts_with(byteOrderMark))
            piece.erase(0, byteOrderMark.size());
        return true;
    }

    std::istream& in_;
    std::optional<ContentLine> pending_;
    int number_ = 0;
};

/// Puts lines into the components that they stand in.
class ComponentBuilder {
public:
    void add(ContentLine line)
    {
        if (line.is("BEGIN"))
            return begin(line);
        if (line.is("END"))
            return end(line);
        if (trimmed(line.text).empty())
            return;
        if (open_.empty())
            throw CalendarError(finished_.empty() ? "this is no iCalendar file: it does not begin with BEGIN:VCALENDAR"
                                                  : lineName(line.number) + " stands outside of any calendar");
        open_.back().lines.push_back(std::move(line));
    }

    std::vector<CalendarComponent> finish()
    {
        if (!open_.empty())
            throw CalendarError("the file ends in the middle of the " + open_.back().name + " that begins at "
                                + lineName(open_.back().number));
        return std::move(finished_);
    }

private:
    void begin(const ContentLine& line)
    {
        if (open_.size() == deepestComponent)
            throw CalendarError(lineName(line.number) + " begins a component too deep inside of others");
        open_.push_back({std::string(trimmed(line.value())), line.number});
    }

    void end(const ContentLine& line)
    {
        const std::string_view name = trimmed(line.value());
        if (open_.empty() || !open_.back().is(name))
            throw CalendarError(
                lineName(line.number) + " ends " + std::string(name)
                + (open_.empty() ? ", which was not begun" : ", but " + open_.back().name + " is open"));
        CalendarComponent component = std::move(open_.back());
        open_.pop_back();
        (open_.empty() ? finished_ : open_.back().children).push_back(std::move(component));
    }

    std::vector<CalendarComponent> open_;
    std::vector<CalendarComponent> finished_;
};

} // namespace

std::string_view ContentLine::name() const
{
    const std::string_view found = std::string_view(text).substr(0, text.find_first_of(";:"));
    return found.size() < text.size() && isName(found) ? found : std::string_view();
}

bool ContentLine::is(std::string_view wanted) const { return equalsNoCase(name(), wanted); }

bool ContentLine::hasParameters() const { return name().size() < text.size() && text[name().size()] == ';'; }

std::string ContentLine::parameter(std::string_view wanted) const
{
    std::string_view rest = text;
    for (std::size_t at = findUnquoted(rest, ";:"); at != std::string_view::npos && rest[at] == ';';
         at = findUnquoted(rest, ";:")) {
        rest.remove_prefix(at + 1);
        const std::size_t equals = rest.find('=');
        if (equals == std::string_view::npos || !equalsNoCase(rest.substr(0, equals), wanted))
            continue;
        rest.remove_prefix(equals + 1);
        std::string_view value = rest.substr(0, findUnquoted(rest, ",;:"));
        if (value.size() >= 2 && value.front() == '"' && value.back() == '"')
            value = value.substr(1, value.size() - 2);
        return std::string(value);
    }
    return {};
}

std::string_view ContentLine::value() const
{
    const std::size_t colon = findUnquoted(text, ":");
    return colon == std::string_view::npos ? std::string_view() : std::string_view(text).substr(colon + 1);
}

std::string ContentLine::textValue() const { return unescapedText(value()); }

bool CalendarComponent::is(std::string_view wanted) const { return equalsNoCase(name, wanted); }

const ContentLine* CalendarComponent::find(std::string_view propertyName) const
{
    const auto found = std::ranges::find_if(lines, [&](const ContentLine& line) { return line.is(propertyName); });
    return found == lines.end() ? nullptr : &*found;
}

std::string CalendarComponent::textOf(std::string_view propertyName) const
{
    const ContentLine* line = find(propertyName);
    return line ? line->textValue() : std::string();
}

std::vector<std::string> CalendarComponent::text() const
{
    std::vector<std::string> all{"BEGIN:" + name};
    for (const ContentLine& line : lines)
        all.push_back(line.text);
    for (const CalendarComponent& child : children)
        std::ranges::move(child.text(), std::back_inserter(all));
    all.push_back("END:" + name);
    return all;
}

std::vector<CalendarComponent> readCalendars(std::istream& in)
{
    LineReader reader(in);
    ComponentBuilder builder;
    while (auto line = reader.next())
        builder.add(std::move(*line));
    std::vector<CalendarComponent> calendars = builder.finish();
    std::erase_if(calendars, [](const CalendarComponent& component) { return !component.is("VCALENDAR"); });
    if (calendars.empty())
        throw CalendarError("this is no iCalendar file: there is no VCALENDAR in it");
    return calendars;
}

CalendarComponent componentOf(const std::vector<std::string>& lines)
{
    ComponentBuilder builder;
    for (const std::string& line : lines)
        builder.add({line, 0});
    std::vector<CalendarComponent> components = builder.finish();
    if (components.size() != 1)
        throw CalendarError("these lines are not one component");
    return std::move(components.front());
}

std::string foldedLine(std::string_view line)
{
    std::string folded;
    std::size_t room = foldedLength;
    while (line.size() > room) {
        std::size_t cut = room;
        while (cut > 1 && (static_cast<unsigned char>(line[cut]) & 0xC0U) == 0x80U)
            --cut;
        folded.append(line.substr(0, cut)).append("\r\n ");
        line.remove_prefix(cut);
        room = foldedLength - 1;
    }
    return folded.append(line).append("\r\n");
}

std::string escapedText(std::string_view text)
{
    std::string value;
    for (const char c : text) {
        if (c == '\n')
            value += "\\n";
        else if (c == '\\' || c == ';' || c == ',')
            value.append(1, '\\').append(1, c);
        else if (static_cast<unsigned char>(c) >= ' ' || c == '\t')
            value += c;
    }
    return value;
}

std::string unescapedText(std::string_view value)
{
    return unescaped(value, [](char c) { return c == 'n' || c == 'N' ? '\n' : c; });
}

std::string exactText(std::string_view text)
{
    std::string value;
    for (std::size_t cr = text.find('\r'); cr != std::string_view::npos; cr = text.find('\r')) {
        value += escapedText(text.substr(0, cr)) + "\\r";
        text.remove_prefix(cr + 1);
    }
    return value + escapedText(text);
}

std::string fromExactText(std::string_view value)
{
    return unescaped(value, [](char c) { return c == 'r' ? '\r' : c == 'n' ? '\n' : c; });
}

std::string parameterText(std::string_view value)
{
    std::string text;
    for (const char c : value) {
        if (static_cast<unsigned char>(c) >= ' ')
            text += c == '"' ? '\'' : c;
    }
    return text.find_first_of(":;,") == std::string::npos ? text : '"' + text + '"';
}

} // namespace qncal::host::icalendar
