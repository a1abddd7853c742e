#include "core/clsCalendarSetCtrl.h"

#include "core/FormRegistry.h"
#include "core/ServiceRegistry.h"
#include "core/forms.h"
#include "core/openForKind.h"
#include "core/registeredForm.h"
#include "core/routineScope.h"

// The labels of the openers keep the name that the library had before.

namespace qncal {

clsCalendarSetCtrl::clsCalendarSetCtrl()
{
    skipOnError([] { createComponentServices(); });
}

clsCalendarSetCtrl::~clsCalendarSetCtrl() { Terminate(); }

void clsCalendarSetCtrl::Terminate()
{
    routine("Vestrel.exe-clsCalendarSetCtrl-Terminate", [] { releaseComponentServices(); });
    // Without an error control no routine runs; the slots are to be empty all the same.
    releaseComponentServices();
}

void clsCalendarSetCtrl::openDayTimerSettingsForm(enumFormDayTimerType currentDayTimerTypeView, std::int32_t userIDNum,
                                                  std::int16_t goToTab)
{
    routine("qnCalendarSettingsCtrl.dll-clsCalendarSetCtrl-openDayTimerSettingsForm", [&] {
        openForKind(currentDayTimerTypeView, newDayTimerSettingsForm,
                    [&](auto& form, auto kind) { form.Initialize(kind, userIDNum, goToTab); });
    });
}

void clsCalendarSetCtrl::openApptStatusOptionsForm(enumFormDayTimerType currentDayTimerTypeView,
                                                   const std::string& fieldName, std::int16_t customNum)
{
    routine("qnCalendarSettingsCtrl.dll-clsCalendarSetCtrl-openApptStatusOptionsForm", [&] {
        openForKind(currentDayTimerTypeView, newApptStatusOptionsForm,
                    [&](auto& form, auto kind) { form.Initialize(kind, fieldName, customNum); });
    });
}

void clsCalendarSetCtrl::openChangeApptStatusFieldsForm(enumFormDayTimerType currentDayTimerTypeView)
{
    routine("qnCalendarSettingsCtrl.dll-clsCalendarSetCtrl-openChangeApptStatusFieldsForm", [&] {
        openForKind(currentDayTimerTypeView, newChangeApptStatusFieldsForm,
                    [](auto& form, auto kind) { form.Initialize(kind); });
    });
}

void clsCalendarSetCtrl::openDuplicateAppointmentsForm()
{
    routine("qnCalendarSettingsCtrl.dll-clsCalendarSetCtrl-openDuplicateAppointmentsForm", [] {
        FormRegistryEntry& entry = registeredForm(FormRegistry::duplicateWizardKey, newDuplicateAppointmentsForm);
        statement([&] { entry.show(false); });
        statement([&] { entry.bringToFront(); });
    });
}

} // namespace qncal
