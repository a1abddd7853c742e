#pragma once

#include "controls/ListTarget.h"
#include "controls/RichTextTarget.h"
#include "templates/fieldSubstitution.h"
#include "utilities/Date.h"
#include "utilities/Event.h"
#include "utilities/FieldListCollection.h"
#include "utilities/Variant.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace qncal {

class FieldRenamer;
class MergeRecordSets;
class RecordSet;
struct MergeItemIDs;
enum class MergeFieldBlock : std::uint8_t;

/// The merge field engine: the catalogue of fields that a template may name, the merge of a template with an
/// item's data, and the check of a template that a user has typed.
///
/// A template is a text with «field» placeholders, plain or as a rich-text stream, where « and » are written
/// "\'ab" and "\'bb". Set the ids of the item, `ListType` and `TemplateText`, then call `parseRTBComment`. No
/// error leaves a routine; after a failure its result is empty, False or the text as far as it got.
class clsInsertFieldsInRTB {
public:
    /// Raised by `testRTBComment` with the message about the template's fault.
    Event<const std::string&> testErrorComment;

    /// Makes an empty catalogue.
    clsInsertFieldsInRTB();
    ~clsInsertFieldsInRTB();
    clsInsertFieldsInRTB(const clsInsertFieldsInRTB&) = delete;
    clsInsertFieldsInRTB& operator=(const clsInsertFieldsInRTB&) = delete;

    // --- Settings ---

    /// The catalogue; none after `Terminate`.
    const std::shared_ptr<FieldListCollection>& FieldList() const { return fieldList_; }
    /// Which blocks the catalogue gets, see `mergeListType`.
    std::int32_t ListType() const { return listType_; }
    void ListType(std::int32_t listType) { listType_ = listType; }
    /// The variant of the catalogue, see `mergeListUse`. Setting 3 or 5 turns the category headers off.
    std::int32_t MergeFieldListUse() const { return mergeFieldListUse_; }
    void MergeFieldListUse(std::int32_t use);
    /// How `convertToRTF` treats line breaks.
    void UseWordWrap(bool useWordWrap) { useWordWrap_ = useWordWrap; }
    /// The control that `onListClick` and `insertCurrentDate` insert into.
    const std::shared_ptr<RichTextTarget>& RTB() const { return rtb_; }
    void RTB(std::shared_ptr<RichTextTarget> rtb) { rtb_ = std::move(rtb); }
    /// The pick list for the main fields.
    const std::shared_ptr<ListTarget>& ListBox() const { return listBox_; }
    void ListBox(std::shared_ptr<ListTarget> listBox) { listBox_ = std::move(listBox); }
    /// The pick list for the firm's own fields.
    const std::shared_ptr<ListTarget>& ListBox2() const { return listBox2_; }
    void ListBox2(std::shared_ptr<ListTarget> listBox2) { listBox2_ = std::move(listBox2); }
    /// Whether headers and blank separator lines go into the list boxes.
    bool ShowListCategoryHeaders() const { return showListCategoryHeaders_; }
    void ShowListCategoryHeaders(bool show) { showListCategoryHeaders_ = show; }
    const std::string& TemplateText() const { return templateText_; }
    void TemplateText(std::string text) { templateText_ = std::move(text); }

    /// The ids of the rows to merge from, -1 for none.
    std::int32_t companyID() const { return companyID_; }
    void companyID(std::int32_t id) { companyID_ = id; }
    std::int32_t contactID() const { return contactID_; }
    void contactID(std::int32_t id) { contactID_ = id; }
    std::int32_t firmID() const { return firmID_; }
    void firmID(std::int32_t id) { firmID_ = id; }
    std::int32_t userID() const { return userID_; }
    void userID(std::int32_t id) { userID_ = id; }
    std::int32_t appointmentID() const { return appointmentID_; }
    void appointmentID(std::int32_t id) { appointmentID_ = id; }
    std::int32_t docketId() const { return docketId_; }
    void docketId(std::int32_t id) { docketId_ = id; }
    std::int32_t TaskID() const { return taskID_; }
    void TaskID(std::int32_t id) { taskID_ = id; }
    /// Sets `TaskID` to the task that stands for this schedule row.
    void scheduleID(std::int32_t id);
    /// Sets the seven ids to -1.
    void resetAllItemIDs();

    /// Sample values in place of data.
    bool TestComment() const { return testComment_; }
    void TestComment(bool test) { testComment_ = test; }
    /// Whether values are made fit for a rich-text stream.
    bool ConvertStrToRTF() const { return convertStrToRTF_; }
    void ConvertStrToRTF(bool convert) { convertStrToRTF_ = convert; }
    bool ConvertCompanyNameToContactNameForContacts() const { return companyNameToContactName_; }
    void ConvertCompanyNameToContactNameForContacts(bool convert) { companyNameToContactName_ = convert; }

    /// Closes the record sets, clears the catalogue and releases it.
    void Terminate();

    // --- Catalogue ---

    /// Builds the catalogue for `ListType`, `MergeFieldListUse` and the firm's region, and fills the list boxes.
    /// `noListBox` becomes True when there is no `ListBox`. `clearListBox` clears nothing: only a number above 0 would,
    /// and a Boolean True is -1.
    void createDefaultFieldListStructure(bool& noListBox, bool clearListBox);
    /// Each adds its block to the list and, unless `noListBox`, to the pick list.
    void createCompanyInfoFieldListStructure(FieldListCollection& list, bool noListBox);
    void createAppointmentInfoFieldListStructure(FieldListCollection& list, bool noListBox);
    void createTaskInfoFieldListStructure(FieldListCollection& list, bool noListBox);
    void createDocketInfoFieldListStructure(FieldListCollection& list, bool noListBox);
    /// The firm's own fields, into `ListBox2`.
    void createAccountantFieldListStructure(FieldListCollection& list, bool noListBox);
    /// The text to store for the field with this row key: its database field, or a date expression without
    /// brackets. Empty for a negative or unknown key.
    std::string getDBFieldFromListItem(std::int32_t key);
    /// The text to insert into a template for the field with this row key.
    std::string parseListItem(std::int32_t key, bool includeBrackets);
    /// Inserts the field into `RTB` at the caret. The key of a header line, -1, inserts nothing.
    void onListClick(std::int32_t key);
    /// The expression for today's date by the index, 1 to 14, of its format in `dateFormatKeywords`.
    std::string insertCurrentDateMergeField(std::int32_t formatIndex, bool includeBrackets);
    /// Inserts that expression into `RTB` at the caret.
    void insertCurrentDate(std::int32_t formatIndex);
    /// Each gives its argument back when the catalogue does not hold it.
    std::string getDBFieldNameFromDisplayFieldName(const std::string& displayName);
    std::string getDisplayFieldNameFromDBFieldName(const std::string& databaseField);

    // --- Template parser and validator ---

    /// `TemplateText` merged with the item's data.
    std::string parseRTBComment();
    /// True when the template has a fault, which `testErrorComment` tells if `showErrorMessages`.
    /// The catalogue must have been built.
    bool testRTBComment(const std::string& text, bool isRichText, bool showErrorMessages, bool skipFieldNameCheck);
    std::string parseTodaysDateInRTBComment(std::string text, std::string_view openDelimiter,
                                            std::string_view closeDelimiter);
    /// Replaces every occurrence in place, with a blank before the replacement where rich text needs one.
    /// The result is always False.
    bool replaceText(std::string& text, std::string_view findText, std::string_view replacementText);
    /// Gives the text back unchanged, on purpose.
    std::string removeBlankLinesFromRTFText(const std::string& text);
    /// Removes every expression that is left. The result is always False.
    bool replaceUnfoundMergeFieldsWithBlanks(std::string& text);
    /// « and » as the escapes of a rich-text stream.
    std::string convertFieldName(std::string fieldExpression);
    /// True when the catalogue, or today's date, has this name.
    bool testStr(const std::string& fieldName);
    /// Builds the catalogue by the ids that are set when it is empty. True when it held rows before the call.
    bool verifyFieldListIsPopulated();

    // --- Data binding ---

    /// Opens the record sets of all ids that are set. Call it after an id has changed.
    void initializeDataRecordsetsForSingleDocMerge();
    /// The finished text of the field with this row key. `format` is a date pattern, or empty.
    std::string getDataFieldInfo(std::int32_t key, const std::string& format);
    /// The raw value of a field of the current catalogue row's category; empty when it is null.
    /// For an abbreviated province `databaseField` becomes the column that was read.
    std::string getDataFieldFromRecordset(std::string& databaseField);
    std::string getMergeDataFromFieldName(const std::string& databaseField);
    std::string getMergeDataFromDisplayName(const std::string& displayName);
    std::string getTodaysDate(const std::string& format);
    std::string getTimeDurationFieldValue(Date timeFrom, Date timeTo);
    /// Line breaks as `UseWordWrap` asks.
    std::string convertToRTF(std::string value);
    /// Writes a value back to the field's record set. The result is always False.
    bool writeDataToField(const std::string& databaseField, const Variant& value);

    // --- Region ---

    /// Brings old field names up to date and renames the fields that differ by region to the firm's own.
    /// Names of a region are converted between « and » only.
    std::string convertProvinceFields(const std::string& text);
    /// The two-letter form of a province, or the argument.
    std::string getAbbreviatedProvince(const std::string& province);
    /// The full name of a province, or the argument.
    std::string getFullProvinceString(const std::string& province);

    // --- Texts of a calendar item by its id ---

    /// The item's display text by the firm's template. The ids and `ListType` are set first; the text is empty for
    /// a `ListType` that is not an item's.
    std::string createDisplayTextByID2();
    std::string createTitleBarTextByID2();

    // --- Inside the component ---

    /// Both passes of the merge with values of the caller's own: « and » first, the rich form where that has
    /// replaced nothing. True when expressions between « and » were replaced.
    bool mergeFields(std::string& text, const FieldValueSource& valueOf);

private:
    /// The catalogue, or run-time error 91 after `Terminate`.
    FieldListCollection& fieldList() const;
    void addBlocksOfListType(FieldListCollection& list, bool noListBox);
    void addBlock(FieldListCollection& list, MergeFieldBlock block, bool noListBox);
    void buildListForIDs();
    void removeUnfoundFields(std::string& text, bool plainOnesMerged);
    bool showsContactForCompany() const;

    /// The firm's template from a settings column with the kind's prefix, merged when the item has an id.
    std::string mergeFirmTemplate(std::string_view settingsColumn, std::string_view defaultTemplate);
    MergeRecordSets& recordSets();
    MergeItemIDs itemIDs() const;
    /// The raw value of the current catalogue row's field, empty when its item has no id or no record.
    std::string readCurrentField();
    std::string contactField(const RecordSet& contact, std::string& databaseField);
    std::string companyField(const RecordSet& company, std::string& databaseField);
    std::string itemField(const RecordSet& record, const RecordSet& times, const std::string& databaseField);
    /// The contact's company when the contact inherits its data; none otherwise.
    RecordSet* companyToInheritFrom();

    /// The text that `convertProvinceFields` gave last, and what it was made of.
    struct Conversion {
        const FieldRenamer* renamer = nullptr;
        std::string text;
        std::string converted;
    };
    Conversion lastConversion_;
    std::shared_ptr<FieldListCollection> fieldList_;
    std::shared_ptr<MergeRecordSets> recordSets_;
    std::shared_ptr<RichTextTarget> rtb_;
    std::shared_ptr<ListTarget> listBox_;
    std::shared_ptr<ListTarget> listBox2_;
    std::string templateText_;
    std::int32_t listType_ = 0;
    std::int32_t mergeFieldListUse_ = 1;
    std::int32_t companyID_ = -1;
    std::int32_t contactID_ = -1;
    std::int32_t firmID_ = -1;
    std::int32_t userID_ = -1;
    std::int32_t appointmentID_ = -1;
    std::int32_t docketId_ = -1;
    std::int32_t taskID_ = -1;
    std::int32_t lastRowKey_ = 0;
    bool useWordWrap_ = true;
    bool showListCategoryHeaders_ = true;
    bool testComment_ = false;
    bool convertStrToRTF_ = true;
    bool companyNameToContactName_ = false;
};

} // namespace qncal
