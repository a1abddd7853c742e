#include "common/Failure.h"
#include "core/schema.h"
#include "firmcal/CommandContext.h"
#include "firmcal/Table.h"
#include "firmcal/clientLookup.h"
#include "firmcal/commands.h"
#include "services/Rows.h"

#include <nlohmann/json.hpp>

#include <ostream>

namespace qncal::firmcal {

namespace {

using Json = nlohmann::ordered_json;

struct ListOptions {
    std::string name;
    bool companies = false;
    bool contacts = false;
};

struct ShowOptions {
    std::string client;
    bool contact = false;
};

void listClients(CommandContext& context, const ListOptions& options)
{
    DatabaseService& database = context.host().database();
    std::vector<ClientRow> clients;
    if (!options.contacts)
        clients = findClients(database, ClientKind::company, options.name);
    if (!options.companies) {
        for (ClientRow& contact : findClients(database, ClientKind::contact, options.name))
            clients.push_back(std::move(contact));
    }
    if (context.options().json) {
        Json json = Json::array();
        for (const ClientRow& client : clients)
            json.push_back({{"kind", clientNoun(client.kind)},
                            {"id", client.id},
                            {"name", client.name},
                            {"clientID", client.number},
                            {"phone", client.phone},
                            {"email", client.email}});
        return context.printJson(json);
    }
    if (clients.empty()) {
        context.out() << "No clients.\n";
        return;
    }
    Table table({{"Kind"}, {"ID", Table::Align::right}, {"Name"}, {"Client ID"}, {"Phone"}, {"E-mail"}});
    for (const ClientRow& client : clients)
        table.add({std::string(clientNoun(client.kind)), std::to_string(client.id), client.name, client.number,
                   client.phone, client.email});
    table.print(context.out());
}

/// A person of a company, or a company of a person.
struct Link {
    std::int32_t id;
    std::string name;
    bool isDefault;
};

std::vector<Link> linksOf(DatabaseService& database, ClientKind kind, std::int32_t id)
{
    const bool company = kind == ClientKind::company;
    const std::string number = std::to_string(id);
    const std::string sql =
        company ? "SELECT Contacts.ContactID, Contacts.DisplayName, ContactLinks.DefaultContact FROM Contacts "
                  "INNER JOIN ContactLinks ON Contacts.ContactID = ContactLinks.ContactIDNum WHERE "
                  "ContactLinks.CompanyNum = "
                      + number + " ORDER BY Contacts.DisplayName;"
                : "SELECT Companies.CompanyID, Companies.CompanyName, ContactLinks.DefaultContact FROM Companies "
                  "INNER JOIN ContactLinks ON Companies.CompanyID = ContactLinks.CompanyNum WHERE "
                  "ContactLinks.ContactIDNum = "
                      + number + " ORDER BY Companies.CompanyName;";
    std::vector<Link> links;
    for (host::Rows rows = host::Rows::read(database, sql); !rows.atEnd(); rows.moveNext())
        links.push_back({rows.integer(company ? "ContactID" : "CompanyID"),
                         rows.text(company ? "DisplayName" : "CompanyName"), rows.boolean("DefaultContact")});
    return links;
}

Json fieldValue(const Variant& value)
{
    if (value.isNumber())
        return value.toReal() == static_cast<std::int32_t>(value.toReal()) ? Json(value.toInteger())
                                                                           : Json(value.toReal());
    if (value.isBoolean())
        return value.toBoolean();
    return value.isNull() ? Json() : Json(value.toText());
}

void showClient(CommandContext& context, const ShowOptions& options)
{
    const ClientKind kind = options.contact ? ClientKind::contact : ClientKind::company;
    const std::int32_t id = clientID(context, kind, options.client);
    DatabaseService& database = context.host().database();
    const schema::Table& table = *schema::findTable(clientTable(kind));
    const std::string key(table.columns.front().name);
    const host::Rows row = host::Rows::read(database, "SELECT * FROM " + std::string(table.name) + " WHERE " + key + "="
                                                          + std::to_string(id) + ";");
    const std::vector<Link> links = linksOf(database, kind, id);
    if (context.options().json) {
        Json json{{"kind", clientNoun(kind)}};
        for (const schema::Column& column : table.columns)
            json[std::string(column.name)] = fieldValue(row.field(column.name));
        Json linked = Json::array();
        for (const Link& link : links)
            linked.push_back({{"id", link.id}, {"name", link.name}, {"default", link.isDefault}});
        json[options.contact ? "companies" : "contacts"] = std::move(linked);
        return context.printJson(json);
    }
    context.out() << clientNoun(kind) << ' ' << id << ": "
                  << (options.contact ? context.host().clients().getContactAndSpouseName(id)
                                      : context.host().clients().getCompanyName(id))
                  << "\n\n";
    Table fields({{"Field"}, {"Value"}});
    for (const schema::Column& column : table.columns.subspan(1)) {
        const std::string value = row.text(column.name);
        if (!value.empty() && value != "False" && value != "-1")
            fields.add({std::string(column.name), value});
    }
    fields.printRows(context.out(), "  ");
    if (links.empty())
        return;
    context.out() << '\n' << (options.contact ? "Companies" : "Contacts") << '\n';
    Table linked({{"ID", Table::Align::right}, {"Name"}, {""}});
    for (const Link& link : links)
        linked.add({std::to_string(link.id), link.name, link.isDefault ? "default contact" : ""});
    linked.printRows(context.out(), "  ");
}

void listUsers(CommandContext& context)
{
    const std::vector<UserEntry> users = context.host().clients().getUsers();
    if (context.options().json) {
        Json json = Json::array();
        for (const UserEntry& user : users)
            json.push_back({{"id", user.id}, {"name", user.name}});
        return context.printJson(json);
    }
    if (users.empty()) {
        context.out() << "No users.\n";
        return;
    }
    Table table({{"ID", Table::Align::right}, {"Name"}});
    for (const UserEntry& user : users)
        table.add({std::to_string(user.id), user.name});
    table.print(context.out());
}

} // namespace

void addClientCommands(CLI::App& program, CommandContext& context)
{
    CLI::App* client = program.add_subcommand("client", "List and show clients: companies and contacts");
    client->require_subcommand(1);
    client->footer("'firmcal client COMMAND --help' tells about a command.");

    CLI::App* list = client->add_subcommand("list", "List clients by name");
    auto listOptions = std::make_shared<ListOptions>();
    list->add_option("NAME", listOptions->name, "Only those with this text in their name");
    CLI::Option* companies = list->add_flag("--companies", listOptions->companies, "Companies alone");
    list->add_flag("--contacts", listOptions->contacts, "Contacts alone")->excludes(companies);
    list->footer("Examples:\n  firmcal client list\n  firmcal client list --contacts reed");
    list->callback([&context, listOptions] { listClients(context, *listOptions); });

    CLI::App* show = client->add_subcommand("show", "Show a client and whom it is linked to");
    auto showOptions = std::make_shared<ShowOptions>();
    show->add_option("CLIENT", showOptions->client, "A name, a part of one, or a number")->required();
    show->add_flag("--contact", showOptions->contact, "A contact; a company without it");
    show->footer("Examples:\n  firmcal client show 3\n  firmcal client show --contact \"Ann Reed\"");
    show->callback([&context, showOptions] { showClient(context, *showOptions); });
}

void addUserCommands(CLI::App& program, CommandContext& context)
{
    CLI::App* user = program.add_subcommand("user", "List the users of the calendar");
    user->require_subcommand(1);
    CLI::App* list = user->add_subcommand("list", "List the users by name");
    list->footer("Example:\n  firmcal user list");
    list->callback([&context] { listUsers(context); });
}

} // namespace qncal::firmcal
