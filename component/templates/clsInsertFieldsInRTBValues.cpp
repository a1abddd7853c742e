// clsInsertFieldsInRTB: the finished texts of fields.

#include "templates/clsInsertFieldsInRTB.h"

#include "core/RecordSet.h"
#include "core/ServiceRegistry.h"
#include "core/routineScope.h"
#include "templates/mergeValueText.h"
#include "templates/richTextReplacement.h"
#include "utilities/Clock.h"
#include "utilities/dateText.h"
#include "utilities/text.h"

#include <cstdlib>

namespace qncal {

std::string clsInsertFieldsInRTB::getDataFieldInfo(std::int32_t key, const std::string& format)
{
    return routine("Vestrel.exe-clsInsertFieldsInRTB-getDataFieldInfo", std::string(), [&] {
        if (!fieldList().moveToKey(key))
            return std::string();
        const MergeDataType type = fieldList().current().dataType;
        std::string value;
        if (testComment_)
            value = fieldList().current().sampleText.str();
        else if (isDatabaseConnected())
            value = readCurrentField();
        if (value.empty())
            return value;
        std::string text = mergeValueText(std::move(value), type, format);
        // Most values have no line breaks, and a routine for each would tell in a merge of many fields.
        if (convertStrToRTF_ && text.find("\r\n") != std::string::npos)
            return convertToRTF(std::move(text));
        return text;
    });
}

std::string clsInsertFieldsInRTB::getMergeDataFromFieldName(const std::string& databaseField)
{
    return routine("Vestrel.exe-clsInsertFieldsInRTB-getMergeDataFromFieldName", std::string(), [&] {
        std::string result;
        if (databaseField.empty() || !verifyFieldListIsPopulated())
            return result;
        if (showsContactForCompany() && equalsNoCase(databaseField, "COMPANYNAME"))
            result = "DisplayName";
        if (fieldList().findInColumn(FieldListCollection::databaseField, databaseField) >= 0)
            result = getDataFieldInfo(fieldList().getCurrentKey(), {});
        return result;
    });
}

std::string clsInsertFieldsInRTB::getMergeDataFromDisplayName(const std::string& displayName)
{
    return routine("Vestrel.exe-clsInsertFieldsInRTB-getMergeDataFromDisplayName", std::string(), [&] {
        std::string result;
        if (displayName.empty() || !verifyFieldListIsPopulated())
            return result;
        if (showsContactForCompany() && equalsNoCase(displayName, "COMPANY NAME")) {
            for (const char* contactName : {"Contact Display Name", "Contact Full Name"}) {
                if (result.empty() && fieldList().positionOfDisplayName(contactName) >= 0)
                    result = contactName;
            }
        }
        if (fieldList().findInColumn(FieldListCollection::displayName, displayName) >= 0)
            result = getDataFieldInfo(fieldList().getCurrentKey(), {});
        return result;
    });
}

bool clsInsertFieldsInRTB::showsContactForCompany() const
{
    return companyNameToContactName_ && companyID_ < 1 && contactID_ >= 1;
}

std::string clsInsertFieldsInRTB::getTodaysDate(const std::string& format)
{
    return routine("Vestrel.exe-clsInsertFieldsInRTB-getTodaysDate", std::string(), [&] {
        if (format.empty())
            return formatDate(today(), mergeDateFormat);
        std::string text = formatDate(today(), format);
        if (!text.empty() && convertStrToRTF_)
            return convertToRTF(std::move(text));
        return text;
    });
}

std::string clsInsertFieldsInRTB::getTimeDurationFieldValue(Date timeFrom, Date timeTo)
{
    return routine("Vestrel.exe-clsInsertFieldsInRTB-getTimeDurationFieldValue", std::string(), [&] {
        const auto minutes =
            static_cast<std::int32_t>(std::abs(timeTo.linearSeconds() - timeFrom.linearSeconds()) / 60);
        return statement([&] { return dateTimeService().getDurationText(minutes); });
    });
}

std::string clsInsertFieldsInRTB::convertToRTF(std::string value)
{
    return routine("Vestrel.exe-clsInsertFieldsInRTB-convertToRTF", std::string(),
                   [&] { return withParagraphMarks(std::move(value), useWordWrap_); });
}

} // namespace qncal
