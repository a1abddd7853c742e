#include "items/clsCalendarItem.h"
#include "items/frmSelectStartTime.h"
#include "items/modHolidayCtrl.h"
#include "support/ComponentTest.h"
#include "support/rowName.h"

#include <ostream>

// The label of each routine, which hosts show in their error reports.

namespace qncal::test {

namespace {

template <class Object>
struct LabelRow {
    const char* name;
    const char* label;
    void (*call)(Object& object);

    friend void PrintTo(const LabelRow& row, std::ostream* out) { *out << row.label; }
};

template <class Object>
class LabelTest : public ComponentTestWith<LabelRow<Object>> {
protected:
    void expectLabelFirst()
    {
        // Dialogs come up and are closed at once; the editor, which needs the client lists, does not come up.
        this->dialogs->whenAnyShown([](host::Hand& hand) { hand.closeByBox(); });
        Object object;
        serviceRegistry().clientDropDown.reset();
        const std::size_t before = this->errors->labels().size();
        this->GetParam().call(object);
        ASSERT_GT(this->errors->labels().size(), before);
        EXPECT_EQ(this->errors->labels()[before], this->GetParam().label);
        this->errors->takeErrors();
    }
};

class clsCalendarItemLabelTest : public LabelTest<clsCalendarItem> {};
class frmSelectStartTimeLabelTest : public LabelTest<frmSelectStartTime> {};

struct Module {};
class modHolidayCtrlLabelTest : public LabelTest<Module> {};

constexpr LabelRow<clsCalendarItem> itemRows[] = {
    {"Terminate", "Vestrel.exe-clsCalendarItem-Terminate", [](clsCalendarItem& item) { item.Terminate(); }},
    {"resetAllInformation", "Vestrel.exe-clsCalendarItem-resetAllInformation",
     [](clsCalendarItem& item) { item.resetAllInformation(); }},
    {"addNewItem", "Vestrel.exe-clsCalendarItem-addNewItem", [](clsCalendarItem& item) { item.addNewItem(); }},
    {"loadCalendarItem", "Vestrel.exe-clsCalendarItem-loadCalendarItem",
     [](clsCalendarItem& item) { item.loadCalendarItem(); }},
    {"saveCalendarItem", "Vestrel.exe-clsCalendarItem-saveCalendarItem",
     [](clsCalendarItem& item) { item.saveCalendarItem(); }},
    {"deleteCalendarItem", "Vestrel.exe-clsCalendarItem-deleteCalendarItem",
     [](clsCalendarItem& item) { item.deleteCalendarItem(); }},
    {"getTaskIDFromScheduleID", "Vestrel.exe-clsCalendarItem-getTaskIDFromScheduleID",
     [](clsCalendarItem& item) { item.getTaskIDFromScheduleID(1); }},
    {"getScheduleIDFromTaskID", "Vestrel.exe-clsCalendarItem-getScheduleIDFromTaskID",
     [](clsCalendarItem& item) { item.getScheduleIDFromTaskID(); }},
    {"openApptForm", "Vestrel.exe-clsCalendarItem-openApptForm", [](clsCalendarItem& item) { item.openApptForm(); }},
    {"openApptCustomFieldsForm", "Vestrel.exe-clsCalendarItem-openApptCustomFieldsForm",
     [](clsCalendarItem& item) { item.openApptCustomFieldsForm(); }},
    {"getOverlapModeUsersList", "Vestrel.exe-clsCalendarItem-getOverlapModeUsersList",
     [](clsCalendarItem& item) { item.getOverlapModeUsersList(); }},
    {"getBestStartTime", "Vestrel.exe-clsCalendarItem-getBestStartTime",
     [](clsCalendarItem& item) { item.getBestStartTime(Date::timeOf(9), Date::timeOf(12)); }},
    {"getBestTimeInCalendarForSpecificDayAndUser",
     "Vestrel.exe-clsCalendarItem-getBestTimeInCalendarForSpecificDayAndUser",
     [](clsCalendarItem& item) { item.getBestTimeInCalendarForSpecificDayAndUser(); }},
    {"moveCalendarItemToNewDateAndHourSlot", "Vestrel.exe-clsCalendarItem-moveCalendarItemToNewDateAndHourSlot",
     [](clsCalendarItem& item) { item.moveCalendarItemToNewDateAndHourSlot(noDate, Date::timeOf(9)); }},
    {"moveCalendarItemToNewDateAndBestTimeInCalendar",
     "Vestrel.exe-clsCalendarItem-moveCalendarItemToNewDateAndBestTimeInCalendar",
     [](clsCalendarItem& item) { item.moveCalendarItemToNewDateAndBestTimeInCalendar(noDate); }},
    {"promptFormToChangeStartTime", "Vestrel.exe-clsCalendarItem-promptFormToChangeStartTime",
     [](clsCalendarItem& item) { item.promptFormToChangeStartTime(); }},
    {"promptFormToChangeEndTime", "Vestrel.exe-clsCalendarItem-promptFormToChangeEndTime",
     [](clsCalendarItem& item) { item.promptFormToChangeEndTime(); }},
    {"createTitleBarTextByID", "Vestrel.exe-clsCalendarItem-createTitleBarTextByID",
     [](clsCalendarItem& item) { item.createTitleBarTextByID(); }},
    {"createDisplayTextByID", "Vestrel.exe-clsCalendarItem-createDisplayTextByID",
     [](clsCalendarItem& item) { item.createDisplayTextByID(); }},
    {"buildDisplayText", "Vestrel.exe-clsCalendarItem-buildDisplayText",
     [](clsCalendarItem& item) { item.buildDisplayText(""); }},
    {"parseCalendarItemComment", "Vestrel.exe-clsCalendarItem-parseCalendarItemComment",
     [](clsCalendarItem& item) { item.parseCalendarItemComment(""); }},
    {"getApptDataFieldInfo", "Vestrel.exe-clsCalendarItem-getApptDataFieldInfo",
     [](clsCalendarItem& item) { item.getApptDataFieldInfo("", "", ""); }},
    {"schedulePopupReminderForItem", "Vestrel.exe-clsCalendarItem-schedulePopupReminderForItem",
     [](clsCalendarItem& item) { item.schedulePopupReminderForItem(); }},
    {"getPopupReminderCurrentStatusText", "Vestrel.exe-clsCalendarItem-getPopupReminderCurrentStatusText",
     [](clsCalendarItem& item) { item.getPopupReminderCurrentStatusText(); }},
    {"checkOKToSave", "Vestrel.exe-clsCalendarItem-checkOKToSave", [](clsCalendarItem& item) { item.checkOKToSave(); }},
    {"calculateTimeDuration", "Vestrel.exe-clsCalendarItem-calculateTimeDuration",
     [](clsCalendarItem& item) { item.calculateTimeDuration(); }},
    {"determineEndTimeFromTimeDuration", "Vestrel.exe-clsCalendarItem-determineEndTimeFromTimeDuration",
     [](clsCalendarItem& item) { item.determineEndTimeFromTimeDuration(); }},
    {"verifyStartAndEndTime", "Vestrel.exe-clsCalendarItem-verifyStartAndEndTime",
     [](clsCalendarItem& item) { item.verifyStartAndEndTime(); }},
    {"populateColourSchemeColours", "Vestrel.exe-clsCalendarItem-populateColourSchemeColours",
     [](clsCalendarItem& item) { item.populateColourSchemeColours(); }},
    {"getColourSchemeNameFromColourSchemeID", "Vestrel.exe-clsCalendarItem-getColourSchemeNameFromColourSchemeID",
     [](clsCalendarItem& item) { item.getColourSchemeNameFromColourSchemeID(); }},
    {"getPopUpReminderTime", "Vestrel.exe-clsCalendarItem-getPopUpReminderTime",
     [](clsCalendarItem& item) { item.getPopUpReminderTime(); }},
    {"getPopUpReminderPopupText", "Vestrel.exe-clsCalendarItem-getPopUpReminderPopupText",
     [](clsCalendarItem& item) { item.getPopUpReminderPopupText(); }},
    {"checkToCancelPopups", "Vestrel.exe-clsCalendarItem-checkToCancelPopups",
     [](clsCalendarItem& item) { item.checkToCancelPopups(true); }},
    {"scheduleAutoNotifications", "Vestrel.exe-clsCalendarItem-scheduleAutoNotifications",
     [](clsCalendarItem& item) { item.scheduleAutoNotifications(); }},
    {"checkToCancelAutoNotifications", "Vestrel.exe-clsCalendarItem-checkToCancelAutoNotifications",
     [](clsCalendarItem& item) { item.checkToCancelAutoNotifications(true); }},
};

constexpr LabelRow<frmSelectStartTime> formRows[] = {
    {"Initialize", "Vestrel.exe-frmSelectStartTime-Initialize", [](frmSelectStartTime& form) { form.Initialize(); }},
    {"dtpTime_LostFocus", "Vestrel.exe-frmSelectStartTime-dtpTime_LostFocus",
     [](frmSelectStartTime& form) { form.dtpTime_LostFocus(); }},
    {"cboField_Click", "Vestrel.exe-frmSelectStartTime-cboField_Click",
     [](frmSelectStartTime& form) { form.cboField_Click(); }},
    {"cmdOpts_Click", "Vestrel.exe-frmSelectStartTime-cmdOpts_Click",
     [](frmSelectStartTime& form) { form.cmdOpts_Click(1); }},
    {"cboField_KeyPress", "Vestrel.exe-frmSelectStartTime-cboField_KeyPress",
     [](frmSelectStartTime& form) {
         std::int32_t key = 0;
         form.cboField_KeyPress(key);
     }},
};

const Date monday = Date::of(2026, 4, 6);

constexpr LabelRow<Module> holidayRows[] = {
    {"isStatutoryHoliday", "Vestrel.exe-modHolidayCtrl-isStatutoryHoliday",
     [](Module&) { modHolidayCtrl::isStatutoryHoliday(monday); }},
    {"adjustDateToFridayIfWeekendOrHoliday", "Vestrel.exe-modHolidayCtrl-adjustDateToFridayIfWeekendOrHoliday",
     [](Module&) { modHolidayCtrl::adjustDateToFridayIfWeekendOrHoliday(monday); }},
    {"dateAddBusinessDaysWithoutWeekendsAndHolidays",
     "Vestrel.exe-modHolidayCtrl-dateAddBusinessDaysWithoutWeekendsAndHolidays",
     [](Module&) { modHolidayCtrl::dateAddBusinessDaysWithoutWeekendsAndHolidays(0, monday); }},
};

} // namespace

TEST_P(clsCalendarItemLabelTest, IsPushedFirst) { expectLabelFirst(); }
TEST_P(frmSelectStartTimeLabelTest, IsPushedFirst) { expectLabelFirst(); }
TEST_P(modHolidayCtrlLabelTest, IsPushedFirst) { expectLabelFirst(); }

INSTANTIATE_TEST_SUITE_P(Routines, clsCalendarItemLabelTest, testing::ValuesIn(itemRows), rowName);
INSTANTIATE_TEST_SUITE_P(Routines, frmSelectStartTimeLabelTest, testing::ValuesIn(formRows), rowName);
INSTANTIATE_TEST_SUITE_P(Routines, modHolidayCtrlLabelTest, testing::ValuesIn(holidayRows), rowName);

} // namespace qncal::test
