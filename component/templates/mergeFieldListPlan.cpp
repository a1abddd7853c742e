#include "templates/mergeFieldListPlan.h"

#include "templates/mergeFieldCodes.h"

#include <array>

namespace qncal {

namespace {

using enum MergeFieldBlock;
using Step = MergeFieldListStep;

constexpr Step appointmentStep{appointment, false, "[Appointment Info]"};
constexpr Step taskStep{task, false, "[Task Info]"};
constexpr Step timeEntryStep{timeEntry, false, "[Time Entry Info]"};
constexpr Step companyStep{company, false, "[Company Address Info]"};
constexpr Step companyStepAfterBlank{company, true, "[Company Address Info]"};
constexpr Step companyStepAfterContact{company, true, "[Company Info]", true};
constexpr Step defaultContactStep{contactName, true, "[Default Contact Name]"};
constexpr Step contactStep{contactName, true, "[Contact Name]"};
constexpr Step accountingStep{accounting, true, "[Company Accounting Info]"};
constexpr Step softwareStep{software, true, "[Company Software Info]"};
constexpr Step moreContactStep{moreContact, true, "[More Contact Info]"};

constexpr std::array companyPlan{companyStep, defaultContactStep, accountingStep, softwareStep, moreContactStep};
constexpr std::array contactPlan{contactStep, accountingStep, softwareStep, moreContactStep};
constexpr std::array contactAddressPlan{contactStep, moreContactStep, companyStepAfterContact};
constexpr std::array appointmentPlan{appointmentStep, companyStepAfterBlank, defaultContactStep,
                                     accountingStep,  softwareStep,          moreContactStep};
// No blank line before the company, unlike the lists of an appointment and of a task: meant.
constexpr std::array timeEntryPlan{timeEntryStep,  companyStep,  defaultContactStep,
                                   accountingStep, softwareStep, moreContactStep};
constexpr std::array taskPlan{taskStep,       companyStepAfterBlank, defaultContactStep,
                              accountingStep, softwareStep,          moreContactStep};

} // namespace

std::span<const MergeFieldListStep> mergeFieldListPlan(std::int32_t listType)
{
    switch (listType) {
    case mergeListType::company:
        return companyPlan;
    case mergeListType::contact:
        return contactPlan;
    case mergeListType::contactAddress:
        return contactAddressPlan;
    case mergeListType::appointment:
        return appointmentPlan;
    case mergeListType::timeEntry:
        return timeEntryPlan;
    case mergeListType::task:
        return taskPlan;
    default:
        return {};
    }
}

} // namespace qncal
