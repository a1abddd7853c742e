#include "icalendar/itemFields.h"

#include "utilities/text.h"

#include <algorithm>
#include <charconv>

namespace qncal::host::icalendar {

namespace {

template <class Value>
bool read(const std::string& text, Value& value)
{
    if constexpr (std::is_same_v<Value, std::string>) {
        value = text;
        return true;
    } else if constexpr (std::is_same_v<Value, bool>) {
        value = equalsNoCase(text, "TRUE");
        return value || equalsNoCase(text, "FALSE");
    } else {
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
        return error == std::errc() && end == text.data() + text.size();
    }
}

std::string written(const std::string& value) { return value; }
std::string written(bool value) { return value ? "TRUE" : "FALSE"; }
std::string written(std::int32_t value) { return std::to_string(value); }

/// The field behind a property of the item, a pair of overloads.
template <class Value, auto getter, auto setter>
constexpr ItemField field(std::string_view property, bool isColour = false)
{
    return {property, [](clsCalendarItem& item) { return written(static_cast<Value>((item.*getter)())); },
            [](clsCalendarItem& item, const std::string& text) {
                Value value{};
                if (!read(text, value))
                    return false;
                (item.*setter)(std::move(value));
                return true;
            },
            isColour};
}

template <class Value>
using Getter = Value (clsCalendarItem::*)() const;
template <class Value>
using Setter = void (clsCalendarItem::*)(Value);

#define NUMBER(property, name)                                                                                         \
    field<std::int32_t, Getter<std::int32_t>(&clsCalendarItem::name), Setter<std::int32_t>(&clsCalendarItem::name)>(   \
        "X-QNCAL-" property)
#define COLOUR(property, name)                                                                                         \
    field<std::int32_t, Getter<std::int32_t>(&clsCalendarItem::name), Setter<std::int32_t>(&clsCalendarItem::name)>(   \
        "X-QNCAL-" property, true)
#define FLAG(property, name)                                                                                           \
    field<bool, Getter<bool>(&clsCalendarItem::name), Setter<bool>(&clsCalendarItem::name)>("X-QNCAL-" property)
#define TEXT(property, name)                                                                                           \
    field<std::string, Getter<const std::string&>(&clsCalendarItem::name),                                             \
          Setter<std::string>(&clsCalendarItem::name)>("X-QNCAL-" property)

std::string notifyTypeOf(clsCalendarItem& item) { return std::to_string(item.notifyType()); }

bool setNotifyType(clsCalendarItem& item, const std::string& text)
{
    std::uint8_t bits = 0;
    if (!read(text, bits))
        return false;
    item.notifyType(bits);
    return true;
}

constexpr ItemField fields[] = {
    NUMBER("SCHEDULE-TYPE", ScheduleTypeIDNum),
    NUMBER("SCHEDULE", ScheduleIDNum),
    NUMBER("PROJECT-STEP", ProjectStepIDNum),
    NUMBER("COMMUNICATION-LOG", CommunicationLogIDNum),
    NUMBER("SERIES-NUMBER", SeriesNum),
    FLAG("RECUR-ANNUALLY", RecurAnnually),
    FLAG("HIDE-IN-TASKS", hideInTasks),
    // The scheme brings colours of its own, which those of the item then replace.
    NUMBER("COLOUR-SCHEME", ColourSchemeID),
    COLOUR("TITLE-BACK-COLOUR", TitleBackColour),
    COLOUR("TITLE-FORE-COLOUR", TitleForeColour),
    COLOUR("BACK-COLOUR", BackColour),
    COLOUR("FORE-COLOUR", ForeColour),
    {"X-QNCAL-NOTIFY-TYPE", notifyTypeOf, setNotifyType},
    TEXT("BEFORE-TEXT", BeforeAppointmentText),
    TEXT("AFTER-TEXT", AfterAppointmentText),
    TEXT("CUSTOM1", Custom1),
    TEXT("CUSTOM2", Custom2),
    TEXT("CUSTOM3", Custom3),
    TEXT("CUSTOM4", Custom4),
    TEXT("CUSTOM5", Custom5),
    FLAG("STATUS1", Status1),
    FLAG("STATUS2", Status2),
    FLAG("STATUS3", Status3),
    FLAG("STATUS4", Status4),
    FLAG("STATUS5", Status5),
};

#undef NUMBER
#undef COLOUR
#undef FLAG
#undef TEXT

} // namespace

std::span<const ItemField> itemFields() { return fields; }

const ItemField* findItemField(std::string_view property)
{
    const auto* const found =
        std::ranges::find_if(fields, [&](const ItemField& known) { return equalsNoCase(known.property, property); });
    return found == std::ranges::end(fields) ? nullptr : found;
}

} // namespace qncal::host::icalendar
