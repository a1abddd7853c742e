#include "qt/convert.h"

#include <algorithm>

namespace qncal::host {

QString toQt(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

std::string fromQt(const QString& text) { return text.toStdString(); }

QColor toQtColour(Colour colour)
{
    if (colour < 0)
        return {};
    return {colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF};
}

Colour fromQtColour(const QColor& colour) { return colour.red() | colour.green() << 8 | colour.blue() << 16; }

QDateTime toQt(const Date& date)
{
    const CivilDate day = date.civilDate();
    const CivilTime time = date.civilTime();
    return {QDate(day.year, day.month, day.day), QTime(time.hour, time.minute, time.second), Qt::UTC};
}

Date fromQt(const QDateTime& moment)
{
    if (!moment.isValid())
        return {};
    const QDate day = moment.date();
    const QTime time = moment.time();
    return Date::of({day.year(), day.month(), day.day()}, {time.hour(), time.minute(), time.second()});
}

QString toQtDatePattern(std::string_view pattern)
{
    QString source = toQt(pattern);
    const bool twelveHours = source.contains("am/pm", Qt::CaseInsensitive);
    source.replace("AM/PM", "\1", Qt::CaseSensitive).replace("am/pm", "\2", Qt::CaseInsensitive);
    QString result;
    bool afterHour = false;
    for (const QChar c : source) {
        const QChar lower = c.toLower();
        if (c == '\1' || c == '\2')
            result += c == '\1' ? "AP" : "ap";
        else if (lower == 'h')
            result += twelveHours ? 'h' : 'H';
        else if (lower == 'n' || (lower == 'm' && afterHour))
            result += 'm';
        else if (lower == 'm')
            result += 'M';
        else
            result += lower == 'd' || lower == 'y' || lower == 's' ? lower : c;
        // An "m" right behind the hours means minutes.
        if (lower.isLetter())
            afterHour = lower == 'h' || (afterHour && lower == 'm');
    }
    return result;
}

qsizetype unitsOfCharacters(const QString& text, std::int32_t characters)
{
    qsizetype units = 0;
    for (std::int32_t seen = 0; seen < characters && units < text.size(); ++seen)
        units += text.at(units).isHighSurrogate() && units + 1 < text.size() ? 2 : 1;
    return units;
}

std::int32_t charactersOfUnits(const QString& text, qsizetype units)
{
    const auto end = text.begin() + std::clamp<qsizetype>(units, 0, text.size());
    return static_cast<std::int32_t>(std::count_if(text.begin(), end, [](QChar c) { return !c.isLowSurrogate(); }));
}

QString withoutAccessKey(std::string_view caption)
{
    QString text;
    const QString marked = toQt(caption);
    for (qsizetype at = 0; at < marked.size(); ++at) {
        if (marked.at(at) == '&' && ++at == marked.size())
            break;
        text += marked.at(at);
    }
    return text;
}

QColor readableOn(const QColor& background) { return qGray(background.rgb()) < 128 ? Qt::white : Qt::black; }

} // namespace qncal::host
