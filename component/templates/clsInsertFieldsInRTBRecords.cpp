// clsInsertFieldsInRTB: the raw values of fields, from the records of the item's ids.

#include "templates/clsInsertFieldsInRTB.h"

#include "controls/otherEvents.h"
#include "core/RecordSet.h"
#include "core/ServiceRegistry.h"
#include "core/routineScope.h"
#include "lookups/clientCodeTables.h"
#include "lookups/taskOfSchedule.h"
#include "templates/MergeRecordSets.h"
#include "templates/inheritedFields.h"
#include "templates/mergeFieldSource.h"
#include "utilities/text.h"

namespace qncal {

namespace {

/// How often other events may run before a record is looked for.
constexpr int turnsForOtherEvents = 8;

/// Not a column: the time between the two time columns.
constexpr std::string_view timeDurationField = "TimeDuration";

/// A column that holds a code number, and the text for it.
struct CodeField {
    std::string_view column;
    std::string (*textOf)(std::int32_t code);
    std::int32_t codeWhenNull;
};

constexpr CodeField codeFields[] = {
    {"RC59Permission", modDatabaseFunctions::getRC59PermissionStringFromRC59PermissionNum, 0},
    {"RC59Status", modDatabaseFunctions::getRC59FormStatusStringFromRC59FormStatusNum, 0},
    {"GSTFilingMethod", modDatabaseFunctions::getGSTFilingMethodStringFromGSTFilingMethodNum, 0},
    {"FinancialStatements", modDatabaseFunctions::getFinancialStatementsStringFromFinancialStatementsNum, 1},
    {"CorporationType", modDatabaseFunctions::getCorporationTypeStringFromCorporationTypeNum, 0},
    {"CorporationLevel", modDatabaseFunctions::getCorporationLevelStringFromCorporationLevelNum, 1},
};

std::string textIn(const RecordSet& record, std::string_view column)
{
    std::string value;
    record.read(column, value);
    return value;
}

std::string clientField(const RecordSet& record, std::string_view column)
{
    for (const CodeField& field : codeFields) {
        if (equalsNoCase(field.column, column)) {
            std::int32_t code = field.codeWhenNull;
            record.read(column, code);
            return field.textOf(code);
        }
    }
    return textIn(record, column);
}

std::string inheritedField(const RecordSet& contact, const RecordSet& company, const InheritedField& field)
{
    std::string first =
        field.companyFirst ? textIn(company, field.companyColumn) : textIn(contact, field.contactColumn);
    if (!first.empty())
        return first;
    return field.companyFirst ? textIn(contact, field.contactColumn) : textIn(company, field.companyColumn);
}

} // namespace

MergeRecordSets& clsInsertFieldsInRTB::recordSets()
{
    if (!recordSets_)
        recordSets_ = std::make_shared<MergeRecordSets>();
    return *recordSets_;
}

MergeItemIDs clsInsertFieldsInRTB::itemIDs() const
{
    return {companyID_, contactID_, firmID_, userID_, appointmentID_, docketId_, taskID_};
}

void clsInsertFieldsInRTB::scheduleID(std::int32_t id) { taskID_ = modDatabaseFunctions::getTaskIDFromScheduleID(id); }

void clsInsertFieldsInRTB::initializeDataRecordsetsForSingleDocMerge()
{
    routine("Vestrel.exe-clsInsertFieldsInRTB-initializeDataRecordsetsForSingleDocMerge",
            [this] { recordSets().openAll(itemIDs(), mergeFieldListUse_); });
}

std::string clsInsertFieldsInRTB::readCurrentField()
{
    const FieldListRow& row = fieldList().current();
    const MergeFieldSource* source = findMergeFieldSource(row.category.view());
    std::string databaseField = row.databaseField.str();
    if (!source || itemIDs().*source->id < 0)
        return {};
    recordSets().openIfClosed(source->record, itemIDs(), mergeFieldListUse_);
    for (int turn = 0; turn < turnsForOtherEvents; ++turn)
        statement([] { letOtherEventsRun(); });
    if (!recordSets().at(source->record).findRecord(source->keyColumn, itemIDs().*source->id))
        return {};
    return getDataFieldFromRecordset(databaseField);
}

std::string clsInsertFieldsInRTB::getDataFieldFromRecordset(std::string& databaseField)
{
    return routine("Vestrel.exe-clsInsertFieldsInRTB-getDataFieldFromRecordset", std::string(), [&] {
        const MergeFieldSource* source = findMergeFieldSource(fieldList().current().category.view());
        if (!source)
            return std::string();
        const RecordSet& record = recordSets().at(source->record);
        switch (source->record) {
        case MergeRecord::contact:
            return contactField(record, databaseField);
        case MergeRecord::company:
            return companyField(record, databaseField);
        case MergeRecord::mainBusiness:
            return clientField(record, databaseField);
        case MergeRecord::appointment:
        case MergeRecord::timeEntry:
            return itemField(record, record, databaseField);
        case MergeRecord::task:
            // A task's times come from the appointment record, and fail where none is open: meant.
            if (equalsNoCase(databaseField, timeDurationField))
                return itemField(record, recordSets().at(MergeRecord::appointment), databaseField);
            [[fallthrough]];
        default:
            return textIn(record, databaseField);
        }
    });
}

std::string clsInsertFieldsInRTB::contactField(const RecordSet& contact, std::string& databaseField)
{
    if (const InheritedField* field = findInheritedField(databaseField)) {
        if (const RecordSet* company = companyToInheritFrom())
            return inheritedField(contact, *company, *field);
    }
    if (equalsNoCase(databaseField, "ContactAndSpouseName"))
        return statement([&] { return clientDropDownService().getContactAndSpouseName(contactID_); });
    if (becomesProvinceColumn(databaseField, MergeRecord::contact))
        return getAbbreviatedProvince(textIn(contact, databaseField));
    return textIn(contact, databaseField);
}

std::string clsInsertFieldsInRTB::companyField(const RecordSet& company, std::string& databaseField)
{
    if (becomesProvinceColumn(databaseField, MergeRecord::company))
        return getAbbreviatedProvince(textIn(company, databaseField));
    // The literal lacks a letter: `CompanyType` is not meant by it and shows its code.
    if (equalsNoCase(databaseField, "COMPANTYPE")) {
        std::int32_t code = 0;
        recordSets().at(MergeRecord::mainBusiness).read(databaseField, code);
        return modDatabaseFunctions::getCompanyTypeStringFromCompanyTypeNum(code);
    }
    return textIn(company, databaseField);
}

std::string clsInsertFieldsInRTB::itemField(const RecordSet& record, const RecordSet& times,
                                            const std::string& databaseField)
{
    if (!equalsNoCase(databaseField, timeDurationField))
        return textIn(record, databaseField);
    Date timeFrom;
    Date timeTo;
    times.read("TimeFrom", timeFrom);
    times.read("TimeTo", timeTo);
    return getTimeDurationFieldValue(timeFrom, timeTo);
}

RecordSet* clsInsertFieldsInRTB::companyToInheritFrom()
{
    bool inherits = false;
    recordSets().at(MergeRecord::contact).read("InheritCompanyInfo", inherits);
    if (!inherits || companyID_ < 0)
        return nullptr;
    recordSets().openIfClosed(MergeRecord::company, itemIDs(), mergeFieldListUse_);
    RecordSet& company = recordSets().at(MergeRecord::company);
    return company.findRecord("CompanyID", companyID_) ? &company : nullptr;
}

} // namespace qncal
