#pragma once

#include "core/HostReferences.h"
#include "core/enumerations.h"
#include "utilities/Event.h"

#include <cstdint>
#include <string>

namespace qncal {

/// Entry to the settings dialogs. Takes the host's services through its reference properties and keeps the
/// component's own services alive: creating one makes them anew, ending one empties their slots.
/// The openers return when the dialog closes; a failure is reported to the error control and nothing is opened.
class clsCalendarSetCtrl : public HostReferences {
public:
    clsCalendarSetCtrl();
    ~clsCalendarSetCtrl();
    clsCalendarSetCtrl(const clsCalendarSetCtrl&) = delete;
    clsCalendarSetCtrl& operator=(const clsCalendarSetCtrl&) = delete;

    /// Asks the host to close the application.
    Event<> ExitProgram;

    /// Empties the slots of `FileService`, `UtilityService` and `DateTimeService`; the host's references stay.
    void Terminate();

    /// The views 0 to 2 open the dialog for the item kind of the same number, any other opens nothing.
    /// A `goToTab` below 4 selects that page of the dialog.
    void openDayTimerSettingsForm(enumFormDayTimerType currentDayTimerTypeView, std::int32_t userIDNum,
                                  std::int16_t goToTab = 0);
    void openApptStatusOptionsForm(enumFormDayTimerType currentDayTimerTypeView, const std::string& fieldName,
                                   std::int16_t customNum);
    void openChangeApptStatusFieldsForm(enumFormDayTimerType currentDayTimerTypeView);
    /// Modeless, through the host's form registry: a second call brings the open window to the front.
    void openDuplicateAppointmentsForm();

    // Inside the component:

    void raiseExitProgram() { ExitProgram.raise(); }
};

} // namespace qncal
