#include "firmcal/clientLookup.h"

#include "common/Failure.h"
#include "firmcal/CommandContext.h"
#include "services/Rows.h"
#include "utilities/text.h"

#include <algorithm>

namespace qncal::firmcal {

namespace {

/// The columns that play the same part for both kinds of client.
struct Columns {
    std::string_view table;
    std::string_view key;
    std::string_view name;
    std::string_view phone;
    std::string_view email;
};

constexpr Columns companyColumns{"Companies", "CompanyID", "CompanyName", "OfficeNumber", "Email"};
constexpr Columns contactColumns{"Contacts", "ContactID", "DisplayName", "BusinessPhone_Main", "BusinessEmail"};

const Columns& columnsOf(ClientKind kind) { return kind == ClientKind::company ? companyColumns : contactColumns; }

bool isNumber(std::string_view text)
{
    return !text.empty() && std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

} // namespace

std::string_view clientNoun(ClientKind kind) { return kind == ClientKind::company ? "company" : "contact"; }

std::string_view clientTable(ClientKind kind) { return columnsOf(kind).table; }

std::vector<ClientRow> findClients(DatabaseService& database, ClientKind kind, std::string_view text)
{
    const Columns& columns = columnsOf(kind);
    const std::string name(columns.name);
    std::string sql = "SELECT " + std::string(columns.key) + ", ClientID, " + name + ", " + std::string(columns.phone)
                      + ", " + std::string(columns.email) + " FROM " + std::string(columns.table);
    if (!text.empty())
        sql += " WHERE " + name + " LIKE '%" + database.getSQLText(text) + "%'";
    sql += " ORDER BY " + name + ";";
    std::vector<ClientRow> clients;
    for (host::Rows rows = host::Rows::read(database, sql); !rows.atEnd(); rows.moveNext())
        clients.push_back({kind, rows.integer(columns.key), rows.text(name), rows.text("ClientID"),
                           rows.text(columns.phone), rows.text(columns.email)});
    return clients;
}

std::int32_t clientID(CommandContext& context, ClientKind kind, const std::string& nameOrID)
{
    const std::string noun(clientNoun(kind));
    host::HostEnvironment& host = context.host();
    if (isNumber(nameOrID) && nameOrID.size() < 10) {
        const std::int32_t id = std::stoi(nameOrID);
        if (host.clients().getClientListField(kind, id, columnsOf(kind).key).isNull())
            throw Failure("no " + noun + " " + nameOrID);
        return id;
    }
    std::vector<ClientRow> found = findClients(host.database(), kind, nameOrID);
    if (const auto same =
            std::ranges::find_if(found, [&](const ClientRow& client) { return equalsNoCase(client.name, nameOrID); });
        same != found.end())
        return same->id;
    if (found.empty())
        throw Failure("no " + noun + " '" + nameOrID + "'; 'firmcal client list' shows them");
    if (found.size() > 1)
        throw Failure("more than one " + noun + " is called '" + nameOrID + "': " + found[0].name + ", " + found[1].name
                      + (found.size() > 2 ? ", ..." : ""));
    return found.front().id;
}

} // namespace qncal::firmcal
