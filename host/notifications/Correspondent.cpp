#include "notifications/Correspondent.h"

#include "notifications/controlCharacters.h"
#include "services/Rows.h"
#include "utilities/text.h"

#include <initializer_list>
#include <sstream>

namespace qncal::host {

namespace {

/// The first of the columns that holds something.
std::string firstText(const Rows& row, std::initializer_list<std::string_view> columns)
{
    for (const std::string_view column : columns) {
        std::string text(trimmed(row.text(column)));
        if (!text.empty())
            return text;
    }
    return {};
}

/// A name stands on one line, in a greeting as on a list.
std::string nameIn(const Rows& row, std::string_view column)
{
    std::string name = firstText(row, {column});
    blankControlCharacters(name);
    return name;
}

/// The lines of a text that hold something.
void appendLines(std::vector<std::string>& lines, const std::string& text)
{
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        blankControlCharacters(line);
        if (const std::string_view content = trimmed(line); !content.empty())
            lines.emplace_back(content);
    }
}

/// `prefix` is that of the address columns: "Business", "Home", or nothing for a company.
std::vector<std::string> addressOf(const Rows& row, const std::string& prefix)
{
    std::vector<std::string> lines;
    for (const char* line : {"Address1", "Address2", "Address3"})
        appendLines(lines, firstText(row, {prefix + line}));
    if (lines.empty())
        appendLines(lines, firstText(row, {prefix + "Address"}));
    std::string town = firstText(row, {prefix + "City"});
    for (const char* part : {"Province", "PostalCode"}) {
        const std::string text = firstText(row, {prefix + part});
        town += (town.empty() || text.empty() ? "" : " ") + text;
    }
    appendLines(lines, town);
    appendLines(lines, firstText(row, {prefix + "Country"}));
    return lines;
}

Correspondent contactIn(const Rows& row)
{
    Correspondent contact;
    contact.name = nameIn(row, "DisplayName");
    contact.person = contact.name;
    contact.email = firstText(row, {"BusinessEmail", "PersonalEmail"});
    contact.fax = firstText(row, {"BusinessPhone_Fax", "HomePhone_Fax"});
    contact.phone = firstText(row, {"BusinessPhone_Main", "HomePhone_Main"});
    contact.address = addressOf(row, "Business");
    if (contact.address.empty())
        contact.address = addressOf(row, "Home");
    return contact;
}

Correspondent companyIn(const Rows& row)
{
    Correspondent company;
    company.name = nameIn(row, "CompanyName");
    company.email = firstText(row, {"Email"});
    company.fax = firstText(row, {"FaxNumber"});
    company.phone = firstText(row, {"OfficeNumber"});
    company.address = addressOf(row, {});
    return company;
}

std::optional<Correspondent> readContact(DatabaseService& database, std::int32_t id)
{
    const Rows row =
        Rows::read(database, "SELECT Contacts.* FROM Contacts WHERE ContactID=" + std::to_string(id) + ";");
    return row.isEmpty() ? std::nullopt : std::optional(contactIn(row));
}

std::optional<Correspondent> readCompany(DatabaseService& database, std::int32_t id)
{
    const Rows row =
        Rows::read(database, "SELECT Companies.* FROM Companies WHERE CompanyID=" + std::to_string(id) + ";");
    return row.isEmpty() ? std::nullopt : std::optional(companyIn(row));
}

/// -1 for none.
std::int32_t defaultContactOf(DatabaseService& database, std::int32_t companyID)
{
    const Rows row = Rows::read(database, "SELECT ContactLinks.ContactIDNum FROM ContactLinks WHERE CompanyNum="
                                              + std::to_string(companyID) + " AND DefaultContact = True;");
    return row.isEmpty() ? -1 : row.integer("ContactIDNum");
}

void prefer(const std::string& better, std::string& text)
{
    if (!better.empty())
        text = better;
}

} // namespace

std::optional<Correspondent> readClient(DatabaseService& database, const ItemClient& client)
{
    if (client.companyID < 0)
        return readContact(database, client.contactID);
    std::optional<Correspondent> company = readCompany(database, client.companyID);
    if (!company)
        return company;
    if (const auto contact = readContact(database, defaultContactOf(database, client.companyID))) {
        company->person = contact->name;
        prefer(contact->email, company->email);
        prefer(contact->fax, company->fax);
        prefer(contact->phone, company->phone);
    }
    return company;
}

Correspondent readFirm(DatabaseService& database)
{
    const Rows row = Rows::read(database, "SELECT AccountantFirmInfo.* FROM AccountantFirmInfo;");
    return row.isEmpty() ? Correspondent() : companyIn(row);
}

} // namespace qncal::host
