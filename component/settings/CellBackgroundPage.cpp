#include "settings/CellBackgroundPage.h"

#include "core/routineScope.h"
#include "utilities/dateText.h"

#include <string>
#include <string_view>

namespace qncal {

namespace {

constexpr int saturday = 6;

void nameAfterWeekdays(ControlArray<ColourPicker>& pickers, std::string_view view)
{
    pickers.forEach([view](ColourPicker& picker, int index) {
        picker.accessibleName(std::string(view).append(" background, ").append(weekdayName(index + 1)));
    });
}

} // namespace

CellBackgroundPage::CellBackgroundPage(Form& form)
    : cpDayViewBackColour(form, "cpDayViewBackColour", 0, saturday),
      cpWeekViewBackColour(form, "cpWeekViewBackColour", 0, saturday),
      cpMonthViewBackColour(form, "cpMonthViewBackColour", 0, saturday),
      chkUseSameColours(form, "chkUseSameColours", 0, 1)
{
    nameAfterWeekdays(cpDayViewBackColour, "Day view");
    nameAfterWeekdays(cpWeekViewBackColour, "Week view");
    nameAfterWeekdays(cpMonthViewBackColour, "Month view");
    chkUseSameColours.forEach([this](CheckBox& box, int index) {
        box.caption("Use same colour scheme as day view.");
        box.Click = [this, index] { chkUseSameColours_Click(index); };
    });
}

void CellBackgroundPage::chkUseSameColours_Click(int index)
{
    if (populating_)
        return;
    routine("Vestrel.exe-frmDayTimerSettings-chkUseSameColours_Click", [&] {
        if (!chkUseSameColours(index).isChecked())
            return;
        auto& view = index == 0 ? cpWeekViewBackColour : cpMonthViewBackColour;
        view.forEach([this](ColourPicker& picker, int day) { picker.colour(cpDayViewBackColour(day).colour()); });
    });
}

} // namespace qncal
