#include "items/itemTextFields.h"

#include "templates/mergeFieldCodes.h"
#include "utilities/text.h"

#include <span>

namespace qncal {

namespace {

struct ItemFieldName {
    std::string_view category;
    std::string_view displayName;
    ItemTextField field;
};

using enum ItemTextField;
using namespace mergeCategory;

constexpr ItemFieldName itemFieldNames[] = {
    {appointInfo, "Appointment Name", subject},
    {appointInfo, "Appointment Date", dateFrom},
    {appointInfo, "Appointment Start Time", timeFrom},
    {appointInfo, "Appointment End Time", timeTo},
    {appointInfo, "Time Duration", timeDuration},
    {appointInfo, "Appointment Text", appointmentText},
    {appointInfo, "Custom Appt Field 1", custom1},
    {appointInfo, "Custom Appt Field 2", custom2},
    {appointInfo, "Custom Appt Field 3", custom3},
    {appointInfo, "Custom Appt Field 4", custom4},
    {appointInfo, "Custom Appt Field 5", custom5},

    {taskInfo, "Task Subject", subject},
    {taskInfo, "Task Calendar Date", dateFrom},
    {taskInfo, "Task Start Time", timeFrom},
    {taskInfo, "Task End Time", timeTo},
    {taskInfo, "Time Duration", timeDuration},
    {taskInfo, "Task Text", appointmentText},
    {taskInfo, "Custom Task Calendar Field 1", custom1},
    {taskInfo, "Custom Task Calendar Field 2", custom2},
    {taskInfo, "Custom Task Calendar Field 3", custom3},
    {taskInfo, "Custom Task Calendar Field 4", custom4},
    {taskInfo, "Custom Task Calendar Field 5", custom5},

    {docketInfo, "Time Entry Name", subject},
    {docketInfo, "Time Entry Date", dateFrom},
    {docketInfo, "Time Entry Start Time", timeFrom},
    {docketInfo, "Time Entry End Time", timeTo},
    {docketInfo, "Time Duration", timeDuration},
    {docketInfo, "Time Entry Text", appointmentText},
    {docketInfo, "Custom Time Entry Field 1", custom1},
    {docketInfo, "Custom Time Entry Field 2", custom2},
    {docketInfo, "Custom Time Entry Field 3", custom3},
    {docketInfo, "Custom Time Entry Field 4", custom4},
    {docketInfo, "Custom Time Entry Field 5", custom5},
};

/// The same for every kind of item.
constexpr ItemFieldName customFieldNames[] = {
    {{}, "Custom 1", custom1}, {{}, "Custom 2", custom2}, {{}, "Custom 3", custom3},
    {{}, "Custom 4", custom4}, {{}, "Custom 5", custom5},
};

struct ClientFieldName {
    std::string_view displayName;
    std::string_view databaseField;
};

constexpr ClientFieldName contactFieldNames[] = {
    {"Contact Full Name", "DisplayName"},
    {"Contact Display Name", "DisplayName"},
    {"Client ID", "ClientID"},
    {"Contact First Name", "FirstName"},
    {"Contact Middle Name", "MiddleName"},
    {"Contact Last Name", "LastName"},
    {"Contact SIN", "SocialInsuranceNumber"},
    {"Contact SSN", "SocialInsuranceNumber"},
    {"Contact Business Phone", "BusinessPhone_Main"},
    {"Contact Business Fax", "BusinessPhone_Fax"},
    {"Contact Business Email", "BusinessEmail"},
    {"Spouse First Name", "SpouseFirstName"},
    {"Spouse Last Name", "SpouseLastName"},
    {"Supervising Partner", "PartnerName"},
    {"Managing Accountant", "AccountantName"},
};

constexpr ClientFieldName companyFieldNames[] = {
    {"Company Name", "CompanyName"},
    {"Corporate Name", "CorporateName"},
    {"Client ID", "ClientID"},
    {"Business Number", "BusinessNumber"},
    {"Supervising Partner", "PartnerName"},
    {"Managing Accountant", "AccountantName"},
    {"Office Number", "OfficeNumber"},
    {"Fax Number", "FaxNumber"},
    {"Email", "Email"},
};

} // namespace

std::optional<ItemTextField> findItemTextField(std::string_view category, std::string_view displayName)
{
    for (const ItemFieldName& name : itemFieldNames) {
        if (name.category == category && equalsNoCase(name.displayName, displayName))
            return name.field;
    }
    if (category != appointInfo && category != taskInfo && category != docketInfo)
        return std::nullopt;
    for (const ItemFieldName& name : customFieldNames) {
        if (equalsNoCase(name.displayName, displayName))
            return name.field;
    }
    return std::nullopt;
}

std::string_view clientListField(ClientKind client, std::string_view displayName)
{
    const bool isContact = client == ClientKind::contact;
    for (const ClientFieldName& name :
         isContact ? std::span<const ClientFieldName>(contactFieldNames) : companyFieldNames) {
        if (equalsNoCase(name.displayName, displayName))
            return name.databaseField;
    }
    return {};
}

} // namespace qncal
