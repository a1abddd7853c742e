// clsInsertFieldsInRTB: writing a field's value back to its record.

#include "templates/clsInsertFieldsInRTB.h"

#include "core/RecordSet.h"
#include "core/routineScope.h"
#include "templates/MergeRecordSets.h"
#include "templates/inheritedFields.h"
#include "templates/mergeFieldSource.h"
#include "utilities/text.h"

#include <array>
#include <charconv>
#include <optional>

namespace qncal {

namespace {

/// A number in single precision, the shortest decimal text that reads back the same; never with an exponent.
std::string singleText(double number)
{
    std::array<char, 64> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), static_cast<float>(number),
                                   std::chars_format::fixed);
    return {buffer.data(), end.ptr};
}

/// The text to store; nothing for a date before 1900, which is no date.
std::optional<std::string> textToStore(const Variant& value, MergeDataType type)
{
    switch (type) {
    case MergeDataType::text:
        break;
    case MergeDataType::date: {
        const Date date = value.toDate().dateOnly();
        return date.civilDate().year < 1900 ? std::nullopt : std::optional(defaultDateText(date));
    }
    case MergeDataType::time:
        return defaultDateText(value.toDate().timeOnly());
    case MergeDataType::currency:
    case MergeDataType::hours:
        return singleText(value.toReal());
    case MergeDataType::yesNo:
        return booleanText(value.toBoolean());
    }
    return value.toText();
}

} // namespace

bool clsInsertFieldsInRTB::writeDataToField(const std::string& databaseField, const Variant& value)
{
    return routine("Vestrel.exe-clsInsertFieldsInRTB-writeDataToField", false, [&] {
        if (!isDatabaseConnected() || databaseField.empty()
            || fieldList().findInColumn(FieldListCollection::databaseField, databaseField) < 0)
            return false;
        const MergeFieldSource* source = findMergeFieldSource(fieldList().current().category.view());
        const auto text = textToStore(value, fieldList().current().dataType);
        if (!source || !text || equalsNoCase(databaseField, "ContactAndSpouseName"))
            return false;
        if (source->record == MergeRecord::contactNotes || source->record == MergeRecord::companyNotes)
            recordSets().openIfClosed(source->record, itemIDs(), mergeFieldListUse_);
        const InheritedField* inherited =
            source->record == MergeRecord::contact ? findInheritedField(databaseField) : nullptr;
        if (inherited) {
            if (RecordSet* company = companyToInheritFrom())
                company->write(inherited->companyColumn, *text);
        }
        std::string column = databaseField;
        becomesProvinceColumn(column, source->record);
        recordSets().at(source->record).write(column, *text);
        return false;
    });
}

} // namespace qncal
