#include "common/statusFields.h"

#include "services/Rows.h"
#include "settings/frmApptStatusOptions.h"
#include "settings/kindWords.h"
#include "utilities/readableValue.h"

namespace qncal::firmcal {

namespace {

std::optional<std::int32_t> numberIf(const host::Rows& row, const std::string& flag, const std::string& column)
{
    return booleanIn(row.field(flag)).value_or(false) ? integerIn(row.field(column)) : std::nullopt;
}

} // namespace

bool isStatusIcon(std::int32_t number) { return number >= 1 && number <= frmApptStatusOptions::iconCount; }

StatusFields statusFields(DatabaseService& database, enumLocalCalendarItemType kind)
{
    StatusFields fields;
    const host::Rows row = host::Rows::read(database, "SELECT CustomFields.* FROM CustomFields;");
    if (row.isEmpty())
        return fields;
    const std::string prefix(textOfKind(columnPrefixes, kind));
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const std::string number = std::to_string(i + 1);
        fields[i].name = row.text(prefix + "StatusName" + number);
        fields[i].colour = numberIf(row, prefix + "UseStatusColour" + number, prefix + "StatusColour" + number);
        fields[i].icon = numberIf(row, prefix + "UseStatusIcon" + number, prefix + "StatusIcon" + number);
        if (fields[i].icon && !isStatusIcon(*fields[i].icon))
            fields[i].icon.reset();
    }
    return fields;
}

} // namespace qncal::firmcal
