#include "items/frmSelectStartTime.h"

#include "core/routineScope.h"
#include "utilities/Variant.h"

namespace qncal {

namespace {

constexpr int minutesInQuarter = 15;

/// Midnight reads "0:00 AM" here: the picker's hour stands as it is below 12.
std::string quarterHourText(CivilTime time)
{
    int hour = time.hour;
    const char* suffix = "AM";
    if (hour == 12) {
        suffix = "PM";
    } else if (hour > 12) {
        suffix = "PM";
        hour -= 12;
    }
    const int minute = time.minute / minutesInQuarter * minutesInQuarter;
    return std::to_string(hour) + ":" + (minute == 0 ? "00" : std::to_string(minute)) + " " + suffix;
}

} // namespace

frmSelectStartTime::frmSelectStartTime() : Form("frmSelectStartTime")
{
    Label1.caption("Or &pick a quarter hour:");
    dtpTime.format(DateTimePicker::Format::time);
    dtpTime.customFormat("h:nn AM/PM");
    dtpTime.LostFocus = [this] { dtpTime_LostFocus(); };
    cboField.accessibleName("Quarter hour");
    for (int minute = 0; minute < 24 * 60; minute += minutesInQuarter)
        cboField.addItem(quarterHourText({minute / 60, minute % 60, 0}));
    cboField.Click = [this] { cboField_Click(); };
    cboField.KeyPress = [this](std::int32_t& keyAscii) { cboField_KeyPress(keyAscii); };
    cmdOpts(0).caption("&Ok");
    cmdOpts(0).isDefault(true);
    cmdOpts(1).caption("&Cancel");
    cmdOpts(1).isCancel(true);
    cmdOpts.forEach(
        [this](CommandButton& button, int index) { button.Click = [this, index] { cmdOpts_Click(index); }; });
}

void frmSelectStartTime::Initialize()
{
    routine("Vestrel.exe-frmSelectStartTime-Initialize", [&] {
        cancelFlag_ = false;
        const char* title = timeType_ == startTime ? "Select Start Time" : "Select End Time";
        caption(title);
        Label0.caption(title);
        dtpTime.accessibleName(title);
        loading_ = true;
        dtpTime.value(timeSelected_);
        showTimeInField();
        loading_ = false;
        showModal();
    });
}

void frmSelectStartTime::showTimeInField() { cboField.text(quarterHourText(dtpTime.value().civilTime())); }

void frmSelectStartTime::dtpTime_LostFocus()
{
    routine("Vestrel.exe-frmSelectStartTime-dtpTime_LostFocus", [&] {
        loading_ = true;
        showTimeInField();
        loading_ = false;
    });
}

void frmSelectStartTime::cboField_Click()
{
    if (loading_)
        return;
    routine("Vestrel.exe-frmSelectStartTime-cboField_Click",
            [&] { dtpTime.value(statement([&] { return Variant(cboField.text()).toDate(); })); });
}

void frmSelectStartTime::cboField_KeyPress(std::int32_t& keyAscii)
{
    routine("Vestrel.exe-frmSelectStartTime-cboField_KeyPress", [&] { cboField.autoCompleteKey(keyAscii); });
}

void frmSelectStartTime::cmdOpts_Click(int index)
{
    routine("Vestrel.exe-frmSelectStartTime-cmdOpts_Click", [&] {
        timeSelected_ = dtpTime.value();
        if (index == 1)
            cancelFlag_ = true;
        hide();
    });
}

void frmSelectStartTime::Form_QueryUnload(bool&, bool) { cancelFlag_ = true; }

} // namespace qncal
