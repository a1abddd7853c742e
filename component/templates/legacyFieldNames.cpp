#include "templates/legacyFieldNames.h"

#include <array>

namespace qncal {

namespace {

constexpr FieldRenaming anywhere(std::string_view oldText, std::string_view newText) { return {{oldText}, {newText}}; }
constexpr FieldRenaming plain(std::string_view oldName, std::string_view newName)
{
    return {plainField(oldName), plainField(newName)};
}
constexpr FieldRenaming rich(std::string_view oldName, std::string_view newName)
{
    return {richField(oldName), richField(newName)};
}
/// The beginning of a date expression, up to its format.
constexpr FieldRenaming plainStart(std::string_view oldName, std::string_view newName)
{
    return {{plainDelimiters.open, "(", oldName}, {plainDelimiters.open, "(", newName}};
}
constexpr FieldRenaming richStart(std::string_view oldName, std::string_view newName)
{
    return {{richDelimiters.open, "(", oldName}, {richDelimiters.open, "(", newName}};
}

constexpr auto renamings = std::to_array<FieldRenaming>({
    anywhere("<<", plainDelimiters.open),
    anywhere(">>", plainDelimiters.close),
    plainStart("Due Date", "Task Due Date"),
    richStart("Due Date", "Task Due Date"),
    plainStart("in-House Due Date", "Task in-House Due Date"),
    richStart("in-House Due Date", "Task in-House Due Date"),
    plainStart("Calendar Date", "Task Calendar Due Date"),
    richStart("Calendar Date", "Task Calendar Due Date"),
    plain("Contact Full Name", "Contact Display Name"),
    rich("Contact Full Name", "Contact Display Name"),
    anywhere("Contact Full Name", "Contact Display Name"),
    anywhere("Docket", "Time Entry"),
    anywhere("Long Date", "dddd, mmmm d yyyy"),
    anywhere("Medium Date", "mmm d yyyy"),
    anywhere("Short Date", "dd/mm/yy"),
    plain("Notified Date", "Calendar Date"),
    rich("Notified Date", "Calendar Date"),
    plain("Weekday Date", "Calendar Date"),
    rich("Weekday Date", "Calendar Date"),

    plain("Remittance Name", "Task Name"),
    plain("Remittance Due Date", "Task Due Date"),
    plain("Remittance in-House Due Date", "Task in-House Due Date"),
    plain("Remittance Weekday Due Date", "Task Calendar Date"),
    plain("Task Weekday Due Date", "Task Calendar Date"),
    plain("Remittance Year", "Task Year"),
    plain("Custom Remitt Field 1", "Custom Task Field 1"),
    plain("Custom Remitt Field 2", "Custom Task Field 2"),
    plain("Custom Remitt Field 3", "Custom Task Field 3"),
    plain("Custom Remitt Field 4", "Custom Task Field 4"),
    plain("Custom Remitt Field 5", "Custom Task Field 5"),
    plain("Contact Full Name", "Contact Display Name"),
    rich("Remittance Name", "Task Name"),
    rich("Remittance Due Date", "Task Due Date"),
    rich("Remittance in-House Due Date", "Task in-House Due Date"),
    rich("Remittance Weekday Due Date", "Task Calendar Date"),
    rich("Task Weekday Due Date", "Task Calendar Date"),
    rich("Remittance Year", "Task Year"),
    rich("Custom Remitt Field 1", "Custom Task Field 1"),
    rich("Custom Remitt Field 2", "Custom Task Field 2"),
    rich("Custom Remitt Field 3", "Custom Task Field 3"),
    rich("Custom Remitt Field 4", "Custom Task Field 4"),
    rich("Custom Remitt Field 5", "Custom Task Field 5"),
    rich("Contact Full Name", "Contact Display Name"),
});

} // namespace

std::span<const FieldRenaming> legacyFieldNames() { return renamings; }

} // namespace qncal
