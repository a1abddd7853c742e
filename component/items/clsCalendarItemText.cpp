// clsCalendarItem: its title and display text, rendered from the item's templates.

#include "items/clsCalendarItem.h"

#include "core/ServiceRegistry.h"
#include "core/routineScope.h"
#include "items/itemTextFields.h"
#include "templates/clsInsertFieldsInRTB.h"
#include "templates/itemTextParts.h"
#include "templates/mergeFieldCodes.h"
#include "templates/mergeValueText.h"
#include "templates/richTextReplacement.h"
#include "utilities/dateText.h"
#include "utilities/numberText.h"
#include "utilities/text.h"

#include <utility>

namespace qncal {

namespace {

std::int32_t mergeListTypeOf(enumLocalCalendarItemType kind)
{
    switch (kind) {
    case enumLocalCalendarTaskItem:
        return mergeListType::task;
    case enumLocalCalendarDocketItem:
        return mergeListType::timeEntry;
    default:
        return mergeListType::appointment;
    }
}

/// A field of a client's row in the host's lists.
std::string clientText(ClientKind client, std::int32_t id, const std::string& displayName)
{
    if (client == ClientKind::contact && equalsNoCase(displayName, "Contact & Spouse Name"))
        return statement([&] { return clientDropDownService().getContactAndSpouseName(id); });
    const std::string_view field = clientListField(client, displayName);
    if (field.empty())
        return {};
    const Variant value = statement([&] { return clientDropDownService().getClientListField(client, id, field); });
    return value.isNull() ? std::string() : value.toText();
}

} // namespace

std::string clsCalendarItem::createDisplayTextByID()
{
    MergeEngine engine;
    return renderDisplayText(engine);
}

std::string clsCalendarItem::createTitleBarTextByID()
{
    MergeEngine engine;
    return renderTitleBarText(engine);
}

void clsCalendarItem::renderBothTexts()
{
    MergeEngine engine;
    renderTitleBarText(engine);
    renderDisplayText(engine);
}

std::string clsCalendarItem::renderDisplayText(MergeEngine& engine)
{
    return routine("Vestrel.exe-clsCalendarItem-createDisplayTextByID", std::string(), [&] {
        record_.appointmentText.clear();
        const std::string itemTemplate = DisplayTextTemplate();
        if (itemTemplate.empty())
            return std::string();
        buildDisplayText(mergeItemTemplate(itemTemplate, &clsCalendarItem::DisplayTextDefaultTemplate, true, engine));
        raiseRefreshedAppointmentText(record_.appointmentText);
        return record_.appointmentText;
    });
}

std::string clsCalendarItem::renderTitleBarText(MergeEngine& engine)
{
    return routine("Vestrel.exe-clsCalendarItem-createTitleBarTextByID", std::string(), [&] {
        record_.titleText.clear();
        const std::string itemTemplate = TitleBarTextTemplate();
        if (itemTemplate.empty())
            return std::string();
        record_.titleText =
            mergeItemTemplate(itemTemplate, &clsCalendarItem::TitleBarTextDefaultTemplate, false, engine);
        raiseRefreshedTitleBarText(record_.titleText);
        return record_.titleText;
    });
}

std::string clsCalendarItem::mergeItemTemplate(std::string text, std::string (clsCalendarItem::*defaultTemplate)(),
                                               bool withCompany, MergeEngine& engine)
{
    exchangeClientName(text, record_.companyIDNum, record_.contactIDNum);
    text = mergeFromItem(text, engine);
    if (!holdsExpression(text))
        return text;
    if (!engine)
        engine = newMergeEngine();
    if (itemID_ < 1) {
        // Such an item shows the result of the call, the word False, in place of the text that it cleaned: meant.
        return booleanText(engine->replaceUnfoundMergeFieldsWithBlanks(text));
    }
    if (engine->testRTBComment(text, false, false, false))
        text = (this->*defaultTemplate)();
    // From here on it has the ids of this text: no other may use it.
    const MergeEngine merge = std::move(engine);
    merge->MergeFieldListUse(mergeListUse::normal);
    if (withCompany)
        merge->companyID(record_.companyIDNum);
    merge->contactID(record_.contactIDNum);
    merge->userID(record_.userIDNum);
    merge->TemplateText(merge->convertProvinceFields(text));
    switch (calendarItemType()) {
    case enumLocalCalendarAppointmentItem:
        merge->appointmentID(itemID_);
        break;
    case enumLocalCalendarTaskItem:
        merge->TaskID(itemID_);
        break;
    case enumLocalCalendarDocketItem:
        merge->docketId(itemID_);
        break;
    case enumLocalCalendarUnknownItem:
        break;
    }
    text = merge->parseRTBComment();
    merge->Terminate();
    return text;
}

clsCalendarItem::MergeEngine clsCalendarItem::newMergeEngine() const
{
    auto engine = std::make_unique<clsInsertFieldsInRTB>();
    engine->ListType(mergeListTypeOf(calendarItemType()));
    bool noListBox = true;
    engine->createDefaultFieldListStructure(noListBox, false);
    return engine;
}

std::string clsCalendarItem::buildDisplayText(const std::string& templateResult)
{
    return routine("Vestrel.exe-clsCalendarItem-buildDisplayText", std::string(), [&] {
        record_.appointmentText =
            joinedDisplayText(record_.beforeAppointmentText, templateResult, record_.afterAppointmentText);
        return record_.appointmentText;
    });
}

std::string clsCalendarItem::parseCalendarItemComment(const std::string& newText)
{
    MergeEngine engine;
    return mergeFromItem(newText, engine);
}

std::string clsCalendarItem::mergeFromItem(const std::string& text, MergeEngine& engine)
{
    return routine("Vestrel.exe-clsCalendarItem-parseCalendarItemComment", std::string(), [&] {
        std::string merged = text;
        if (!holdsDelimiter(text))
            return merged;
        if (!engine)
            engine = newMergeEngine();
        const FieldListCollection& list = *engine->FieldList();
        engine->mergeFields(
            merged, [&](std::int32_t position, const std::string& format) -> std::optional<std::string> {
                const FieldListRow& row = list.rows()[static_cast<std::size_t>(position)];
                std::string value = getApptDataFieldInfo(row.displayName.str(), row.category.str(), format);
                if (value.empty())
                    return std::nullopt;
                return value;
            });
        return merged;
    });
}

std::string clsCalendarItem::getApptDataFieldInfo(const std::string& displayName, const std::string& category,
                                                  std::string format)
{
    return routine("Vestrel.exe-clsCalendarItem-getApptDataFieldInfo", std::string(), [&] {
        if (format.empty())
            format = mergeDateFormat;
        std::string value;
        if (category == mergeCategory::contactInfo)
            value = clientText(ClientKind::contact, record_.contactIDNum, displayName);
        else if (category == mergeCategory::companyInfo)
            value = clientText(ClientKind::company, record_.companyIDNum, displayName);
        else if (const auto field = findItemTextField(category, displayName))
            value = itemFieldText(*field, format);
        return value.empty() ? value : withParagraphMarks(std::move(value), true);
    });
}

std::string clsCalendarItem::itemFieldText(ItemTextField field, const std::string& dateFormat) const
{
    switch (field) {
    case ItemTextField::subject:
        return record_.subject;
    case ItemTextField::dateFrom:
        return formatDate(record_.dateFrom, dateFormat);
    case ItemTextField::timeFrom:
        return formatDate(record_.timeFrom, mergeTimeFormat);
    case ItemTextField::timeTo:
        return formatDate(record_.timeTo, mergeTimeFormat);
    case ItemTextField::timeDuration:
        return hoursText(record_.timeduration);
    case ItemTextField::appointmentText:
        return record_.appointmentText;
    case ItemTextField::custom1:
        return record_.custom1;
    case ItemTextField::custom2:
        return record_.custom2;
    case ItemTextField::custom3:
        return record_.custom3;
    case ItemTextField::custom4:
        return record_.custom4;
    case ItemTextField::custom5:
        return record_.custom5;
    }
    return {};
}

} // namespace qncal
