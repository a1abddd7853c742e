// clsInsertFieldsInRTB: the texts of a calendar item by its id and the firm's template.

#include "templates/clsInsertFieldsInRTB.h"

#include "core/calendarItemKinds.h"
#include "core/routineScope.h"
#include "lookups/firstRow.h"
#include "lookups/modDatabaseClientFunctions.h"
#include "templates/MergeRecordSets.h"
#include "templates/itemTextParts.h"
#include "templates/mergeFieldCodes.h"

#include <optional>

namespace qncal {

namespace {

/// The kind of item that a list is for, and its record.
struct ItemList {
    enumLocalCalendarItemType kind;
    MergeRecord record;
    std::int32_t MergeItemIDs::*id;
};

/// None for a list that is not for an item.
std::optional<ItemList> itemListOf(std::int32_t listType)
{
    switch (listType) {
    case mergeListType::appointment:
        return ItemList{enumLocalCalendarAppointmentItem, MergeRecord::appointment, &MergeItemIDs::appointment};
    case mergeListType::timeEntry:
        return ItemList{enumLocalCalendarDocketItem, MergeRecord::timeEntry, &MergeItemIDs::docket};
    case mergeListType::task:
        return ItemList{enumLocalCalendarTaskItem, MergeRecord::task, &MergeItemIDs::task};
    default:
        return std::nullopt;
    }
}

/// A column of the firm-wide settings; empty where there is none.
std::string firmSetting(const std::string& column)
{
    std::string text;
    if (isDatabaseConnected())
        readFirstRow("SELECT UserCalendarSettings.* FROM UserCalendarSettings WHERE UserIDNum = -1;", column, text);
    return text;
}

} // namespace

std::string clsInsertFieldsInRTB::createDisplayTextByID2()
{
    return routine("Vestrel.exe-clsInsertFieldsInRTB-createDisplayTextByID2", std::string(), [this] {
        const auto list = itemListOf(listType_);
        if (!list)
            return std::string();
        std::string text = mergeFirmTemplate("Template", calendarItemKind(list->kind).defaultDisplayTemplate);
        if (itemIDs().*list->id < 0 || !recordSets().isOpen(list->record))
            return text;
        RecordSet& item = recordSets().at(list->record);
        std::string before;
        std::string after;
        if (item.findRecord(calendarItemKind(list->kind).fieldName, itemIDs().*list->id)) {
            item.read("BeforeAppointmentText", before);
            item.read("AfterAppointmentText", after);
        }
        return joinedDisplayText(before, text, after);
    });
}

std::string clsInsertFieldsInRTB::createTitleBarTextByID2()
{
    return routine("Vestrel.exe-clsInsertFieldsInRTB-createTitleBarTextByID2", std::string(),
                   [this] { return mergeFirmTemplate("TitleBarText", {}); });
}

std::string clsInsertFieldsInRTB::mergeFirmTemplate(std::string_view settingsColumn, std::string_view defaultTemplate)
{
    const auto list = itemListOf(listType_);
    if (!list)
        return {};
    MergeFieldListUse(mergeListUse::normal);
    std::string text = firmSetting(std::string(calendarItemKind(list->kind).tableText).append(settingsColumn));
    // Remains of damaged values.
    if (text.empty() || text == "0" || text == "Text Constant")
        text = defaultTemplate;
    text = convertProvinceFields(text);
    exchangeClientName(text, companyID_, contactID_);
    if (companyID_ >= 0 && contactID_ < 0)
        contactID_ = modDatabaseClientFunctions::getDefaultContactIDFromCompanyID(companyID_);
    if (testComment_ && testRTBComment(text, false, false, false))
        text = defaultTemplate;
    if (itemIDs().*list->id < 0)
        return text;
    initializeDataRecordsetsForSingleDocMerge();
    templateText_ = text;
    return parseRTBComment();
}

} // namespace qncal
