#include "core/clsCalendarItemType.h"
#include "items/clsCalendarItem.h"
#include "items/modDatabaseFunctions.h"
#include "lookups/modDatabaseClientFunctions.h"
#include "support/RoutineSweep.h"
#include "support/rowName.h"

#include <gtest/gtest.h>

// Every routine of the items, with every service call in it failing once.

namespace qncal {
namespace {

namespace mod = modDatabaseFunctions;
using test::SweptRoutine;
using test::TestWorld;
using Run = std::function<std::string()>;

std::string asText(bool value) { return value ? "True" : "False"; }
std::string asText(std::int32_t value) { return std::to_string(value); }
std::string asText(const std::string& value) { return value; }

/// A free routine on the rows that `fill` puts in place; its argument is the id that `fill` gives.
template <class Result>
SweptRoutine onRows(const char* name, Result defaultResult, std::function<std::int32_t(TestWorld&)> fill,
                    std::function<Result(std::int32_t)> call)
{
    return {name, asText(defaultResult),
            [fill, call](TestWorld& world) -> Run { return [call, id = fill(world)] { return asText(call(id)); }; }};
}

/// A routine of an item of the kind with the id that `fill` gives.
SweptRoutine onItem(const char* name, const std::string& defaultResult, enumLocalCalendarItemType kind,
                    std::function<std::int32_t(TestWorld&)> fill, std::function<std::string(clsCalendarItem&)> call)
{
    return {
        name, defaultResult, [=](TestWorld& world) -> Run {
            // Templates without fields: the merge of texts has tests of its own.
            world.addRow("UserCalendarSettings", {{"UserIDNum", "-1"}, {"ApptTemplate", "a"}, {"TaskTemplate", "t"}});
            const std::int32_t id = fill(world);
            auto item = std::make_shared<clsCalendarItem>();
            item->calendarItemType(kind);
            item->itemID(id);
            return [item, call] { return call(*item); };
        }};
}

std::int32_t noRows(TestWorld&) { return -1; }

std::int32_t appointmentWithDependents(TestWorld& world)
{
    const std::int32_t id = world.addRow("Appointments", {{"Subject", "Budget"},
                                                          {"CompanyIDNum", "5"},
                                                          {"RepeatNum", "3"},
                                                          {"UserGroupNum", "4"},
                                                          {"UserIDNum", "1"},
                                                          {"DateFrom", "2026-04-02"},
                                                          {"TimeFrom", "15:00:00"},
                                                          {"TimeTo", "11:00:00"},
                                                          {"TextBody", "notes"}});
    for (const char* done : {"True", "False"}) {
        world.addRow("Reminders", {{"AppointmentIDNum", std::to_string(id)}, {"Completed", done}});
        world.addRow("ClientNotification", {{"AppointmentNum", std::to_string(id)}, {"NotificationSent", done}});
    }
    world.addRow("Appointments", {{"RepeatNum", "3"}, {"UserGroupNum", "0"}, {"UserIDNum", "1"}});
    return id;
}

std::int32_t taskOfSchedule(TestWorld& world)
{
    const std::int32_t schedule = world.addRow("Schedule", {{"totalNum", "111"}, {"scheduleNum", "5"}});
    return world.addRow("Tasks", {{"ScheduleIDNum", std::to_string(schedule)}});
}

/// An archived task of schedule row 41; gives the task's former id.
std::int32_t archivedTask(TestWorld& world)
{
    world.addRow("archiveTasks", {{"oldTaskID", "77"}, {"ScheduleIDNum", "41"}});
    return 77;
}

std::int32_t colourScheme(TestWorld& world)
{
    return world.addRow("ColourSchemes", {{"SchemeName", "Sea"}, {"BackColour", "3"}, {"ForeColour", "4"}});
}

/// The first hour of a working day of user 1, taken.
std::int32_t takenMorning(TestWorld& world)
{
    return world.addRow(
        "Appointments",
        {{"UserIDNum", "1"}, {"DateFrom", "2026-04-02"}, {"TimeFrom", "09:00:00"}, {"TimeTo", "10:00:00"}});
}

/// What a routine that places the item of user 1 on that day makes of its start; 9:00 where it fails.
SweptRoutine onPlacement(const char* name, std::function<void(clsCalendarItem&)> place, bool needsDatabase = true)
{
    SweptRoutine routine =
        onItem(name, "09:00:00", enumLocalCalendarAppointmentItem, takenMorning, [place](clsCalendarItem& item) {
            item.userIDNum(1);
            item.DateFrom(Date::of(2026, 4, 2));
            place(item);
            return defaultDateText(item.TimeFrom());
        });
    routine.needsDatabase = needsDatabase;
    return routine;
}

/// A text of a saved item with fields of both stages.
SweptRoutine onText(const char* name, std::function<std::string(clsCalendarItem&, const std::string&)> call)
{
    SweptRoutine routine =
        onItem(name, "", enumLocalCalendarAppointmentItem, appointmentWithDependents, [call](clsCalendarItem& item) {
            item.contactIDNum(6);
            return call(item, "«Appointment Start Time» «Contact Job Title» «Your City»");
        });
    routine.needsDatabase = false;
    return routine;
}

/// A routine that needs no database.
SweptRoutine withoutDatabase(SweptRoutine routine)
{
    routine.needsDatabase = false;
    return routine;
}

/// An item's routine without a result; the item's subject and start tell what it did.
SweptRoutine onMemory(const char* name, std::function<void(clsCalendarItem&)> call)
{
    return withoutDatabase({name, "Budget 09:00:00", [call](TestWorld&) -> Run {
                                auto item = std::make_shared<clsCalendarItem>();
                                item->Subject("Budget");
                                item->TimeTo(Date::timeOf(8));
                                return [item, call] {
                                    call(*item);
                                    return item->Subject() + " " + defaultDateText(item->TimeFrom());
                                };
                            }});
}

/// A routine that shows a dialog, which the script works on.
SweptRoutine onDialog(const char* name, std::function<void(host::Hand&)> hand,
                      std::function<std::string(clsCalendarItem&)> call)
{
    return withoutDatabase({name, "False", [hand, call](TestWorld& world) -> Run {
                                world.dialogs->whenAnyShown(hand);
                                auto item = std::make_shared<clsCalendarItem>();
                                item->calendarItemType(enumLocalCalendarAppointmentItem);
                                return [item, call] { return call(*item); };
                            }});
}

constexpr auto appointment = enumLocalCalendarAppointmentItem;
constexpr auto task = enumLocalCalendarTaskItem;

std::vector<SweptRoutine> routines()
{
    std::vector<SweptRoutine> all = {
        onItem("LoadById", "False", appointment, appointmentWithDependents,
               [](clsCalendarItem& item) { return asText(item.loadCalendarItem()); }),
        {"LoadFromACallersSet", "False",
         [](TestWorld& world) -> Run {
             auto item = std::make_shared<clsCalendarItem>();
             item->calendarItemType(appointment);
             item->itemID(appointmentWithDependents(world));
             const std::int32_t handle =
                 world.database->openRecordset("SELECT Appointments.* FROM Appointments;", 1, 1, true, {}, true);
             return [item, handle] { return asText(item->loadCalendarItem(handle)); };
         }},
        onItem("SaveAnExistingRow", "False", appointment, appointmentWithDependents,
               [](clsCalendarItem& item) {
                   item.Subject("changed");
                   return asText(item.saveCalendarItem());
               }),
        onItem("SaveANewRow", "False", task, noRows,
               [](clsCalendarItem& item) {
                   item.TimeFrom(Date::timeOf(15));
                   return asText(item.saveCalendarItem());
               }),
        onItem(
            "SaveAVanishedRow", "False", appointment, [](TestWorld&) { return 17; },
            [](clsCalendarItem& item) { return asText(item.saveCalendarItem()); }),
        onItem("DeleteItem", "False", appointment, appointmentWithDependents,
               [](clsCalendarItem& item) { return asText(item.deleteCalendarItem()); }),
        onItem("ItemTaskFromSchedule", "False", task, archivedTask,
               [](clsCalendarItem& item) { return asText(item.getTaskIDFromScheduleID(41)); }),
        onItem("ItemScheduleFromTask", "-1", task, archivedTask,
               [](clsCalendarItem& item) { return asText(item.getScheduleIDFromTaskID()); }),
        onPlacement("BestStartTime",
                    [](clsCalendarItem& item) { item.getBestStartTime(Date::timeOf(8), Date::timeOf(12)); }),
        onPlacement("BestTimeOfTheDay",
                    [](clsCalendarItem& item) { item.getBestTimeInCalendarForSpecificDayAndUser(); }),
        onPlacement(
            "MoveToTheBestTime",
            [](clsCalendarItem& item) { item.moveCalendarItemToNewDateAndBestTimeInCalendar(Date::of(2026, 4, 2)); }),
        onPlacement(
            "MoveToAnHourSlot",
            [](clsCalendarItem& item) {
                item.moveCalendarItemToNewDateAndHourSlot(Date::of(2026, 4, 3), Date::timeOf(14));
            },
            false),
        onText("DisplayText",
               [](clsCalendarItem& item, const std::string& text) {
                   item.DisplayTextTemplate(text);
                   return item.createDisplayTextByID();
               }),
        onText("Title",
               [](clsCalendarItem& item, const std::string& text) {
                   item.TitleBarTextTemplate(text);
                   return item.createTitleBarTextByID();
               }),
        onRows<bool>("DeleteAppointmentKeepingTheDone", false, appointmentWithDependents,
                     [](std::int32_t id) { return mod::deleteAppointment(id, true); }),
        onRows<bool>("DeleteAppointment", false, appointmentWithDependents,
                     [](std::int32_t id) { return mod::deleteAppointment(id, false); }),
        onRows<bool>("DeleteSeriesOfUser", false, appointmentWithDependents,
                     [](std::int32_t) { return mod::deleteRepeaterAppointmentForUser(appointment, 3, 1); }),
        onRows<bool>("IsSeries", false, appointmentWithDependents,
                     [](std::int32_t id) { return mod::isAppointmentRepeaterAppointment(appointment, id); }),
        onRows<std::int32_t>("SeriesNumber", 0, appointmentWithDependents,
                             [](std::int32_t id) { return mod::getAppointmentRepeaterID(appointment, id); }),
        onRows<bool>("IsGroup", false, appointmentWithDependents,
                     [](std::int32_t id) { return mod::isAppointmentPartOfGroupedAppointment(appointment, id); }),
        onRows<std::int32_t>("GroupNumber", 0, appointmentWithDependents,
                             [](std::int32_t id) { return mod::getAppointmentGroupID(appointment, id); }),
        onRows<std::int32_t>("FreeSeriesNumber", 0, appointmentWithDependents,
                             [](std::int32_t) { return mod::getAppointmentRepeatUniqueID(appointment); }),
        onRows<std::int32_t>("FreeGroupNumber", 0, appointmentWithDependents,
                             [](std::int32_t) { return mod::getAppointmentGroupUniqueID(appointment); }),
        onRows<std::int32_t>("ModuleTaskFromSchedule", -1, archivedTask,
                             [](std::int32_t) { return mod::getTaskIDFromScheduleID(41); }),
        onRows<bool>("IndependentScheduleEntry", false, taskOfSchedule,
                     mod::isThisTaskAssociatedWithIndependentScheduleEntry),
        onRows<std::string>("ModuleSchemeName", "", colourScheme, mod::getColourSchemeNameFromColourSchemeID),
        {"ItemSchemeName", "",
         [](TestWorld& world) -> Run {
             auto item = std::make_shared<clsCalendarItem>();
             item->ColourSchemeID(colourScheme(world));
             return [item] { return item->ColourSchemeName(); };
         }},
        {"ItemSchemeColours", "",
         [](TestWorld& world) -> Run {
             auto item = std::make_shared<clsCalendarItem>();
             item->ColourSchemeID(colourScheme(world));
             return [item] {
                 item->populateColourSchemeColours();
                 return std::string();
             };
         }},
        {"LoadTemplates", "",
         [](TestWorld& world) -> Run {
             world.addRow("UserCalendarSettings", {{"UserIDNum", "-1"}, {"ApptTitleBarText", "t"}});
             auto type = std::make_shared<clsCalendarItemType>();
             return [type] {
                 type->calendarItemType(appointment);
                 return std::string();
             };
         }},
        {"CreateTheTemplatesRow", "",
         [](TestWorld&) -> Run {
             auto type = std::make_shared<clsCalendarItemType>();
             return [type] {
                 type->calendarItemType(task);
                 return std::string();
             };
         }},
    };
    all.push_back(withoutDatabase(
        {"ValidID", "False", [](TestWorld&) -> Run { return [] { return asText(mod::validTaskID("12")); }; }}));
    all.push_back(withoutDatabase({"EndTimeFromDuration", "10:00:00", [](TestWorld&) -> Run {
                                       auto item = std::make_shared<clsCalendarItem>();
                                       item->timeduration(3);
                                       return [item] {
                                           item->determineEndTimeFromTimeDuration();
                                           return defaultDateText(item->TimeTo());
                                       };
                                   }}));
    return all;
}

/// Routines that look into the database for one answer.
std::vector<SweptRoutine> lookups()
{
    struct ClientLookup {
        const char* name;
        std::int32_t (*lookUp)(std::int32_t id);
        const char* table;
        const char* column;
    };
    constexpr ClientLookup clients[] = {
        {"CompanyOfTask", mod::getCompanyIDFromTaskID, "Tasks", "CompanyIDNum"},
        {"ContactOfTask", mod::getContactIDFromTaskID, "Tasks", "ContactIDNum"},
        {"CompanyOfAppointment", mod::getCompanyIDFromAppointmentID, "Appointments", "CompanyIDNum"},
        {"ContactOfAppointment", mod::getContactIDFromAppointmentID, "Appointments", "ContactIDNum"},
        {"CompanyOfMissingInfo", mod::getCompanyIDFromMissingInfoID, "MissingInfo", "CompanyIDNum"},
        {"ContactOfMissingInfo", mod::getContactIDFromMissingInfoID, "MissingInfo", "ContactIDNum"},
        {"CompanyOfLog", mod::getCompanyIDFromCommunicationLogID, "CommunicationLog", "CompanyIDNum"},
        {"ContactOfLog", mod::getContactIDFromCommunicationLogID, "CommunicationLog", "ContactIDNum"},
    };
    std::vector<SweptRoutine> all;
    for (const ClientLookup& lookup : clients)
        all.push_back(onRows<std::int32_t>(
            lookup.name, -1,
            [=](TestWorld& world) {
                return world.addRow(lookup.table, {{lookup.column, "31"}});
            },
            lookup.lookUp));
    all.push_back(onRows<std::int32_t>(
        "DefaultContactOfCompany", -1,
        [](TestWorld& world) {
            world.addRow("ContactLinks", {{"CompanyNum", "4"}, {"ContactIDNum", "3"}, {"DefaultContact", "True"}});
            return 4;
        },
        modDatabaseClientFunctions::getDefaultContactIDFromCompanyID));
    all.push_back(onRows<std::string>("DeleteClientNotifications", "", appointmentWithDependents, [](std::int32_t id) {
        mod::deleteAppointmentClientNotifications(id, true);
        return std::string();
    }));
    return all;
}

/// Routines that work on the item alone, or show a dialog.
std::vector<SweptRoutine> routinesWithoutRows()
{
    const auto pickAfternoon = [](host::Hand& hand) {
        hand.pickDate("dtpTime", Date::timeOf(14, 20));
        hand.click("cmdOpts(0)");
    };
    return {
        onMemory("ResetAllInformation", [](clsCalendarItem& item) { item.resetAllInformation(); }),
        onMemory("AddNewItem", [](clsCalendarItem& item) { item.addNewItem(); }),
        onMemory("OverlapModeUsers", [](clsCalendarItem& item) { item.getOverlapModeUsersList(); }),
        onMemory("OrderOfStartAndEnd", [](clsCalendarItem& item) { item.verifyStartAndEndTime(); }),
        onMemory("CheckOKToSave", [](clsCalendarItem& item) { item.checkOKToSave(); }),
        onDialog("ChangeStartTime", pickAfternoon,
                 [](clsCalendarItem& item) { return asText(item.promptFormToChangeStartTime()); }),
        onDialog("ChangeEndTime", pickAfternoon,
                 [](clsCalendarItem& item) { return asText(item.promptFormToChangeEndTime()); }),
        onDialog(
            "OpenTheEditor", [](host::Hand&) {}, [](clsCalendarItem& item) { return asText(item.openApptForm(true)); }),
        onDialog(
            "OpenTheCustomFields", [](host::Hand& hand) { hand.click("cmdOK"); },
            [](clsCalendarItem& item) {
                item.openApptCustomFieldsForm();
                return asText(false);
            }),
    };
}

class itemsFaultSweepTest : public testing::TestWithParam<SweptRoutine> {};

TEST_P(itemsFaultSweepTest, EveryFaultLeaves) { test::expectFaultsLeave(GetParam()); }
TEST_P(itemsFaultSweepTest, EveryLastingFaultLeaves) { test::expectLastingFaultsLeave(GetParam()); }
TEST_P(itemsFaultSweepTest, EveryFaultIsRetriedAlone) { test::expectFaultsRetry(GetParam()); }
TEST_P(itemsFaultSweepTest, EveryEmptySlotLeaves) { test::expectEmptySlotsLeave(GetParam()); }

INSTANTIATE_TEST_SUITE_P(Routines, itemsFaultSweepTest, testing::ValuesIn(routines()), test::rowName);
INSTANTIATE_TEST_SUITE_P(Lookups, itemsFaultSweepTest, testing::ValuesIn(lookups()), test::rowName);
INSTANTIATE_TEST_SUITE_P(WithoutRows, itemsFaultSweepTest, testing::ValuesIn(routinesWithoutRows()), test::rowName);

} // namespace
} // namespace qncal
