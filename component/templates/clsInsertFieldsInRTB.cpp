#include "templates/clsInsertFieldsInRTB.h"

#include "core/routineScope.h"
#include "templates/dateFormatKeywords.h"
#include "templates/delimiters.h"
#include "templates/mergeFieldCodes.h"
#include "utilities/RunTimeError.h"

namespace qncal {

namespace {

/// What stands for a field in a template: its name, or a date expression that the user can edit further.
std::string fieldExpression(const FieldListRow& row)
{
    std::string name = row.displayName.str();
    return row.dataType == MergeDataType::date ? "(" + name + ", mmmm d yyyy)" : name;
}

std::int32_t caretPosition(const RichTextTarget* rtb)
{
    const Variant caret = statement([&] {
        if (!rtb)
            throw RunTimeError(errorNumber::objectNotSet, "No rich-text control is set");
        return rtb->SelStart();
    });
    return !caret.isNull() && caret.isNumeric() ? caret.toInteger() : 1;
}

} // namespace

clsInsertFieldsInRTB::clsInsertFieldsInRTB() : fieldList_(std::make_shared<FieldListCollection>()) {}

clsInsertFieldsInRTB::~clsInsertFieldsInRTB() = default;

void clsInsertFieldsInRTB::MergeFieldListUse(std::int32_t use)
{
    mergeFieldListUse_ = use;
    if (use == mergeListUse::singleField || use == mergeListUse::writeBack)
        showListCategoryHeaders_ = false;
}

void clsInsertFieldsInRTB::resetAllItemIDs()
{
    routine("Vestrel.exe-clsInsertFieldsInRTB-resetAllItemIDs",
            [this] { companyID_ = contactID_ = firmID_ = userID_ = appointmentID_ = docketId_ = taskID_ = -1; });
}

void clsInsertFieldsInRTB::Terminate()
{
    routine("Vestrel.exe-clsInsertFieldsInRTB-Terminate", [this] {
        recordSets_.reset();
        if (fieldList_)
            fieldList_->clearRows();
        fieldList_.reset();
    });
}

std::string clsInsertFieldsInRTB::getDBFieldFromListItem(std::int32_t key)
{
    return routine("Vestrel.exe-clsInsertFieldsInRTB-getDBFieldFromListItem", std::string(), [&] {
        if (key < 0 || !fieldList().moveToKey(key))
            return std::string();
        const FieldListRow& row = fieldList().current();
        return row.dataType == MergeDataType::date ? fieldExpression(row) : row.databaseField.str();
    });
}

std::string clsInsertFieldsInRTB::parseListItem(std::int32_t key, bool includeBrackets)
{
    return routine("Vestrel.exe-clsInsertFieldsInRTB-parseListItem", std::string(), [&] {
        if (key < 0 || !fieldList().moveToKey(key))
            return std::string();
        const std::string expression = fieldExpression(fieldList().current());
        return includeBrackets ? inDelimiters(expression, plainDelimiters) : expression;
    });
}

void clsInsertFieldsInRTB::onListClick(std::int32_t key)
{
    routine("Vestrel.exe-clsInsertFieldsInRTB-onListClick", [&] {
        const std::int32_t position = caretPosition(rtb_.get());
        const std::string text = parseListItem(key, true);
        if (!text.empty())
            statement([&] { rtb_->insertText(text, position); });
    });
}

std::string clsInsertFieldsInRTB::insertCurrentDateMergeField(std::int32_t formatIndex, bool includeBrackets)
{
    return routine("Vestrel.exe-clsInsertFieldsInRTB-insertCurrentDateMergeField", std::string(), [&] {
        std::string expression = "(Todays Date, ";
        if (formatIndex >= 1 && formatIndex <= static_cast<std::int32_t>(dateFormatKeywords.size()))
            expression += dateFormatKeywords[static_cast<std::size_t>(formatIndex - 1)].keyword;
        expression += ')';
        return includeBrackets ? inDelimiters(expression, plainDelimiters) : expression;
    });
}

void clsInsertFieldsInRTB::insertCurrentDate(std::int32_t formatIndex)
{
    routine("Vestrel.exe-clsInsertFieldsInRTB-insertCurrentDate", [&] {
        const std::int32_t position = caretPosition(rtb_.get());
        const std::string text = insertCurrentDateMergeField(formatIndex, true);
        statement([&] { rtb_->insertText(text, position); });
    });
}

std::string clsInsertFieldsInRTB::getDBFieldNameFromDisplayFieldName(const std::string& displayName)
{
    return routine("Vestrel.exe-clsInsertFieldsInRTB-getDBFieldNameFromDisplayFieldName", std::string(), [&] {
        const bool found = fieldList().findInColumn(FieldListCollection::displayName, displayName) >= 0;
        return found ? fieldList().current().databaseField.str() : displayName;
    });
}

std::string clsInsertFieldsInRTB::getDisplayFieldNameFromDBFieldName(const std::string& databaseField)
{
    return routine("Vestrel.exe-clsInsertFieldsInRTB-getDisplayFieldNameFromDBFieldName", std::string(), [&] {
        const bool found = fieldList().findInColumn(FieldListCollection::databaseField, databaseField) >= 0;
        return found ? fieldList().current().displayName.str() : databaseField;
    });
}

FieldListCollection& clsInsertFieldsInRTB::fieldList() const
{
    if (!fieldList_)
        throw RunTimeError(errorNumber::objectNotSet, "The field list has been released");
    return *fieldList_;
}

} // namespace qncal
