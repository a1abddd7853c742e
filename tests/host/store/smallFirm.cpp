#include "host/store/smallFirm.h"

namespace qncal::host {

std::vector<Record> smallFirm()
{
    std::vector<Record> records;
    for (const auto& [table, key] :
         {std::pair{"Appointments", "AppointmentID"}, {"Tasks", "TaskID"}, {"Dockets", "DocketID"}}) {
        records.push_back({table,
                           key,
                           {{"Subject", "Alpha"},
                            {"UserIDNum", "7"},
                            {"CompanyIDNum", "1"},
                            {"DateFrom", "2026-03-31"},
                            {"TimeFrom", "09:00:00"},
                            {"TimeTo", "10:00:00"},
                            {"RepeatNum", "0"},
                            {"UserGroupNum", "4"},
                            {"BackColour", "255"},
                            {"TextBody", "notes"},
                            {"SchemeID", "2"},
                            {"ScheduleIDNum", "1"},
                            {"Custom1", "fourth"}}});
        records.push_back({table,
                           key,
                           {{"Subject", "Beta"},
                            {"UserIDNum", "7"},
                            {"ContactIDNum", "1"},
                            {"DateFrom", "2026-03-31"},
                            {"TimeFrom", "13:00:00"},
                            {"TimeTo", "14:30:00"},
                            {"RepeatNum", "1"},
                            {"UserGroupNum", "4"},
                            {"AppointmentText", "say 50%"},
                            {"Remind", "True"}}});
        records.push_back({table,
                           key,
                           {{"Subject", "gamma"},
                            {"UserIDNum", "8"},
                            {"DateFrom", "2026-04-01"},
                            {"TimeFrom", "09:00:00"},
                            {"TimeTo", "09:30:00"},
                            {"RepeatNum", "1"},
                            {"UserGroupNum", "5"}}});
    }
    records.insert(
        records.end(),
        {
            {"archiveTasks", "oldTaskID", {{"oldTaskID", "90"}, {"Subject", "Archived"}, {"ScheduleIDNum", "9"}}},
            {"archivedTasks", "oldTaskID", {{"oldTaskID", "91"}, {"Subject", "Saved away"}}},
            {"Schedule",
             "ScheduleID",
             {{"ScheduleName", "Year end"}, {"scheduleNum", "5"}, {"totalNum", "111"}, {"ClientNum", "1"}}},
            {"Reminders",
             "ReminderID",
             {{"UserIDNum", "7"},
              {"AppointmentIDNum", "1"},
              {"ReminderType", "3"},
              {"ReminderDate", "2026-03-31"},
              {"ReminderTime", "08:45:00"},
              {"Completed", "False"}}},
            {"Reminders",
             "ReminderID",
             {{"UserIDNum", "7"}, {"TaskIDNum", "1"}, {"ReminderType", "5"}, {"Completed", "True"}}},
            {"ClientNotification", "ClientNotificationID", {{"AppointmentNum", "1"}, {"NotificationSent", "True"}}},
            {"ColourSchemes", "ColourSchemeID", {{"SchemeName", "zebra"}, {"SchemeType", "0"}}},
            {"ColourSchemes", "ColourSchemeID", {{"SchemeName", "Amber"}, {"SchemeType", "0"}}},
            {"UserCalendarSettings", "UserCalendarSettingsID", {{"UserIDNum", "-1"}}},
            {"CustomFields", "CustomFieldsID", {{"ApptCustomName1", "Room:"}, {"CustomName1", "Custom 1:"}}},
            {"Holidays", "HolidayID", {{"HolidayDate", "2026-12-25"}, {"HolidayType", "1"}}},
            {"CommunicationLog", "CommunicationLogID", {{"CompanyIDNum", "1"}}},
            {"MissingInfo", "MissingInfoID", {{"ContactIDNum", "1"}}},
            {"OutlookSync", "OutlookSyncID", {{"AppointmentNum", "2"}}},
            {"Companies", "CompanyID", {{"CompanyName", "North Ltd"}, {"ClientID", "N1"}, {"Custom1", "first"}}},
            {"Contacts",
             "ContactID",
             {{"DisplayName", "Ann North"},
              {"BusinessEmail", "ann@example.test"},
              {"BusinessPhone_Main", "555-0101"},
              {"BusinessPhone_Fax", "555-0102"},
              {"Custom1", "second"}}},
            {"ContactLinks",
             "ContactLinkID",
             {{"ContactIDNum", "1"}, {"CompanyNum", "1"}, {"ContactNum", "1"}, {"DefaultContact", "True"}}},
            {"Categories", "CategoryID", {{"CategoryNum", "3"}}},
            {"CompaniesNotes", "CompaniesNotesID", {{"CompanyNum", "1"}, {"ContactNotes", "cn"}}},
            {"ContactsNotes", "ContactsNotesID", {{"ContactNum", "1"}, {"Notes", "n"}}},
            {"SoftwareInfo", "SoftwareInfoID", {{"CompanyIDNum", "1"}, {"DefaultSoftware", "True"}}},
            {"Clients", "ClientID", {{"CompanyIDNum", "1"}}},
            {"ClientData", "ClientDataID", {{"CompanyIDNum", "1"}, {"ActiveStatus", "1"}, {"ShowThisClient", "True"}}},
            {"AccountantEmployeeInfo", "ContactID", {{"DisplayName", "Eve Ledger"}}},
            {"AccountantFirmInfo", "CompanyID", {{"CompanyName", "Ledger & Co"}, {"Custom1", "third"}}},
            {"CustomAddressFields", "CustomAddressFieldsID", {{"CompanyLabel1", "Fax 2:"}}},
            {"PersonalTaxProfileInfo", "PersonalTaxProfileInfoID", {{"ContactNum", "1"}}},
            {"PersonalTaxDataImportInfo",
             "PersonalTaxDataImportInfoID",
             {{"TaxYear", "2025"}, {"ShowProfileT1InfoInSummary", "True"}}},
            {"PersonalTaxClientSummary", "PersonalTaxClientSummaryID", {{"ContactNum", "1"}, {"TaxYear", "2025"}}},
        });
    for (const char* table :
         {"AccountingServices", "ClientOptions", "ClientUSInfo", "CorpTaxInfo", "LawInfo", "OtherInfo", "WSIB_EHTInfo"})
        records.push_back({table, std::string(table) + "ID", {{"ClientDataIDNum", "1"}}});
    return records;
}

} // namespace qncal::host
