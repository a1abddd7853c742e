#include "support/RoutineSweep.h"
#include "support/rowName.h"
#include "templates/clsInsertFieldsInRTB.h"
#include "templates/frmTestComment.h"

#include <gtest/gtest.h>

// The merge and its data, with every service call in them failing once.

namespace qncal::test {

namespace {

using Run = std::function<std::string()>;

/// An engine over an appointment of a company and its contact, its list built.
std::shared_ptr<clsInsertFieldsInRTB> engineWithAnAppointment(TestWorld& world, std::int32_t listUse)
{
    world.addRow("UserCalendarSettings", {{"UserIDNum", "-1"},
                                          {"ApptTemplate", "«Appointment Name» «Contact Business Fax»"},
                                          {"ApptTitleBarText", "«(Appointment Date, d)»"}});
    auto engine = std::make_shared<clsInsertFieldsInRTB>();
    engine->ListType(5);
    engine->MergeFieldListUse(listUse);
    engine->companyID(world.addRow("Companies", {{"OfficeNumber", "555-0100"}, {"IndustryType", "Bakery"}}));
    engine->contactID(world.addRow("Contacts", {{"InheritCompanyInfo", "True"}, {"BusinessPhone_Fax", "555-0111"}}));
    engine->appointmentID(world.addRow(
        "Appointments", {{"Subject", "Budget"}, {"DateFrom", "2026-04-02"}, {"BeforeAppointmentText", "before"}}));
    bool noListBox = true;
    engine->createDefaultFieldListStructure(noListBox, false);
    return engine;
}

SweptRoutine onEngine(const char* name, const char* defaultResult,
                      std::function<std::string(clsInsertFieldsInRTB&)> call, bool needsDatabase = true,
                      std::int32_t listUse = 1)
{
    return {name, defaultResult,
            [call, listUse](TestWorld& world) -> Run {
                return [engine = engineWithAnAppointment(world, listUse), call] { return call(*engine); };
            },
            needsDatabase};
}

/// The same with the records open and the contact's business phone current in the list.
SweptRoutine onOpenRecords(const char* name, const char* defaultResult,
                           std::function<std::string(clsInsertFieldsInRTB&)> call, std::int32_t listUse)
{
    return {name, defaultResult, [call, listUse](TestWorld& world) -> Run {
                const auto engine = engineWithAnAppointment(world, listUse);
                engine->initializeDataRecordsetsForSingleDocMerge();
                engine->FieldList()->findInColumn(FieldListCollection::databaseField, "BusinessPhone_Main");
                return [engine, call] { return call(*engine); };
            }};
}

std::string asText(bool value) { return value ? "True" : "False"; }

std::vector<SweptRoutine> routines()
{
    return {
        onEngine(
            "ParseRTBComment", "",
            [](clsInsertFieldsInRTB& engine) {
                engine.TemplateText("«Appointment Name» «(Appointment Date, d)» «Contact Business Phone»");
                return engine.parseRTBComment();
            },
            false),
        onEngine("GetDataFieldInfo", "",
                 [](clsInsertFieldsInRTB& engine) {
                     engine.FieldList()->findInColumn(FieldListCollection::databaseField, "BusinessPhone_Main");
                     return engine.getDataFieldInfo(engine.FieldList()->getCurrentKey(), "");
                 }),
        onOpenRecords(
            "GetDataFieldFromRecordset", "",
            [](clsInsertFieldsInRTB& engine) {
                std::string field = "BusinessPhone_Main";
                return engine.getDataFieldFromRecordset(field);
            },
            1),
        onOpenRecords(
            "WriteDataToField", "False",
            [](clsInsertFieldsInRTB& engine) {
                return asText(engine.writeDataToField("BusinessPhone_Main", "555-0199"));
            },
            5),
        onEngine("CreateDisplayTextByID2", "",
                 [](clsInsertFieldsInRTB& engine) {
                     engine.companyID(-1); // whose query, where it cannot be made, is a second failure
                     return engine.createDisplayTextByID2();
                 }),
        onEngine("CreateTitleBarTextByID2", "",
                 [](clsInsertFieldsInRTB& engine) {
                     engine.companyID(-1);
                     return engine.createTitleBarTextByID2();
                 }),
        onEngine(
            "TestRTBCommentOfACleanTemplate", "True",
            [](clsInsertFieldsInRTB& engine) {
                return asText(engine.testRTBComment("«Appointment Name»", false, true, false));
            },
            false),
        onEngine(
            "TestRTBCommentOfAnUnknownName", "True",
            [](clsInsertFieldsInRTB& engine) { return asText(engine.testRTBComment("«Nobody»", false, true, false)); },
            false),
    };
}

/// Lists that do what a list box does to each line: nothing here can fail but the services.
class Lines : public ListTarget {
public:
    std::vector<std::string> lines;
    void addLine(std::string_view text, std::int32_t) override { lines.emplace_back(text); }
    void clear() override { lines.clear(); }
    void refresh() override {}
};

/// The building of the list, a block or all of it, into a list box; its result is no result.
SweptRoutine onListBox(const char* name, std::function<void(clsInsertFieldsInRTB&)> build)
{
    return onEngine(
        name, "",
        [build](clsInsertFieldsInRTB& engine) {
            engine.ListBox(std::make_shared<Lines>());
            engine.ListBox2(std::make_shared<Lines>());
            build(engine);
            return std::string();
        },
        false);
}

SweptRoutine onBlock(const char* name, void (clsInsertFieldsInRTB::*build)(FieldListCollection&, bool))
{
    return onListBox(name, [build](clsInsertFieldsInRTB& engine) { (engine.*build)(*engine.FieldList(), false); });
}

std::vector<SweptRoutine> catalogueRoutines()
{
    using Engine = clsInsertFieldsInRTB;
    const auto fieldKey = [](Engine& engine) {
        engine.FieldList()->findInColumn(FieldListCollection::displayName, "Appointment Date");
        return engine.FieldList()->getCurrentKey();
    };
    return {
        onListBox("CreateTheWholeList",
                  [](Engine& engine) {
                      bool noListBox = false;
                      engine.createDefaultFieldListStructure(noListBox, true);
                  }),
        onBlock("CreateTheCompanysBlock", &Engine::createCompanyInfoFieldListStructure),
        onBlock("CreateTheAppointmentsBlock", &Engine::createAppointmentInfoFieldListStructure),
        onBlock("CreateTheTasksBlock", &Engine::createTaskInfoFieldListStructure),
        onBlock("CreateTheTimeEntrysBlock", &Engine::createDocketInfoFieldListStructure),
        onBlock("CreateTheFirmsBlock", &Engine::createAccountantFieldListStructure),
        onEngine(
            "GetDBFieldFromListItem", "",
            [fieldKey](Engine& engine) { return engine.getDBFieldFromListItem(fieldKey(engine)); }, false),
        onEngine(
            "ParseListItem", "", [fieldKey](Engine& engine) { return engine.parseListItem(fieldKey(engine), true); },
            false),
        onEngine(
            "InsertCurrentDateMergeField", "",
            [](Engine& engine) { return engine.insertCurrentDateMergeField(3, true); }, false),
        onEngine(
            "VerifyFieldListIsPopulated", "False",
            [](Engine& engine) { return asText(engine.verifyFieldListIsPopulated()); }, false),
        onEngine(
            "VerifyAnEmptyList", "False",
            [](Engine& engine) {
                engine.FieldList()->clearRows();
                return asText(engine.verifyFieldListIsPopulated());
            },
            false),
        onEngine(
            "TestStr", "False", [](Engine& engine) { return asText(engine.testStr("Appointment Date")); }, false),
    };
}

std::vector<SweptRoutine> valueRoutines()
{
    using Engine = clsInsertFieldsInRTB;
    return {
        onEngine("GetMergeDataFromFieldName", "",
                 [](Engine& engine) { return engine.getMergeDataFromFieldName("OfficeNumber"); }),
        onEngine("GetMergeDataFromDisplayName", "",
                 [](Engine& engine) { return engine.getMergeDataFromDisplayName("Contact Business Phone"); }),
        onEngine("InitializeDataRecordsets", "",
                 [](Engine& engine) {
                     engine.companyID(-1); // whose query, where it cannot be made, is a second failure
                     engine.initializeDataRecordsetsForSingleDocMerge();
                     return std::string();
                 }),
        onEngine(
            "GetTodaysDate", "", [](Engine& engine) { return engine.getTodaysDate("mmmm d, yyyy"); }, false),
        onEngine(
            "GetTimeDurationFieldValue", "",
            [](Engine& engine) { return engine.getTimeDurationFieldValue(Date::timeOf(9), Date::timeOf(10, 30)); },
            false),
        onEngine(
            "ConvertToRTF", "", [](Engine& engine) { return engine.convertToRTF("two\r\nlines"); }, false),
        onEngine(
            "GetAbbreviatedProvince", "", [](Engine& engine) { return engine.getAbbreviatedProvince("Ontario"); },
            false),
        onEngine(
            "GetFullProvinceString", "", [](Engine& engine) { return engine.getFullProvinceString("ON"); }, false),
        {"ShowATestComment", "",
         [](TestWorld& world) -> Run {
             world.dialogs->whenAnyShown([](host::Hand& hand) { hand.click("cmdOk"); });
             return [] {
                 frmTestComment().Initialize("{\\rtf1 text}");
                 return std::string();
             };
         },
         false},
        onEngine(
            "ParseTodaysDate", "",
            [](Engine& engine) {
                return engine.parseTodaysDateInRTBComment("«(Todays Date, mmmm d, yyyy)»", "«", "»");
            },
            false),
    };
}

class clsInsertFieldsInRTBFaultSweepTest : public testing::TestWithParam<SweptRoutine> {};

} // namespace

TEST_P(clsInsertFieldsInRTBFaultSweepTest, EveryFaultLeaves) { expectFaultsLeave(GetParam()); }
TEST_P(clsInsertFieldsInRTBFaultSweepTest, EveryLastingFaultLeaves) { expectLastingFaultsLeave(GetParam()); }
TEST_P(clsInsertFieldsInRTBFaultSweepTest, EveryFaultIsRetriedAlone) { expectFaultsRetry(GetParam()); }
TEST_P(clsInsertFieldsInRTBFaultSweepTest, EveryEmptySlotLeaves) { expectEmptySlotsLeave(GetParam()); }

INSTANTIATE_TEST_SUITE_P(Routines, clsInsertFieldsInRTBFaultSweepTest, testing::ValuesIn(routines()), rowName);
INSTANTIATE_TEST_SUITE_P(Catalogue, clsInsertFieldsInRTBFaultSweepTest, testing::ValuesIn(catalogueRoutines()),
                         rowName);
INSTANTIATE_TEST_SUITE_P(Values, clsInsertFieldsInRTBFaultSweepTest, testing::ValuesIn(valueRoutines()), rowName);

} // namespace qncal::test
