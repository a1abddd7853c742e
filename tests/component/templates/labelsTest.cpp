#include "component/templates/MergeEngineTest.h"

#include <ostream>

// The label of each routine of the merge field engine, which hosts show in their error reports.

namespace qncal::test {

namespace {

struct EngineLabelRow {
    const char* name;
    const char* label;
    void (*call)(clsInsertFieldsInRTB& engine);

    friend void PrintTo(const EngineLabelRow& row, std::ostream* out) { *out << row.label; }
};

class clsInsertFieldsInRTBLabelTest : public MergeEngineTestWith<EngineLabelRow> {};

constexpr EngineLabelRow rows[] = {
    {"resetAllItemIDs", "Vestrel.exe-clsInsertFieldsInRTB-resetAllItemIDs",
     [](clsInsertFieldsInRTB& engine) { engine.resetAllItemIDs(); }},
    {"Terminate", "Vestrel.exe-clsInsertFieldsInRTB-Terminate",
     [](clsInsertFieldsInRTB& engine) { engine.Terminate(); }},
    {"getDBFieldFromListItem", "Vestrel.exe-clsInsertFieldsInRTB-getDBFieldFromListItem",
     [](clsInsertFieldsInRTB& engine) { engine.getDBFieldFromListItem(1); }},
    {"parseListItem", "Vestrel.exe-clsInsertFieldsInRTB-parseListItem",
     [](clsInsertFieldsInRTB& engine) { engine.parseListItem(1, true); }},
    {"onListClick", "Vestrel.exe-clsInsertFieldsInRTB-onListClick",
     [](clsInsertFieldsInRTB& engine) { engine.onListClick(-1); }},
    {"insertCurrentDateMergeField", "Vestrel.exe-clsInsertFieldsInRTB-insertCurrentDateMergeField",
     [](clsInsertFieldsInRTB& engine) { engine.insertCurrentDateMergeField(1, true); }},
    {"insertCurrentDate", "Vestrel.exe-clsInsertFieldsInRTB-insertCurrentDate",
     [](clsInsertFieldsInRTB& engine) { engine.insertCurrentDate(1); }},
    {"getDBFieldNameFromDisplayFieldName", "Vestrel.exe-clsInsertFieldsInRTB-getDBFieldNameFromDisplayFieldName",
     [](clsInsertFieldsInRTB& engine) { engine.getDBFieldNameFromDisplayFieldName(""); }},
    {"getDisplayFieldNameFromDBFieldName", "Vestrel.exe-clsInsertFieldsInRTB-getDisplayFieldNameFromDBFieldName",
     [](clsInsertFieldsInRTB& engine) { engine.getDisplayFieldNameFromDBFieldName(""); }},
    {"parseRTBComment", "Vestrel.exe-clsInsertFieldsInRTB-parseRTBComment",
     [](clsInsertFieldsInRTB& engine) { engine.parseRTBComment(); }},
    {"testRTBComment", "Vestrel.exe-clsInsertFieldsInRTB-testRTBComment",
     [](clsInsertFieldsInRTB& engine) { engine.testRTBComment("", false, false, false); }},
    {"parseTodaysDateInRTBComment", "Vestrel.exe-clsInsertFieldsInRTB-parseTodaysDateInRTBComment",
     [](clsInsertFieldsInRTB& engine) { engine.parseTodaysDateInRTBComment("", "«", "»"); }},
    {"removeBlankLinesFromRTFText", "Vestrel.exe-clsInsertFieldsInRTB-removeBlankLinesFromRTFText",
     [](clsInsertFieldsInRTB& engine) { engine.removeBlankLinesFromRTFText(""); }},
    {"convertFieldName", "Vestrel.exe-clsInsertFieldsInRTB-convertFieldName",
     [](clsInsertFieldsInRTB& engine) { engine.convertFieldName(""); }},
    {"testStr", "Vestrel.exe-clsInsertFieldsInRTB-testStr", [](clsInsertFieldsInRTB& engine) { engine.testStr(""); }},
    {"verifyFieldListIsPopulated", "Vestrel.exe-clsInsertFieldsInRTB-verifyFieldListIsPopulated",
     [](clsInsertFieldsInRTB& engine) { engine.verifyFieldListIsPopulated(); }},
    {"initializeDataRecordsetsForSingleDocMerge",
     "Vestrel.exe-clsInsertFieldsInRTB-initializeDataRecordsetsForSingleDocMerge",
     [](clsInsertFieldsInRTB& engine) { engine.initializeDataRecordsetsForSingleDocMerge(); }},
    {"getDataFieldInfo", "Vestrel.exe-clsInsertFieldsInRTB-getDataFieldInfo",
     [](clsInsertFieldsInRTB& engine) { engine.getDataFieldInfo(1, ""); }},
    {"getMergeDataFromFieldName", "Vestrel.exe-clsInsertFieldsInRTB-getMergeDataFromFieldName",
     [](clsInsertFieldsInRTB& engine) { engine.getMergeDataFromFieldName(""); }},
    {"getMergeDataFromDisplayName", "Vestrel.exe-clsInsertFieldsInRTB-getMergeDataFromDisplayName",
     [](clsInsertFieldsInRTB& engine) { engine.getMergeDataFromDisplayName(""); }},
    {"getTodaysDate", "Vestrel.exe-clsInsertFieldsInRTB-getTodaysDate",
     [](clsInsertFieldsInRTB& engine) { engine.getTodaysDate(""); }},
    {"getTimeDurationFieldValue", "Vestrel.exe-clsInsertFieldsInRTB-getTimeDurationFieldValue",
     [](clsInsertFieldsInRTB& engine) { engine.getTimeDurationFieldValue(noDate, noDate); }},
    {"convertToRTF", "Vestrel.exe-clsInsertFieldsInRTB-convertToRTF",
     [](clsInsertFieldsInRTB& engine) { engine.convertToRTF(""); }},
    {"writeDataToField", "Vestrel.exe-clsInsertFieldsInRTB-writeDataToField",
     [](clsInsertFieldsInRTB& engine) { engine.writeDataToField("", Variant()); }},
    {"convertProvinceFields", "Vestrel.exe-clsInsertFieldsInRTB-convertProvinceFields",
     [](clsInsertFieldsInRTB& engine) { engine.convertProvinceFields(""); }},
    {"getAbbreviatedProvince", "Vestrel.exe-clsInsertFieldsInRTB-getAbbreviatedProvince",
     [](clsInsertFieldsInRTB& engine) { engine.getAbbreviatedProvince(""); }},
    {"getFullProvinceString", "Vestrel.exe-clsInsertFieldsInRTB-getFullProvinceString",
     [](clsInsertFieldsInRTB& engine) { engine.getFullProvinceString(""); }},
    {"createDisplayTextByID2", "Vestrel.exe-clsInsertFieldsInRTB-createDisplayTextByID2",
     [](clsInsertFieldsInRTB& engine) { engine.createDisplayTextByID2(); }},
    {"createTitleBarTextByID2", "Vestrel.exe-clsInsertFieldsInRTB-createTitleBarTextByID2",
     [](clsInsertFieldsInRTB& engine) { engine.createTitleBarTextByID2(); }},
    {"createDefaultFieldListStructure", "Vestrel.exe-clsInsertFieldsInRTB-createDefaultFieldListStructure",
     [](clsInsertFieldsInRTB& engine) {
         bool noListBox = false;
         engine.createDefaultFieldListStructure(noListBox, false);
     }},
    {"replaceText", "Vestrel.exe-clsInsertFieldsInRTB-replaceText",
     [](clsInsertFieldsInRTB& engine) {
         std::string text;
         engine.replaceText(text, "a", "b");
     }},
    {"replaceUnfoundMergeFieldsWithBlanks", "Vestrel.exe-clsInsertFieldsInRTB-replaceUnfoundMergeFieldsWithBlanks",
     [](clsInsertFieldsInRTB& engine) {
         std::string text;
         engine.replaceUnfoundMergeFieldsWithBlanks(text);
     }},
    {"getDataFieldFromRecordset", "Vestrel.exe-clsInsertFieldsInRTB-getDataFieldFromRecordset",
     [](clsInsertFieldsInRTB& engine) {
         std::string text;
         engine.getDataFieldFromRecordset(text);
     }},
    {"createCompanyInfoFieldListStructure", "Vestrel.exe-clsInsertFieldsInRTB-createCompanyInfoFieldListStructure",
     [](clsInsertFieldsInRTB& engine) { engine.createCompanyInfoFieldListStructure(*engine.FieldList(), true); }},
    {"createAppointmentInfoFieldListStructure",
     "Vestrel.exe-clsInsertFieldsInRTB-createAppointmentInfoFieldListStructure",
     [](clsInsertFieldsInRTB& engine) { engine.createAppointmentInfoFieldListStructure(*engine.FieldList(), true); }},
    {"createTaskInfoFieldListStructure", "Vestrel.exe-clsInsertFieldsInRTB-createTaskInfoFieldListStructure",
     [](clsInsertFieldsInRTB& engine) { engine.createTaskInfoFieldListStructure(*engine.FieldList(), true); }},
    {"createDocketInfoFieldListStructure", "Vestrel.exe-clsInsertFieldsInRTB-createDocketInfoFieldListStructure",
     [](clsInsertFieldsInRTB& engine) { engine.createDocketInfoFieldListStructure(*engine.FieldList(), true); }},
    {"createAccountantFieldListStructure", "Vestrel.exe-clsInsertFieldsInRTB-createAccountantFieldListStructure",
     [](clsInsertFieldsInRTB& engine) { engine.createAccountantFieldListStructure(*engine.FieldList(), true); }},
};

} // namespace

TEST_P(clsInsertFieldsInRTBLabelTest, IsPushedFirst)
{
    GetParam().call(engine);
    ASSERT_FALSE(errors->labels().empty());
    EXPECT_EQ(errors->labels().front(), GetParam().label);
    errors->takeErrors();
}

INSTANTIATE_TEST_SUITE_P(Routines, clsInsertFieldsInRTBLabelTest, testing::ValuesIn(rows), rowName);

} // namespace qncal::test
