#pragma once

#include "component/templates/MergeEngineTest.h"
#include "support/RecordingDatabase.h"

namespace qncal::test {

/// An engine over a database with one client of each sort.
class MergeDataTest : public MergeEngineTest {
protected:
    MergeDataTest() { serviceRegistry().database = recorded; }

    /// A company with a row in every table of its whole record.
    std::int32_t addCompany(Values values)
    {
        const std::int32_t company = addRow("Companies", values);
        const std::string companyText = std::to_string(company);
        client = addRow("ClientData", {{"CompanyIDNum", companyText}, {"ClientCustom1", "file 7"}});
        const std::string link = std::to_string(client);
        accounting = addRow("AccountingServices", {{"ClientDataIDNum", link}});
        corpTax = addRow("CorpTaxInfo", {{"ClientDataIDNum", link}, {"BusinessNumber", "123 RC"}});
        for (const char* table : {"ClientOptions", "LawInfo", "OtherInfo", "WSIB_EHTInfo", "ClientUSInfo"})
            addRow(table, {{"ClientDataIDNum", link}});
        addRow("CompaniesNotes", {{"CompanyNum", companyText}, {"Notes", "pays late"}});
        addRow("Clients", {{"CompanyIDNum", companyText}});
        engine.companyID(company);
        return company;
    }
    std::int32_t addContact(const Values& values)
    {
        const std::int32_t contact = addRow("Contacts", values);
        engine.contactID(contact);
        return contact;
    }
    /// The finished text of a field; the catalogue must have been built.
    std::string field(std::string_view displayName, const std::string& format = {})
    {
        return engine.getDataFieldInfo(keyOf(displayName), format);
    }

    std::shared_ptr<RecordingDatabase> recorded = std::make_shared<RecordingDatabase>(database);
    std::int32_t client = -1;
    std::int32_t accounting = -1;
    std::int32_t corpTax = -1;
};

template <class Parameter>
class MergeDataTestWith : public MergeDataTest, public testing::WithParamInterface<Parameter> {
};

} // namespace qncal::test
