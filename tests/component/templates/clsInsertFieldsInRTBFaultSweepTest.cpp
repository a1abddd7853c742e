#include "support/RoutineSweep.h"
#include "support/rowName.h"
#include "templates/clsInsertFieldsInRTB.h"

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

class clsInsertFieldsInRTBFaultSweepTest : public testing::TestWithParam<SweptRoutine> {};

} // namespace

TEST_P(clsInsertFieldsInRTBFaultSweepTest, EveryFaultLeaves) { expectFaultsLeave(GetParam()); }
TEST_P(clsInsertFieldsInRTBFaultSweepTest, EveryFaultIsRetriedAlone) { expectFaultsRetry(GetParam()); }
TEST_P(clsInsertFieldsInRTBFaultSweepTest, EveryEmptySlotLeaves) { expectEmptySlotsLeave(GetParam()); }

INSTANTIATE_TEST_SUITE_P(Routines, clsInsertFieldsInRTBFaultSweepTest, testing::ValuesIn(routines()), rowName);

} // namespace qncal::test
