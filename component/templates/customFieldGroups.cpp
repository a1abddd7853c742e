#include "templates/customFieldGroups.h"

#include <algorithm>

namespace qncal {

namespace {

constexpr CustomFieldTexts::Five five(std::string_view text)
{
    return {{{text, "1"}, {text, "2"}, {text, "3"}, {text, "4"}, {text, "5"}}};
}

constexpr std::array<CustomFieldTexts, 8> groups{{
    {CustomFieldGroup::client,
     "SELECT CustomName1, CustomName2, CustomName3, CustomName4, CustomName5 FROM CustomFields;", five("CustomName"),
     five("ClientCustom"), five("Custom Field "), five("Custom Info "), ""},
    {CustomFieldGroup::contact,
     "SELECT ContactLabel1, ContactLabel2, ContactLabel3, ContactLabel4, ContactLabel5 FROM CustomAddressFields;",
     five("ContactLabel"), five("ContactCustom"), five("Contact Custom Field "), five("Contact Custom Info "), ""},
    {CustomFieldGroup::company,
     "SELECT CompanyLabel1, CompanyLabel2, CompanyLabel3, CompanyLabel4, CompanyLabel5 FROM CustomAddressFields;",
     five("CompanyLabel"), five("CompanyCustom"), five("Company Custom Field "), five("Company Custom Info "), ""},
    {CustomFieldGroup::appointment,
     "SELECT ApptCustomName1, ApptCustomName2, ApptCustomName3, ApptCustomName4, ApptCustomName5 FROM CustomFields;",
     five("ApptCustomName"), five("ApptCustom"), five("Custom Appt Field "), five("Custom Appt Info "), ""},
    {CustomFieldGroup::schedule,
     "SELECT RemittanceLabel1, RemittanceLabel2, RemittanceLabel3, RemittanceLabel4, RemittanceLabel5 "
     "FROM CustomFields;",
     five("RemittanceLabel"), five("ScheduleCustom"), five("Custom Task Field "), five("Custom Task Info "), ""},
    {CustomFieldGroup::task,
     "SELECT TaskCustomName1, TaskCustomName2, TaskCustomName3, TaskCustomName4, TaskCustomName5 FROM CustomFields;",
     five("TaskCustomName"), five("TaskCustom"), five("Custom Task Calendar Field "), five("Custom Task Info "), ""},
    {CustomFieldGroup::timeEntry,
     "SELECT DocketCustomName1, DocketCustomName2, DocketCustomName3, DocketCustomName4, DocketCustomName5 "
     "FROM CustomFields;",
     five("DocketCustomName"), five("DocketCustom"), five("Custom Time Entry Field "), five("Custom Time Entry Info "),
     ""},
    {CustomFieldGroup::firm,
     "SELECT CompanyLabel1, CompanyLabel2, CompanyLabel3, CompanyLabel4, CompanyLabel5 FROM CustomAddressFields;",
     five("CompanyLabel"), five("FirmCustom"), five("Your Company Custom Field "), five("Company Custom Info "),
     "Your "},
}};

} // namespace

const CustomFieldTexts& customFieldTexts(CustomFieldGroup group)
{
    return *std::ranges::find(groups, group, &CustomFieldTexts::group);
}

} // namespace qncal
